#include "units/arguments.h"

#include "host/CommandLine.h"
#include "host/unitNames.h"
#include "host/utf8.h"

namespace units {

using namespace host;

const char* const helpText =
    R"(Usage: zarnex-units [--unit UNIT] TEXT... [UNIT]
       zarnex-units [--unit UNIT] --check TEXT...
       zarnex-units [--unit UNIT] --file FILE | -
       zarnex-units [--unit UNIT]

Reads quantities as people type them, such as "2.5 mm", "3 inch" and "6 spi".
Each TEXT is one; it is printed in every unit that it converts to, or in UNIT
alone: the unit, the display text and the exact number. Without a text, and on
a terminal, the program asks for them.

  --check      say of each TEXT whether it is valid and what was seen in it
  --file FILE  make a table of a file with a quantity a line; "-" is the
               standard input
  --unit UNIT  what a number without a unit counts in; mm if not given
  --           what follows are texts
  --help, --version

UNIT is mm, cm, in, pt, spi, "per sq cm", mm/s, cm/s or another word for one.
Status: 0 all texts are valid, 1 some are not, 2 the call, a file or the output
is at fault.

  zarnex-units "2.5 mm"
  zarnex-units --unit in "3" cm    # 3 inches, in cm
  echo 1 in | zarnex-units -
)";

const char* const noQuantity = "no quantity";

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

    CommandLine line(given);
    while (line.next()) {
        const std::string& text = line.text();
        if (line.isDash()) {
            setTask(Task::table);
            arguments.file = text;
        } else if (!line.isOption()) {
            arguments.texts.push_back(text);
        } else if (text == "--help" || text == "-h" || text == "--version") {
            arguments.task = text == "--version" ? Task::version : Task::help;
            return arguments;
        } else if (text == "--check") {
            setTask(Task::check);
        } else if (text == "--file") {
            setTask(Task::table);
            arguments.file = line.value("the name of a file");
        } else if (text == "--unit") {
            arguments.bareUnit = unitFrom(line.value("a unit"));
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
    if (arguments.task == Task::check && arguments.texts.empty())
        throw UsageError(noQuantity);
    if (arguments.task == Task::list && arguments.texts.empty())
        arguments.task = Task::prompt;
    return arguments;
}

} // namespace units
