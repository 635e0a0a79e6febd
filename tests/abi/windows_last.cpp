// The system's header after the public headers, whose declarations must agree with it.
#include <zarnex/foundation.h>

#include <windows.h>
