#pragma once

/// What all readers of typed quantities share: the automaton, a walk through it, and the
/// latest number.

#include <zarnex/units/internal/automaton.h>

namespace zarnex::detail {

/// The tables of tokenRules.
extern const Automaton tokenAutomaton;

/// The class of an ASCII character, where a capital counts as its small letter.
extern const std::array<std::uint8_t, 128> typedClasses;

/// Finds the longest token at one place: step() takes the characters one by one.
class TokenWalk {
public:
    /// Whether no further character can make the token longer.
    bool isOver() const {
        return tokenAutomaton.last[state_];
    }

    /// Takes a character of a class of tokenAutomaton.
    void step(std::uint8_t byteClass) {
        state_ = tokenAutomaton.next[state_][byteClass];
        ++read_;
        if (tokenAutomaton.rule[state_] != Automaton::noRule) {
            length_ = read_;
            rule_ = tokenAutomaton.rule[state_];
        }
    }

    std::uint8_t state() const {
        return state_;
    }

    /// The characters taken.
    int read() const {
        return read_;
    }

    /// The characters of the longest token so far; 0 if there is none.
    int length() const {
        return length_;
    }

    /// That token; there must be one.
    int token() const {
        return tokenRules[rule_].token;
    }

private:
    std::uint8_t state_ = Automaton::start;
    std::uint8_t rule_ = Automaton::noRule;
    int read_ = 0;
    int length_ = 0;
};

/// The number of the latest number token of the process; ZUnitScanner's lock guards it.
extern double scannedNumber;

/// Sets scannedNumber from the text of a number token; a lone sign leaves it alone.
void readNumber(const char* text, const char* end);

} // namespace zarnex::detail
