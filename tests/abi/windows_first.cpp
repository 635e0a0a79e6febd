// The public headers after the system's header with all of its macros.
#include <windows.h>

#if !defined(min) || !defined(max)
#error "the system's macros are missing, so nothing is checked here"
#endif

#include <zarnex/foundation.h>
