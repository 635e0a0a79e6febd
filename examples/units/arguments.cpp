#include "arguments.h"

#include "common/unitNames.h"
#include "common/utf8.h"

#include <cstddef>

namespace units {

using namespace host;

const char* const helpText =
    R"(Usage: zarnex-units [--unit UNIT] TEXT... [UNIT]
       zarnex-units [--unit UNIT] --check TEXT...
       zarnex-units [--unit UNIT] --file FILE | -

Converts typed quantities such as "2.5 mm", 3" and "6 stitches".

A TEXT is one quantity; quote it. It is printed in every unit that it converts
to, or in UNIT alone: the unit, the display text and the exact number.

  --check      say of each TEXT whether it is valid and what was seen in it
  --file FILE  read a quantity a line and write a table between tabs; "-" stands
               for the standard input. Blank lines and lines that begin with "#"
               are skipped.
  --unit UNIT  what a number without a unit counts in; mm if not given
  --           what follows are texts
  --help, --version

UNIT is mm, cm, in, pt, spi, "per sq cm", mm/s, cm/s or another word for one.
The status is 0 if all texts are valid, 1 if not, 2 if the call, the file or the
output is at fault. Words that are no units, as in "3 ft" and "50 %", are ignored:
the number counts as it does without them, and what was ignored is said. Fractions are
not read: "1 1/2 in" is 1 mm.

  zarnex-units "2.5 mm"
  zarnex-units "1 in extra" --check
  zarnex-units --unit in --file lengths.txt > lengths.tsv
)";

namespace {

int unitFrom(const std::string& word) {
    const int unit = unitOfWord(word);
    if (unit == zarnex::unitNone)
        throw UsageError("not a unit: " + quoted(word));
    return unit;
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& given) {
    using Task = Arguments::Task;
    Arguments arguments;
    const auto setTask = [&arguments](Task task) {
        if (arguments.task != Task::list)
            throw UsageError("more than one of --check, --file and -");
        arguments.task = task;
    };

    bool optionsOver = false;
    for (std::size_t i = 0; i < given.size(); ++i) {
        const std::string& text = given[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == given.size())
                throw UsageError(text + " needs a value");
            return given[++i];
        };
        if (optionsOver || (text.substr(0, 2) != "--" && text != "-" && text != "-h")) {
            arguments.texts.push_back(text);
        } else if (text == "--") {
            optionsOver = true;
        } else if (text == "--help" || text == "-h" || text == "--version") {
            arguments.task = text == "--version" ? Task::version : Task::help;
            return arguments;
        } else if (text == "--check") {
            setTask(Task::check);
        } else if (text == "-") {
            setTask(Task::table);
            arguments.file = text;
        } else if (text == "--file") {
            setTask(Task::table);
            arguments.file = value();
        } else if (text == "--unit") {
            arguments.bareUnit = unitFrom(value());
            arguments.bareUnitGiven = true;
        } else {
            throw UsageError("not an option: " + quoted(text));
        }
    }

    if (arguments.task == Task::table && !arguments.texts.empty())
        throw UsageError("both a file and texts");
    if (arguments.task == Task::list && arguments.texts.size() > 1) {
        arguments.to = unitOfWord(arguments.texts.back());
        if (arguments.to != zarnex::unitNone)
            arguments.texts.pop_back();
    }
    if (arguments.task != Task::table && arguments.texts.empty())
        throw UsageError("no quantity");
    return arguments;
}

} // namespace units
