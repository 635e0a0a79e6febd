#include "units/LineEditor.h"
#include "units/LineReader.h"

#include "host/Reading.h"
#include "host/platform.h"

#include <string_view>
#include <utility>

namespace units {

using namespace host;

const char* const LineEditor::help = "";

struct LineEditor::State {
    std::string prompt;
    LineReader lines{platform::standardInput, mostTextBytes, [] {}};
};

LineEditor::LineEditor(std::string prompt) : state_(std::make_unique<State>()) {
    state_->prompt = std::move(prompt);
}

LineEditor::~LineEditor() = default;

bool LineEditor::next(std::string& line) {
    platform::writeAll(platform::standardOutput, state_->prompt.data(), state_->prompt.size());
    std::string_view read;
    const bool found = state_->lines.next(read);
    line = read;
    return found;
}

} // namespace units
