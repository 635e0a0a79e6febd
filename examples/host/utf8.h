#pragma once

/// Text inside and outside the program: UTF-8 everywhere, wide for the library.

#include <string>
#include <string_view>

namespace host {

/// What nextCharacter() returns for a byte that is no part of UTF-8.
constexpr char32_t illFormed = 0xFFFFFFFF;

/// Takes the first character off `text`, which must not be empty; off ill-formed
/// text one byte.
char32_t nextCharacter(std::string_view& text);

void appendUtf8(std::string& out, char32_t character);

/// A stretch of wide text in UTF-8, without the ZString that zarnex::toUtf8() would take.
std::string toUtf8(std::wstring_view text);

/// Sets `wide` to the text and returns true; false for text that is not UTF-8.
///
/// Characters above U+FFFF, which fill one or two wchar_t after the platform,
/// become U+FFFD: so the library sees the same text everywhere.
bool toWide(std::string_view text, std::wstring& wide);

/// Whether `text` is UTF-8 without control characters other than tabs and form feeds.
bool isText(std::string_view text);

/// Appends `text` as it may be shown on a terminal and in a table: ill-formed bytes
/// are U+FFFD, tabs and control characters blanks, and what follows `most`
/// characters is an ellipsis.
void appendShown(std::string& out, std::string_view text, int most);
std::string shown(std::string_view text, int most);

/// shown() between quotes, cut where a message would grow too long.
std::string quoted(std::string_view text);

} // namespace host
