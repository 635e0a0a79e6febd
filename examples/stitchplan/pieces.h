#pragma once

#include "host/trimming.h"

#include <string_view>
#include <vector>

namespace stitchplan {

/// What stands between the words of a motif, and may stand around all that is in it.
inline constexpr std::string_view blanks = " \t\f";

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
    text = host::trimmed(text, blanks);
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text = host::trimmed(text.substr(word.size()), blanks);
    return word;
}

} // namespace stitchplan
