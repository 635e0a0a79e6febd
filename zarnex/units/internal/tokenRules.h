#pragma once

/// The language of typed quantities, as data: the one place that says which
/// texts are tokens. internal/automaton.h turns it into tables at compile time.

#include <zarnex/units/unitIds.h>

#include <array>
#include <string_view>

namespace zarnex::detail {

/// A piece of a token's text.
struct TokenStep {
    enum Kind {
        word,      ///< one of `texts`; the empty text may be among them
        maybeChar, ///< at most one character out of texts[0]
        anyChars,  ///< any number of them, also none
        someChars, ///< at least one of them
    };
    Kind kind = word;
    int count = 0; ///< of `texts` in use; 0 is a step that is not there
    std::array<std::string_view, 5> texts{};
};

template <class... Texts>
constexpr TokenStep oneOf(Texts... texts) {
    return {TokenStep::word, sizeof...(texts), {texts...}};
}
constexpr TokenStep maybe(std::string_view chars) {
    return {TokenStep::maybeChar, 1, {chars}};
}
constexpr TokenStep many(std::string_view chars) {
    return {TokenStep::anyChars, 1, {chars}};
}
constexpr TokenStep some(std::string_view chars) {
    return {TokenStep::someChars, 1, {chars}};
}

/// A token's text is made of the steps in their order, and is never empty.
struct TokenRule {
    int token;
    std::array<TokenStep, 5> steps;
};

/// The token of text that is read over.
inline constexpr int skippedToken = -1;

inline constexpr std::string_view signs = "+-";
inline constexpr std::string_view digits = "0123456789";

/// Of two rules for the same text the earlier one wins. Letters are lower-case
/// here because the scanner lower-cases what it reads. A blank in a word is
/// exactly one blank: no tab, no second one.
inline constexpr TokenRule tokenRules[] = {
    {unitSquareCentimeter,
     {oneOf("/", "per"), oneOf(" "), oneOf("sq", "square"), oneOf(" "),
      oneOf("", "cm", "centi", "centimeter", "centimeters")}},
    {unitSpi, {oneOf("spi", "stitch", "stitches", "stitches per inch")}},
    {unitMillimeter, {oneOf("mm", "milli", "millimeter", "millimeters")}},
    {unitCentimeter, {oneOf("cm", "centi", "centimeter", "centimeters")}},
    {unitInch, {oneOf("\"", "in", "inch", "inches")}},
    {unitEmbPoint, {oneOf("p", "pt", "point", "points")}},
    {unitNumber, {maybe(signs), many(digits)}}, // a lone sign too
    {unitNumber, {maybe(signs), many(digits), oneOf("."), some(digits)}},
    {skippedToken, {some(" \t\n")}},
};

} // namespace zarnex::detail
