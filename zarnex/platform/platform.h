#pragma once

/// What the library asks of the operating system, as plain functions.
///
/// posix/ and windows/ each define all of them; nothing else in the library
/// calls the system. Not installed.

#include <zarnex/platform/PlatformLock.h>
#include <zarnex/platform/records.h>

#include <cstddef>

namespace zarnex::platform {

/// Makes, destroys, takes and releases the recursive lock in `lock`.
void createLock(PlatformLock& lock);
void destroyLock(PlatformLock& lock);
void takeLock(PlatformLock& lock);
void releaseLock(PlatformLock& lock);

/// Code pages by number, as Windows counts them.
inline constexpr unsigned int ansiCodePage = 0; ///< the system's own; UTF-8 on Linux
inline constexpr unsigned int utf8CodePage = 65001;

/// Converts `count` bytes at `text` (up to and with the terminator for -1) to
/// wide text.
///
/// Returns the wide units written, or with `room` 0 the number needed. Returns
/// 0 on failure: too little room (as much as fits is written then), an unknown code
/// page, a count of 0, null. Ill-formed UTF-8 becomes U+FFFD, by one rule on both
/// platforms; other code pages have replacements of their own.
int bytesToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room);

/// How many wide units `count` bytes hardly ever exceed: what to make room for before
/// bytesToWide() is tried.
std::size_t likelyWideUnits(unsigned int codePage, const char* text, std::size_t count);

/// The mirror image of bytesToWide. A unit that the code page cannot hold
/// becomes the code page's replacement, mostly '?', in UTF-8 U+FFFD.
int wideToBytes(unsigned int codePage, const wchar_t* text, int count, char* out, int room);

/// The number of bytes of the character of the system code page that starts at
/// `text`, and 1 at the terminator. Never counts a terminator to a character; an
/// ill-formed sequence counts as what becomes one U+FFFD.
int characterBytes(const char* text);

/// Sets metrics.cbSize to 504 and reads the system's non-client metrics into the
/// rest. False where the system has none.
bool readNonClientMetrics(NONCLIENTMETRICSW& metrics);

/// Makes a new random GUID of version 4, on any number of threads and in forked
/// processes too. False, with a `guid` of zeros, where the system has no randomness.
bool createGuid(GUID& guid);

inline constexpr int guidTextSize = 37; ///< 36 digits and hyphens, and the terminator

/// Writes the text form in lower case, without braces. False on failure, which
/// leaves `text` alone.
bool guidToText(const GUID& guid, wchar_t (&text)[guidTextSize]);

/// Reads the text form, in either case. False for every other text, also for one
/// with braces, blanks or anything behind it, which leaves `guid` alone.
bool guidFromText(const wchar_t* text, GUID& guid);

} // namespace zarnex::platform
