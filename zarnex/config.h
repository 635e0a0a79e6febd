#pragma once

/// @file
/// The compiler conditions that users of the library see.
///
/// ZARNEX_API marks what crosses the boundary of the shared library. The build
/// of the library itself defines ZARNEX_BUILDING_FOUNDATION; a host program
/// defines nothing.

/// @namespace zarnex
/// What has no global name: iterators, plain functions, and in zarnex::detail what headers need
/// and hosts do not.

/// Marks what crosses the boundary of the shared library: exported by the library, imported by
/// hosts.
#if defined(_WIN32)
#if defined(ZARNEX_BUILDING_FOUNDATION)
#define ZARNEX_API __declspec(dllexport)
#else
#define ZARNEX_API __declspec(dllimport)
#endif
#else
#define ZARNEX_API __attribute__((visibility("default")))
#endif

/// Marks a short member function or free function that hosts inline and that
/// the library exports all the same: its definition stands below its class in
/// the header. Without the attribute an ELF library would hold a copy only where
/// the library itself happens to call one.
#if defined(ZARNEX_BUILDING_FOUNDATION) && !defined(_WIN32)
#define ZARNEX_INLINE __attribute__((used)) inline
#else
#define ZARNEX_INLINE inline
#endif

/// The same for a short member of an exported class template. Compilers do not look
/// into a plain member behind an `extern template` line, but they do into an inline
/// one, and call the library's copy where they do not inline it. A mingw-w64 DLL
/// leaves inline members out of an instantiation, so there, in the build of the
/// library alone, the mark is empty.
#if defined(ZARNEX_BUILDING_FOUNDATION) && defined(_WIN32)
#define ZARNEX_TEMPLATE_INLINE
#else
#define ZARNEX_TEMPLATE_INLINE inline
#endif

/// Marks what takes or holds wide text. The libraries have the wchar_t of their platform, 2
/// bytes on Windows and 4 elsewhere. Where a host is compiled with the other one
/// (-fshort-wchar), the mark becomes part of the names, so that they are not found when the
/// host is linked; what has nothing to do with wide text goes on to work.
#if !defined(__SIZEOF_WCHAR_T__)
#define ZARNEX_WIDE
#elif defined(_WIN32) && __SIZEOF_WCHAR_T__ != 2
#define ZARNEX_WIDE __attribute__((abi_tag("wchar_t_of_4_bytes")))
#elif !defined(_WIN32) && __SIZEOF_WCHAR_T__ != 4
#define ZARNEX_WIDE __attribute__((abi_tag("wchar_t_of_2_bytes")))
#else
#define ZARNEX_WIDE
#endif

// Declared here once for the headers that need no more: a mark belongs to all declarations.
class ZARNEX_WIDE ZString;
class ZARNEX_WIDE ZGenericString;

/// A condition that hardly ever holds. The hint keeps compilers from turning the
/// branch into a conditional move, which would slow each step along a list.
#if defined(__GNUC__)
#define ZARNEX_UNLIKELY(condition) __builtin_expect((condition) ? 1 : 0, 0)
#else
#define ZARNEX_UNLIKELY(condition) (condition)
#endif
