#include "units/LineEditor.h"

#include "host/Reading.h"

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

#include <editline/readline.h>
#include <langinfo.h>
#include <sys/stat.h>

// NOLINTBEGIN(concurrency-mt-unsafe): the program has one thread

namespace units {

namespace {

constexpr int mostKept = 1000; // lines

volatile std::sig_atomic_t interrupted = 0;

void interrupt(int) {
    interrupted = 1;
}

// Where the history stands; empty where there is no place for it.
std::string historyPath() {
    const char* const state = std::getenv("XDG_STATE_HOME");
    const char* const home = std::getenv("HOME");
    std::string folder;
    if (state != nullptr && state[0] == '/')
        folder = state;
    else if (home != nullptr && home[0] == '/')
        folder = std::string(home) + "/.local/state";
    else
        return {};
    return folder + "/zarnex/units_history";
}

// Makes the folders above a file, for the user alone; those that are there stay as they are.
void makeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != std::string::npos;
         end = path.find('/', end + 1))
        mkdir(path.substr(0, end).c_str(), 0700);
}

} // namespace

const char* const LineEditor::help = "The arrow keys bring back what was typed.\n";

struct LineEditor::State {
    std::string prompt;
    std::string history; ///< its path
    std::string last;    ///< line in it
};

LineEditor::LineEditor(std::string prompt) : state_(std::make_unique<State>()) {
    // The library takes what is typed by the locale, the program as UTF-8.
    if (std::setlocale(LC_CTYPE, "") == nullptr ||
        std::string_view(nl_langinfo(CODESET)) != "UTF-8")
        std::setlocale(LC_CTYPE, "C.UTF-8");
    state_->prompt = std::move(prompt);
    state_->history = historyPath();
    rl_readline_name = "zarnex-units";
    struct sigaction giveUp {};
    giveUp.sa_handler = interrupt; // and no SA_RESTART: the reading must end
    sigaction(SIGINT, &giveUp, nullptr);
    rl_initialize();
    rl_bind_key('\t', rl_insert); // a blank, no names of files
    stifle_history(mostKept);
    if (!state_->history.empty())
        read_history(state_->history.c_str());
}

LineEditor::~LineEditor() = default;

bool LineEditor::next(std::string& line) {
    struct Free {
        void operator()(char* text) const {
            std::free(text);
        }
    };
    std::unique_ptr<char, Free> typed;
    for (;;) {
        interrupted = 0;
        typed.reset(readline(state_->prompt.c_str()));
        if (typed != nullptr || interrupted == 0)
            break;
        std::fputc('\n', stdout); // Ctrl-C gives up the line, not the prompt
    }
    if (typed == nullptr)
        return false;
    line = typed.get();
    if (line.find_first_not_of(" \t") != std::string::npos && line != state_->last &&
        line.size() <= host::mostTextBytes) {
        add_history(line.c_str());
        state_->last = line;
        if (!state_->history.empty()) { // at once: a signal may end the program
            makeFolders(state_->history);
            write_history(state_->history.c_str());
        }
    }
    return true;
}

} // namespace units

// NOLINTEND(concurrency-mt-unsafe)
