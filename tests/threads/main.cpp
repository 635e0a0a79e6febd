/// Does everything at once in many threads, and holds each process-wide lock in turn: what
/// waits for it must stand still, everything else must go on.
///
///     test-threads SECONDS THREADS   THREADS for each kind of work
///     test-threads deadlock          must be ended by the watchdog
///
/// Writes a line "work NAME OPERATIONS" for each kind of work and "held LOCK TIMES" for each
/// lock, with tabs between.

#include "tests/threads/works.h"

#include <zarnex/foundation.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::atomic<bool> stopping = false;
std::atomic<bool> faulty = false;

void report(const char* name, const char* what) {
    faulty = true;
    std::fprintf(stderr, "%s: %s\n", name, what);
}

/// A thread that does one kind of work until all stop.
struct Worker {
    const Work& work;
    unsigned number;
    std::atomic<long> operations = 0;
    std::atomic<bool> done = false;
    std::thread thread;

    Worker(const Work& given, unsigned which) : work(given), number(which) {}

    void run() {
        while (!stopping && !faulty) {
            if (!work.perform(number * 7919 + static_cast<unsigned>(operations)))
                report(work.name, "a wrong result");
            ++operations;
            if (operations % 8 == 0)
                std::this_thread::yield(); // the locks are not fair
        }
        done = true;
    }
};

std::deque<Worker> workers;
Worker* mainThread = nullptr; // counts the locks that were held

/// Ends the process once a thread has not gone on for `patience`.
class Watchdog {
public:
    explicit Watchdog(Clock::duration patience)
        : patience_(patience), thread_([this] { watch(); }) {}
    ~Watchdog() {
        done_ = true;
        thread_.join();
    }

private:
    struct Seen {
        long operations;
        Clock::time_point since;
    };

    void watch() {
        std::deque<Seen> seen(workers.size(), Seen{-1, Clock::now()});
        while (!done_) {
            std::this_thread::sleep_for(50ms);
            for (std::size_t i = 0; i < seen.size(); ++i) {
                const Worker& worker = workers[i];
                if (worker.done || worker.operations != seen[i].operations)
                    seen[i] = {worker.operations, Clock::now()};
                else if (Clock::now() - seen[i].since > patience_)
                    end(worker);
            }
        }
    }

    [[noreturn]] static void end(const Worker& worker) {
        std::fprintf(stderr, "%s, thread %u: does not go on after %ld operations\n",
                     worker.work.name, worker.number, worker.operations.load());
        std::fflush(nullptr);
        std::_Exit(3);
    }

    Clock::duration patience_;
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

/// Called while this thread holds `lock`.
void whileHeld(unsigned lock) {
    std::deque<long> before;
    for (const Worker& worker : workers)
        before.push_back(worker.operations);

    const auto beyond = [&](std::size_t i) { return workers[i].operations - before[i]; };
    for (std::size_t i = 0; i < workers.size(); ++i) {
        const Work& work = workers[i].work;
        if (&workers[i] != mainThread && ((work.locks | work.othersLocks) & lock) == 0)
            while (beyond(i) < 10 && !faulty)
                std::this_thread::sleep_for(1ms);
    }

    // The operation that was going on may have had the lock behind it.
    for (std::size_t i = 0; i < workers.size(); ++i)
        if ((workers[i].work.locks & lock) != 0 && beyond(i) > 1)
            report(workers[i].work.name, "goes on although the lock is held");
}

void holdRefCounts() {
    lockRefCount();
    whileHeld(refCountLock);
    unlockRefCount();
}

void holdSorts() {
    class Holder : public QSort::Callback {
        int compare(const void*, const void*) override {
            whileHeld(sortLock);
            return 0;
        }
    } holder;
    char pair[2] = {};
    QSort::sort(pair, 2, 1, holder);
}

void holdScanner() {
    ZUnitScanner scanner(L"1 mm");
    scanner.yylex();
    whileHeld(scannerLock);
}

int runAll(double seconds, unsigned threads) {
    static const Work holding{"locks held", noLock, noLock, nullptr, nullptr};
    for (const Work& work : works())
        for (unsigned i = 0; i < threads; ++i)
            workers.emplace_back(work, i);
    mainThread = &workers.emplace_back(holding, 0);

    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    const Watchdog watchdog(60s);
    for (Worker& worker : workers)
        if (&worker != mainThread)
            worker.thread = std::thread([&worker] { worker.run(); });
    while ((Clock::now() < end || mainThread->operations == 0) && !faulty) {
        for (const auto hold : {holdRefCounts, holdSorts, holdScanner})
            hold();
        ++mainThread->operations;
        std::this_thread::sleep_for(100ms);
    }
    stopping = true;
    mainThread->done = true;
    for (Worker& worker : workers)
        if (worker.thread.joinable())
            worker.thread.join();

    for (const Work& work : works()) {
        long operations = 0;
        for (const Worker& worker : workers)
            operations += &worker.work == &work ? worker.operations.load() : 0;
        std::printf("work\t%s\t%ld\n", work.name, operations);
        if (work.isSettled != nullptr && !work.isSettled())
            report(work.name, "something is left over");
    }
    for (const char* lock : {"reference counts", "sorts", "scanners"})
        std::printf("held\t%s\t%ld\n", lock, mainThread->operations.load());
    return faulty ? 1 : 0;
}

int runDeadlock() {
    static MiniLock lock;
    static const Work stuck{"a lock that nobody releases", noLock, noLock,
                            [](unsigned) {
                                const MiniGuard guard(lock);
                                return true;
                            },
                            nullptr};
    lock.lock();
    Worker& worker = workers.emplace_back(stuck, 0);
    const Watchdog watchdog(500ms);
    worker.thread = std::thread([&worker] { worker.run(); });
    worker.thread.join();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "deadlock") == 0)
        return runDeadlock();
    const double seconds = argc > 1 ? std::atof(argv[1]) : 0;
    const int threads = argc > 2 ? std::atoi(argv[2]) : 0;
    if (seconds <= 0 || threads < 1) {
        std::fprintf(stderr, "test-threads SECONDS THREADS\n");
        return 2;
    }
    return runAll(seconds, static_cast<unsigned>(threads));
}
