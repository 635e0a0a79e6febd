#pragma once

#include <string_view>
#include <vector>

namespace stitchplan {

/// `text` without the blanks around it.
inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\f";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// The pieces of `text` between separators, one more than there are separators.
inline std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

/// Takes the first word, up to a blank, off `text` with the blanks around it.
inline std::string_view takeWord(std::string_view& text) {
    text = trimmed(text);
    const std::string_view word = text.substr(0, text.find_first_of(" \t\f"));
    text = trimmed(text.substr(word.size()));
    return word;
}

} // namespace stitchplan
