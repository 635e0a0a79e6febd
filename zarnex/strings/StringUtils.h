#pragma once

/// @file
/// StringUtils, and the size that stands for no answer.

#include <zarnex/config.h>

#include <cstddef>

namespace zarnex {

/// What the sizes of StringUtils say when there is no answer: all bits set.
inline constexpr std::size_t errorSize = ~std::size_t{0};

} // namespace zarnex

/// Sizes, bounded copies and paths of plain null-terminated text: 8-bit text in
/// the system code page (UTF-8 on Linux) and wide text.
///
/// Sizes include the terminator and count in the unit that the function names.
/// Room is what a destination holds, terminator included. zarnex::errorSize
/// stands for a null argument or a failed conversion. Nothing locks, throws or
/// allocates.
class ZARNEX_API ZARNEX_WIDE StringUtils {
public:
    /// Units up to and with the terminator; the error size for null.
    /// @{
    static std::size_t bufferSize(const char* text);
    static std::size_t bufferSize(const wchar_t* text);
    /// @}

    /// Bytes that `text` takes in the system code page, terminator included.
    /// @{
    static std::size_t multiByteSize(const char* text);
    static std::size_t multiByteSize(const wchar_t* text);
    /// @}

    /// Wide units that `text` takes, terminator included.
    /// @{
    static std::size_t unicodeSize(const char* text);
    static std::size_t unicodeSize(const wchar_t* text);
    /// @}

    /// Characters without the terminator: of 8-bit text the multibyte
    /// characters, of wide text the units.
    /// @{
    static std::size_t stringLength(const char* text);
    static std::size_t stringLength(const wchar_t* text);
    /// @}

    /// Copies `text` into `out`, converting between the encodings.
    ///
    /// Returns the size that `text` needs; of a conversion the units written
    /// instead, terminator included, or the error size when it did not fit. What
    /// is left in `out` is always terminated, cut at `room` - 1 units, and
    /// out[room - 1] is a terminator. With `out` null or `room` 0 nothing is
    /// written and the size in the unit of `text` returned.
    /// @{
    static std::size_t copyString(char* out, const char* text, std::size_t room);
    static std::size_t copyString(char* out, const wchar_t* text, std::size_t room);
    static std::size_t copyString(wchar_t* out, const char* text, std::size_t room);
    static std::size_t copyString(wchar_t* out, const wchar_t* text, std::size_t room);
    /// @}

    /// Appends `text` to the text in `out`, converting and cutting as
    /// copyString() does.
    ///
    /// Returns the length of the text in `out` plus the size of `text` in its own
    /// unit, whether it fitted or not; with `room` 0 nothing is written. Text in
    /// `out` that already fills `room` is left as it is.
    /// @{
    static std::size_t appendString(char* out, const char* text, std::size_t room);
    static std::size_t appendString(char* out, const wchar_t* text, std::size_t room);
    static std::size_t appendString(wchar_t* out, const char* text, std::size_t room);
    static std::size_t appendString(wchar_t* out, const wchar_t* text, std::size_t room);
    /// @}

    /// Splits the first 259 units of `path` into drive, directory, name and
    /// extension, each cut to its room. Null outputs are skipped; a null `path` is empty.
    ///
    /// The drive ends with the last colon, the directory with the last separator
    /// ('/' or '\') behind it; the extension starts at the last dot of what
    /// remains, dot included. So the name keeps its inner dots, and ".profile" is
    /// all extension.
    ///
    ///     "C:\dir.x\file.tar.gz"   ->   "C:"  "\dir.x\"  "file.tar"  ".gz"
    /// @{
    static void splitPath(const char* path, char* drive, std::size_t driveRoom, char* dir,
                          std::size_t dirRoom, char* name, std::size_t nameRoom, char* ext,
                          std::size_t extRoom);
    static void splitPath(const wchar_t* path, wchar_t* drive, std::size_t driveRoom, wchar_t* dir,
                          std::size_t dirRoom, wchar_t* name, std::size_t nameRoom, wchar_t* ext,
                          std::size_t extRoom);
    /// @}

    /// Builds a path from parts, of which each may be null or empty. Adds a colon
    /// behind a drive without one, '\' behind a directory without separator, and
    /// a dot in front of an extension without one. Cut to `room`. Nothing for a null `out` and
    /// for no room.
    /// @{
    static void makePath(char* out, std::size_t room, const char* drive, const char* dir,
                         const char* name, const char* ext);
    static void makePath(wchar_t* out, std::size_t room, const wchar_t* drive, const wchar_t* dir,
                         const wchar_t* name, const wchar_t* ext);
    /// @}

    /// Replaces the extension of `path` in place; a null or empty `ext` removes
    /// it. Paths are cut to 259 units. Nothing for a null `path` and for no room.
    /// @{
    static void fixname(char* path, std::size_t room, const char* ext);
    static void fixname(wchar_t* path, std::size_t room, const wchar_t* ext);
    /// @}
};
