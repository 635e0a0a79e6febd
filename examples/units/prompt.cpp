#include "units/prompt.h"

#include "units/LineEditor.h"
#include "units/rendering.h"

#include "host/Reading.h"
#include "host/trimming.h"
#include "host/unitNames.h"

#include <string>
#include <string_view>

namespace units {

using namespace host;

namespace {

constexpr std::string_view blanks = " \t";

std::string help(int bareUnit) {
    return "Type a number and a unit, such as 2.5 mm, 3\" or 40 per sq cm; a number alone\n"
           "counts in " +
           std::string(unitName(bareUnit)) +
           ". The units are mm, cm, in, pt, spi, per sq cm, mm/s and cm/s.\n" + LineEditor::help +
           "\"quit\" ends.\n";
}

std::string answer(std::string_view text, int bareUnit) {
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
        const std::string_view text = trimmed(std::string_view(line), blanks);
        if (text == "quit" || text == "exit")
            return;
        if (!text.empty())
            output.add(text == "help" || text == "?" ? help(bareUnit) : answer(text, bareUnit));
        output.flush();
    }
    output.add("\n"); // the user's last line has no end
}

} // namespace units
