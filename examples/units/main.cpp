/// zarnex-units: typed quantities in every unit.
///
/// A host program of the library, to read and to copy from: Reading runs the
/// scanner, Quantity.h converts, rendering.cpp displays.

#include "units/LineReader.h"
#include "units/arguments.h"
#include "units/prompt.h"
#include "units/rendering.h"

#include "host/CommandLine.h"
#include "host/Messages.h"
#include "host/Output.h"
#include "host/Reading.h"
#include "host/paths.h"
#include "host/platform.h"
#include "host/unitNames.h"
#include "host/utf8.h"

#include <exception>
#include <string>
#include <system_error>

namespace units {

using namespace host;

namespace {

enum Status { allValid = 0, someInvalid = 1, atFault = 2 };

// One text, under a heading if there are several.
Status list(const std::string& text, const Arguments& arguments, bool heading, Output& output,
            Messages& messages) {
    const Reading reading(text, arguments.bareUnit);
    if (!reading.problem.empty()) {
        messages.cannotRead("", text, reading.problem);
        return someInvalid;
    }
    if (arguments.to != zarnex::unitNone && !arguments.bareUnitGiven && reading.unitText.empty()) {
        // As in `zarnex-units 2.5 in`, which may well mean 2.5 inches.
        messages.cannotRead("", text, "no unit; quote number and unit together, or use --unit");
        return someInvalid;
    }
    const std::string unit = unitName(reading.unit);
    if (!reading.ignored.empty())
        messages.say(quoted(text) + ": read as " + digitsOf(reading.number) + ' ' + unit +
                     ", ignored " + quoted(reading.ignored));

    const std::string lines = listed(reading.quantity, arguments.to);
    if (lines.empty()) {
        messages.say(quoted(text) + ": " + unit + " does not convert to " + unitName(arguments.to));
        return someInvalid;
    }
    output.add((heading ? quoted(text) + ":\n" : "") + lines);
    output.flush(); // lists and messages in step
    return allValid;
}

Status listAll(const Arguments& arguments, Output& output, Messages& messages) {
    Status status = allValid;
    for (const std::string& text : arguments.texts)
        if (list(text, arguments, arguments.texts.size() > 1, output, messages) != allValid)
            status = someInvalid;
    return status;
}

Status checkAll(const Arguments& arguments, Output& output) {
    Status status = allValid;
    for (const std::string& text : arguments.texts) {
        const Reading reading(text, arguments.bareUnit);
        output.add(checked(text, reading));
        if (!reading.problem.empty())
            status = someInvalid;
    }
    return status;
}

bool isSkipped(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r\v\f");
    return first == std::string_view::npos || line[first] == '#';
}

Status makeTable(const Arguments& arguments, Output& output, Messages& messages) {
    Status status = allValid;
    const std::string name = inputName(arguments.file);
    try {
        LineReader reader(openInput(arguments.file), mostTextBytes, [&output] { output.flush(); });
        output.add(tableHeader());
        std::string row;
        for (std::string_view line; reader.next(line);) {
            if (isSkipped(line))
                continue;
            const Reading reading(line, arguments.bareUnit);
            row.clear();
            appendTableRow(row, reader.lineNumber(), line, reading);
            output.add(row);
            if (!reading.problem.empty()) {
                output.flush(); // rows and messages in step
                messages.cannotRead(name + ':' + std::to_string(reader.lineNumber()) + ": ", line,
                                    reading.problem);
                status = someInvalid;
            }
            messages.progress(reader.lineNumber(), "lines");
        }
    } catch (const std::system_error& error) {
        output.flush();
        throw cannotRead(arguments.file, error);
    }
    messages.clearProgress();
    return status;
}

Status run(const Arguments& arguments, Output& output, Messages& messages) {
    switch (arguments.task) {
    case Arguments::Task::check:
        return checkAll(arguments, output);
    case Arguments::Task::table:
        return makeTable(arguments, output, messages);
    case Arguments::Task::prompt:
        if (!platform::isTerminal(platform::standardInput) ||
            !platform::isTerminal(platform::standardOutput))
            throw UsageError(noQuantity);
        askForQuantities(arguments.bareUnit, output);
        return allValid;
    case Arguments::Task::help:
        output.add(helpText);
        return allValid;
    case Arguments::Task::version:
        output.add(PROGRAM_NAME " " PROGRAM_VERSION "\n");
        return allValid;
    default:
        return listAll(arguments, output, messages);
    }
}

} // namespace

} // namespace units

int main(int argc, char** argv) {
    using namespace units;
    platform::prepareStreams();
    Output output;
    Messages messages(PROGRAM_NAME, true);
    try {
        const Arguments arguments = parseArguments(platform::arguments(argc, argv));
        const Status status = run(arguments, output, messages);
        output.flush();
        return status;
    } catch (const UsageError& error) {
        messages.say(std::string(error.what()) + "; " PROGRAM_NAME " --help tells more");
    } catch (const std::exception& error) {
        messages.say(error.what());
    }
    return atFault;
}
