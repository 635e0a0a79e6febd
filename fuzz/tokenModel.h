#pragma once

/// The language of typed quantities once more, as plain ifs, to compare the scanner with.

#include <cstddef>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace fuzz {

/// Reads tokens as a ZUnitScanner should.
class TokenModel {
public:
    static constexpr std::size_t mostHeld = 99; ///< a token that gets longer ends the process

    explicit TokenModel(const std::wstring& text) {
        for (const wchar_t unit : text)
            bytes_ += scanned(unit);
    }

    /// The next token, or -1 where the library ends the process.
    int next() {
        wordDropped = false;
        for (;; ++end) {
            begin = end;
            if (begin >= bytes_.size())
                return 0;
            int token = 0;
            std::size_t live = 0; // characters that may still belong to a token
            std::size_t length = 0;
            if (isIn(bytes_[begin], " \t\n")) {
                live = length = run(begin, " \t\n");
            } else if ((length = number(live)) > 0) {
                token = 1;
            } else {
                token = word(length);
            }
            if (live > mostHeld)
                return -1;
            if (token != 0) {
                end = begin + length;
                if (token == 1)
                    readValue(length);
                return token;
            }
            if (length > 0)
                end = begin + length - 1;
            else if (begin > 0 && isSpace(bytes_[begin - 1]) && !isSpace(bytes_[begin]))
                wordDropped = true;
        }
    }

    double value = 0.0; ///< of the latest number
    bool wordDropped = false;
    std::size_t begin = 0;
    std::size_t end = 0;

private:
    static bool isIn(char unit, const char* set) {
        for (; *set != '\0'; ++set)
            if (*set == unit)
                return true;
        return false;
    }

    static bool isSpace(char unit) {
        return isIn(unit, " \t\n\r\v\f");
    }

    static char scanned(wchar_t unit) {
        if (unit >= L'A' && unit <= L'Z')
            return static_cast<char>(unit - L'A' + 'a');
        const char low = static_cast<char>(unit & 0xff);
        if (static_cast<unsigned>(unit) > 0xff && isIn(low, "\r\v\f"))
            return '\0';
        return low;
    }

    std::size_t run(std::size_t from, const char* set) const {
        std::size_t to = from;
        while (to < bytes_.size() && isIn(bytes_[to], set))
            ++to;
        return to - from;
    }

    // The length of the number at `begin`, 0 for none.
    std::size_t number(std::size_t& live) const {
        const char* const digits = "0123456789";
        std::size_t at = begin;
        if (isIn(bytes_[at], "+-"))
            ++at;
        at += run(at, digits);
        std::size_t length = live = at - begin;
        if (at < bytes_.size() && bytes_[at] == '.') {
            const std::size_t decimals = run(at + 1, digits);
            live += 1 + decimals;
            if (decimals > 0)
                length = live;
        }
        return length;
    }

    void readValue(std::size_t length) {
        const std::string text = bytes_.substr(begin, length);
        if (text != "+" && text != "-") // keeps the latest number
            value = std::strtod(text.c_str(), nullptr);
    }

    // The longest unit word at `begin`, 0 for none.
    int word(std::size_t& length) const {
        int token = 0;
        for (const auto& [unit, text] : words()) {
            if (text.size() > length && bytes_.compare(begin, text.size(), text) == 0) {
                length = text.size();
                token = unit;
            }
        }
        return token;
    }

    static const std::vector<std::pair<int, std::string>>& words() {
        static const std::vector<std::pair<int, std::string>> words = [] {
            std::vector<std::pair<int, std::string>> made{
                {2, "mm"},    {2, "milli"},   {2, "millimeter"}, {2, "millimeters"},
                {4, "\""},    {4, "in"},      {4, "inch"},       {4, "inches"},
                {5, "p"},     {5, "pt"},      {5, "point"},      {5, "points"},
                {6, "spi"},   {6, "stitch"},  {6, "stitches"},   {6, "stitches per inch"},
                {7, "/ sq "}, {7, "per sq "}, {7, "/ square "},  {7, "per square "},
            };
            for (const char* centimeter : {"cm", "centi", "centimeter", "centimeters"}) {
                made.emplace_back(3, centimeter);
                for (std::size_t i = 16; i < 20; ++i)
                    made.emplace_back(7, made[i].second + centimeter);
            }
            return made;
        }();
        return words;
    }

    std::string bytes_;
};

} // namespace fuzz
