/// Fails each request for memory of each operation, one at a time and from one on, each in a
/// process of its own, and checks that the operation goes on with valid objects or takes a way
/// out that is stated. Writes a Markdown table.

#include "tests/memory/operations.h"

#include <zarnex/runtime/exiting.h>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr int wentOn = 100; // statuses of children that did not end in the library
constexpr int threwBad = 101;
constexpr int invalid = 102;
constexpr int threwOther = 103;

/// What a child tells beside its status, in memory that both see.
struct Told {
    long requests;
    long refusals;
    int exitFlag; // as the exit handlers saw it
};

Told* told = nullptr;

struct Outcome {
    int status; // as from waitpid()
    std::string errors;
};

[[noreturn]] void runChild(const Operation& operation, long failsAt, failing::Mode mode) {
    alarm(60); // an operation that hangs is an outcome as well
    std::atexit([] {
        failing::disarm();
        told->requests = failing::requests();
        told->refusals = failing::refusals();
        told->exitFlag = isExiting();
    });
    int status = threwOther;
    try {
        Trial trial(failsAt, mode);
        operation.perform(trial);
        status = !trial.holds() ? invalid : trial.threw() ? threwBad : wentOn;
    } catch (...) {
        failing::disarm();
    }
    std::exit(status);
}

Outcome run(const Operation& operation, long failsAt, failing::Mode mode) {
    *told = {};
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        close(ends[0]);
        close(ends[1]);
        runChild(operation, failsAt, mode);
    }
    close(ends[1]);
    Outcome outcome{};
    char bytes[256];
    for (ssize_t count; (count = read(ends[0], bytes, sizeof bytes)) > 0;)
        outcome.errors.append(bytes, static_cast<std::size_t>(count));
    close(ends[0]);
    waitpid(child, &outcome.status, 0);
    return outcome;
}

/// The way that an outcome is.
Way wayOf(const Outcome& outcome) {
    if (!WIFEXITED(outcome.status))
        return unstated;
    const bool isQuiet = outcome.errors.empty();
    switch (WEXITSTATUS(outcome.status)) {
    case wentOn:
        return isQuiet && told->exitFlag == 0 ? goesOn : unstated;
    case threwBad:
        return isQuiet && told->exitFlag == 0 ? throwsBad : unstated;
    case 1:
        if (told->exitFlag == 0)
            return unstated;
        if (outcome.errors == "failed alloc\n")
            return endsAlloc;
        return outcome.errors == "1: No space for scanner!\n" ? endsScanner : unstated;
    case 0:
        return isQuiet && told->exitFlag != 0 ? endsSilent : unstated;
    default:
        return unstated;
    }
}

struct Counts {
    int operations = 0;
    long failures = 0;
    long wentOn = 0;
    long ended = 0;
    long threw = 0;
    int faults = 0;
};

void report(const Operation& operation, long failsAt, failing::Mode mode, const Outcome& outcome) {
    std::fprintf(stderr, "%s: request %ld%s: %s %d, exit flag %d, \"%s\"\n", operation.name,
                 failsAt, mode == failing::Mode::one ? "" : " and all behind it",
                 WIFEXITED(outcome.status) ? "status" : "signal",
                 WIFEXITED(outcome.status) ? WEXITSTATUS(outcome.status) : WTERMSIG(outcome.status),
                 told->exitFlag, outcome.errors.c_str());
}

/// Fails each request of the operation in turn, until it makes no more.
void failEach(const Operation& operation, failing::Mode mode, Counts& counts) {
    for (long n = 1;; ++n) {
        const Outcome outcome = run(operation, n, mode);
        const Way way = wayOf(outcome);
        if (WIFEXITED(outcome.status) && told->refusals == 0) { // it makes fewer than n
            if (way != goesOn) {
                report(operation, n, mode, outcome);
                ++counts.faults;
            }
            return;
        }
        ++counts.failures;
        if (way == goesOn) {
            ++counts.wentOn;
        } else if ((operation.ways & way) != 0) {
            ++(way == throwsBad ? counts.threw : counts.ended);
        } else {
            report(operation, n, mode, outcome);
            ++counts.faults;
            if (counts.faults > 20)
                return;
        }
    }
}

Counts tryAll(const Group& group) {
    Counts counts;
    for (const Operation& operation : group.operations) {
        ++counts.operations;
        const long before = counts.failures;
        failEach(operation, failing::Mode::one, counts);
        failEach(operation, failing::Mode::fromThere, counts);
        const bool asked = counts.failures > before;
        if (asked == ((operation.ways & asksNothing) != 0)) {
            std::fprintf(stderr, "%s: %s\n", operation.name,
                         asked ? "asks for memory" : "asks for no memory, so nothing was tried");
            ++counts.faults;
        }
    }
    return counts;
}

} // namespace

int main() {
    told = static_cast<Told*>(
        mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    if (told == MAP_FAILED)
        return 1;
    std::setvbuf(stdout, nullptr, _IONBF, 0); // or children would write what stands there again

    std::printf("| classes | operations | failures | went on, objects valid | ended as stated | "
                "`std::bad_alloc` as stated |\n|---|---|---|---|---|---|\n");
    Counts all;
    for (const Group& group :
         {stringOperations(), encodedStringOperations(), arrayOperations(), blockOperations(),
          listOperations(), treeOperations(), transformOperations(), quantityOperations(),
          scannerOperations(), numberOperations(), runtimeOperations()}) {
        const Counts counts = tryAll(group);
        std::printf("| %s | %d | %ld | %ld | %ld | %ld |\n", group.title, counts.operations,
                    counts.failures, counts.wentOn, counts.ended, counts.threw);
        all.operations += counts.operations;
        all.failures += counts.failures;
        all.wentOn += counts.wentOn;
        all.ended += counts.ended;
        all.threw += counts.threw;
        all.faults += counts.faults;
    }
    std::printf("| all | %d | %ld | %ld | %ld | %ld |\n", all.operations, all.failures, all.wentOn,
                all.ended, all.threw);
    return all.faults == 0 ? 0 : 1;
}
