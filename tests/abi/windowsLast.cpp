// The system's headers after the public headers, whose declarations must agree with it.
#include <zarnex/foundation.h>

#include <windows.h>

#include <rpc.h>
