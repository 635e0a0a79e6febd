#pragma once

/// Tables that recognise the tokens of a list of rules, made at compile time.

#include <zarnex/units/internal/tokenRules.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace zarnex::detail {

/// A deterministic automaton over bytes.
///
/// It begins in `start` and moves to `next[state][classOf[byte]]`. What it has
/// read is a token of rule number `rule[state]`, unless that is `noRule`.
struct Automaton {
    static constexpr std::size_t maxStates = 128;
    static constexpr std::size_t maxClasses = 32;
    static constexpr std::uint8_t start = 0;
    static constexpr std::uint8_t dead = 1; ///< no token begins like this
    static constexpr std::uint8_t noRule = 255;

    std::array<std::uint8_t, 256> classOf{}; ///< 0 for bytes that are in no token
    std::array<std::array<std::uint8_t, maxClasses>, maxStates> next{};
    std::array<std::uint8_t, maxStates> rule{};
    std::array<bool, maxStates> last{}; ///< every move from here leads to `dead`
};

/// A set of numbers below 256.
struct PositionSet {
    std::array<std::uint64_t, 4> words{};

    constexpr bool has(std::size_t i) const {
        return (words[i / 64] >> (i % 64) & 1) != 0;
    }
    constexpr void insert(std::size_t i) {
        words[i / 64] |= std::uint64_t{1} << (i % 64);
    }
    constexpr bool isEmpty() const {
        return (words[0] | words[1] | words[2] | words[3]) == 0;
    }
    constexpr void unite(const PositionSet& other) {
        for (std::size_t w = 0; w < words.size(); ++w)
            words[w] |= other.words[w];
    }
    constexpr PositionSet common(const PositionSet& other) const {
        return {{words[0] & other.words[0], words[1] & other.words[1], words[2] & other.words[2],
                 words[3] & other.words[3]}};
    }
    constexpr bool equals(const PositionSet& other) const {
        return words[0] == other.words[0] && words[1] == other.words[1] &&
               words[2] == other.words[2] && words[3] == other.words[3];
    }
};

/// The places in the rules at which a reader can stand. Place 0 is before all
/// text; every other one is just behind one character of one rule.
class Positions {
public:
    constexpr explicit Positions(std::span<const TokenRule> rules) {
        rule_.fill(Automaton::noRule);
        for (std::size_t rule = 0; rule < rules.size(); ++rule) {
            PositionSet at;
            at.insert(0);
            for (const TokenStep& step : rules[rule].steps)
                at = addStep(step, at);
            for (std::size_t p = 1; p < count_; ++p) // not 0: no token is empty
                if (at.has(p))
                    rule_[p] = static_cast<std::uint8_t>(rule);
        }
    }

    /// The places just behind a byte, whatever stands before it.
    constexpr const PositionSet& behind(std::size_t byte) const {
        return behind_[byte];
    }

    /// The places one character on from any of `from`.
    constexpr PositionSet after(const PositionSet& from) const {
        PositionSet reached;
        for (std::size_t p = 0; p < count_; ++p)
            if (from.has(p))
                reached.unite(after_[p]);
        return reached;
    }

    /// The first rule whose text is complete at one of `at`, or Automaton::noRule.
    constexpr std::uint8_t firstRule(const PositionSet& at) const {
        std::uint8_t first = Automaton::noRule;
        for (std::size_t p = 0; p < count_; ++p)
            if (at.has(p) && rule_[p] < first)
                first = rule_[p];
        return first;
    }

private:
    constexpr PositionSet addChar(std::string_view chars, const PositionSet& from) {
        const std::size_t here = count_++;
        for (std::size_t p = 0; p < here; ++p)
            if (from.has(p))
                after_[p].insert(here);
        for (const char c : chars)
            behind_[static_cast<unsigned char>(c)].insert(here);
        PositionSet reached;
        reached.insert(here);
        return reached;
    }

    constexpr PositionSet addStep(const TokenStep& step, const PositionSet& from) {
        if (step.count == 0)
            return from;
        if (step.kind == TokenStep::word)
            return addWords(step, from);
        PositionSet reached = addChar(step.texts[0], from);
        if (step.kind != TokenStep::maybeChar)
            after_[count_ - 1].insert(count_ - 1);
        if (step.kind != TokenStep::someChars)
            reached.unite(from);
        return reached;
    }

    constexpr PositionSet addWords(const TokenStep& step, const PositionSet& from) {
        PositionSet reached;
        for (int i = 0; i < step.count; ++i) {
            const std::string_view text = step.texts[static_cast<std::size_t>(i)];
            PositionSet at = from;
            for (std::size_t c = 0; c < text.size(); ++c)
                at = addChar(text.substr(c, 1), at);
            reached.unite(at);
        }
        return reached;
    }

    std::size_t count_ = 1;
    std::array<PositionSet, 256> after_{};
    std::array<PositionSet, 256> behind_{};
    std::array<std::uint8_t, 256> rule_{};
};

/// The automaton of `rules`, at most 254. Rules that need more room than
/// Automaton or PositionSet has are refused by the compiler.
///
/// A state is the set of places that a reader of the rules can have reached;
/// the empty set is `dead`. Bytes that the rules never tell apart share a class.
///
/// Source: Aho, Lam, Sethi, Ullman, "Compilers: Principles, Techniques, and
/// Tools", 2nd edition, section 3.9.5, "Converting a Regular Expression Directly
/// to a DFA".
constexpr Automaton buildAutomaton(std::span<const TokenRule> rules) {
    const Positions positions(rules);
    Automaton made;

    std::array<std::size_t, Automaton::maxClasses> byteOf{}; // one of each class
    std::size_t classes = 1;
    for (std::size_t byte = 0; byte < 256; ++byte) {
        if (positions.behind(byte).isEmpty())
            continue;
        std::size_t k = 1;
        while (k < classes && !positions.behind(byteOf[k]).equals(positions.behind(byte)))
            ++k;
        if (k == classes)
            byteOf[classes++] = byte;
        made.classOf[byte] = static_cast<std::uint8_t>(k);
    }

    std::array<PositionSet, Automaton::maxStates> at{};
    at[Automaton::start].insert(0);
    std::size_t states = 2;
    for (std::size_t state = 0; state < states; ++state) {
        const PositionSet after = positions.after(at[state]);
        made.next[state][0] = Automaton::dead;
        for (std::size_t k = 1; k < classes; ++k) {
            const PositionSet reached = after.common(positions.behind(byteOf[k]));
            std::size_t to = Automaton::dead;
            if (!reached.isEmpty())
                for (to = 2; to < states && !at[to].equals(reached);)
                    ++to;
            if (to == states)
                at[states++] = reached;
            made.next[state][k] = static_cast<std::uint8_t>(to);
        }
        made.rule[state] = positions.firstRule(at[state]);
        made.last[state] = after.isEmpty();
    }
    return made;
}

} // namespace zarnex::detail
