#pragma once

/// The compiler conditions that users of the library see.
///
/// ZARNEX_API marks what crosses the boundary of the shared library. The build
/// of the library itself defines ZARNEX_BUILDING_FOUNDATION; a host program
/// defines nothing.

#if defined(_WIN32)
#if defined(ZARNEX_BUILDING_FOUNDATION)
#define ZARNEX_API __declspec(dllexport)
#else
#define ZARNEX_API __declspec(dllimport)
#endif
#else
#define ZARNEX_API __attribute__((visibility("default")))
#endif
