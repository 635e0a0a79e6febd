#pragma once

/// Marks a short member of an exported class template that hosts inline and that
/// the library exports all the same.
///
/// Compilers do not look into a plain member behind an `extern template` line,
/// but they do into an inline one, and call the library's copy where they do not
/// inline it. A mingw-w64 DLL leaves inline members out of an instantiation, so
/// there, in the build of the library alone, the mark is empty.
#if defined(ZARNEX_BUILDING_FOUNDATION) && defined(_WIN32)
#define ZARNEX_TEMPLATE_INLINE
#else
#define ZARNEX_TEMPLATE_INLINE inline
#endif

/// A condition that hardly ever holds. The hint keeps compilers from turning the
/// branch into a conditional move, which would slow each step along a list.
#if defined(__GNUC__)
#define ZARNEX_UNLIKELY(condition) __builtin_expect((condition) ? 1 : 0, 0)
#else
#define ZARNEX_UNLIKELY(condition) (condition)
#endif
