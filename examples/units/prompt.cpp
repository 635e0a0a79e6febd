#include "units/prompt.h"

#include "units/LineEditor.h"
#include "units/rendering.h"

#include "common/Reading.h"
#include "common/unitNames.h"

#include <string>

namespace units {

using namespace host;

namespace {

std::string trimmed(const std::string& line) {
    constexpr const char* blanks = " \t";
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return line.substr(first, line.find_last_not_of(blanks) + 1 - first);
}

std::string help(int bareUnit) {
    return "Type a number and a unit, such as 2.5 mm, 3\" or 40 per sq cm; a number alone\n"
           "counts in " +
           std::string(unitName(bareUnit)) +
           ". The units are mm, cm, in, pt, spi, per sq cm, mm/s and cm/s.\n" + LineEditor::help +
           "\"quit\" ends.\n";
}

std::string answer(const std::string& text, int bareUnit) {
    const Reading reading(text, bareUnit);
    std::string lines;
    if (!reading.problem.empty() || !reading.ignored.empty())
        lines = checked(text, reading);
    if (reading.problem.empty())
        lines += listed(reading.quantity, zarnex::unitNone);
    return lines;
}

} // namespace

void askForQuantities(int bareUnit, Output& output) {
    LineEditor editor("> ");
    output.add("Type a quantity such as 2.5 mm, or \"help\", or \"quit\".\n");
    output.flush();
    for (std::string line; editor.next(line);) {
        const std::string text = trimmed(line);
        if (text == "quit" || text == "exit")
            return;
        if (!text.empty())
            output.add(text == "help" || text == "?" ? help(bareUnit) : answer(text, bareUnit));
        output.flush();
    }
    output.add("\n"); // the user's last line has no end
}

} // namespace units
