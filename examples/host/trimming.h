#pragma once

/// What is cut off text that was typed or stands in a file.

#include <string_view>

namespace host {

/// `text` without the `blanks` around it.
template <class Char>
std::basic_string_view<Char> trimmed(std::basic_string_view<Char> text,
                                     std::basic_string_view<Char> blanks) {
    const auto first = text.find_first_not_of(blanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// What may stand at the start of a file in UTF-8.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The text of a file without the mark.
inline std::string_view withoutByteOrderMark(std::string_view text) {
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    return text;
}

/// A line, up to its line feed, without the carriage return in front of that.
inline std::string_view withoutCarriageReturn(std::string_view line) {
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

} // namespace host
