/// zarnex-stitchplan: a motif into stitches.
///
/// A host program of the library, to read and to copy from. readMotif.cpp takes typed
/// quantities to points, plan.cpp turns and scales them by transforms, sections.cpp clips
/// rows with the intersection functions, and summary.cpp shows quantities again.

#include "stitchplan/arguments.h"
#include "stitchplan/picture.h"
#include "stitchplan/plan.h"
#include "stitchplan/readMotif.h"
#include "stitchplan/summary.h"

#include "host/CommandLine.h"
#include "host/Messages.h"
#include "host/NewFile.h"
#include "host/Output.h"
#include "host/paths.h"
#include "host/platform.h"
#include "host/utf8.h"

#include <exception>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace stitchplan {

using namespace host;

namespace {

enum Status { planned = 0, atFault = 2 };

std::string readWhole(const std::string& path) {
    std::string text;
    try {
        const int file = openInput(path);
        std::vector<char> chunk(1 << 16);
        while (const std::size_t count = platform::readSome(file, chunk.data(), chunk.size())) {
            text.append(chunk.data(), count);
            if (text.size() > mostMotifBytes)
                throw std::runtime_error(inputName(path) + ": more than " +
                                         std::to_string(mostMotifBytes >> 20) + " MiB is no motif");
        }
    } catch (const std::system_error& error) {
        throw cannotRead(path, error);
    }
    return text;
}

Plan makePlan(const Arguments& arguments, Messages& messages) {
    const std::string text = readWhole(arguments.motif);
    const std::vector<std::string_view> lines = linesOf(text);
    try {
        return planStitches(readMotif(lines),
                            [&](int needles) { messages.progress(needles, "needle points"); });
    } catch (const MotifError& error) {
        const std::string name = inputName(arguments.motif);
        if (error.line == 0)
            throw std::runtime_error(name + ": " + error.what());
        throw std::runtime_error(name + ':' + std::to_string(error.line) + ": " + error.what() +
                                 ": " + quoted(lines[static_cast<std::size_t>(error.line) - 1]));
    }
}

/// Calls `use` and says which picture cannot be written if it fails.
template <class Use>
void withPicture(const std::string& path, Use use) {
    try {
        use();
    } catch (const std::system_error& error) {
        throw cannotWrite(path, error);
    }
}

// The picture takes its place last, so that nothing is replaced when the output fails.
void plan(const Arguments& arguments, Output& output, Messages& messages) {
    const Plan plan = makePlan(arguments, messages);
    std::string summary = summaryOf(plan);
    std::optional<NewFile> picture;
    const std::string& path = arguments.picture;
    if (!path.empty()) {
        if (platform::isSameFile(path, arguments.motif))
            throw std::runtime_error("the picture would replace the motif " + shownPath(path));
        withPicture(path, [&] {
            picture.emplace(path);
            drawPicture(
                plan, [&](std::string_view piece) { picture->write(piece); },
                [&](int needles) { messages.progress(needles, "needle points drawn"); });
            picture->flush();
        });
        summary += "picture     " + shownPath(path) + '\n';
    }
    messages.clearProgress();
    output.add(summary);
    output.flush();
    if (picture)
        withPicture(path, [&] { picture->commit(); });
}

void run(const Arguments& arguments, Output& output, Messages& messages) {
    switch (arguments.task) {
    case Arguments::Task::help:
        output.add(helpText);
        break;
    case Arguments::Task::motifHelp:
        output.add(motifHelpText);
        break;
    case Arguments::Task::version:
        output.add(PROGRAM_NAME " " PROGRAM_VERSION "\n");
        break;
    default:
        plan(arguments, output, messages);
    }
    output.flush();
}

} // namespace

} // namespace stitchplan

int main(int argc, char** argv) {
    using namespace stitchplan;
    platform::prepareStreams();
    Output output;
    Messages messages(PROGRAM_NAME, false);
    try {
        run(parseArguments(platform::arguments(argc, argv)), output, messages);
        return planned;
    } catch (const UsageError& error) {
        messages.say(std::string(error.what()) + "; " PROGRAM_NAME " --help tells more");
    } catch (const std::bad_alloc&) {
        messages.say("not enough memory");
    } catch (const std::exception& error) {
        messages.say(error.what());
    }
    return atFault;
}
