#include <zarnex/units/internal/tokenTables.h>

namespace zarnex::detail {

namespace {

constexpr Automaton automaton = buildAutomaton(tokenRules);

static_assert(automaton.rule[Automaton::start] == Automaton::noRule &&
                  !automaton.last[Automaton::start],
              "every walk takes a character");
static_assert(automaton.rule[Automaton::dead] == Automaton::noRule &&
                  automaton.last[Automaton::dead],
              "every walk ends in the dead state");
static_assert(automaton.classOf[0] == 0 && automaton.classOf['A'] == 0,
              "no token holds a zero byte or a capital");

constexpr std::array<std::uint8_t, 128> foldedClasses() {
    std::array<std::uint8_t, 128> classes{};
    for (std::size_t c = 0; c < classes.size(); ++c)
        classes[c] = automaton.classOf[c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c];
    return classes;
}

} // namespace

constinit const Automaton tokenAutomaton = automaton;
constinit const std::array<std::uint8_t, 128> typedClasses = foldedClasses();

} // namespace zarnex::detail
