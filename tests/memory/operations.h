#pragma once

#include "tests/memory/failingHeap.h"

#include <zarnex/strings/ZString.h>

#include <functional>
#include <new>
#include <vector>

/// The ways out of an operation that the headers state for want of memory, besides going on
/// with valid objects.
enum Way : unsigned {
    goesOn = 0,
    endsAlloc = 1,    ///< "failed alloc", status 1
    endsScanner = 2,  ///< "1: No space for scanner!", status 1
    endsSilent = 4,   ///< no message, status 0
    throwsBad = 8,    ///< std::bad_alloc
    asksNothing = 16, ///< never asks for memory
    unstated = 32     ///< everything else, which is a fault
};

/// One run of an operation, which tells what is tried and what must hold then.
class Trial {
public:
    Trial(long failsAt, failing::Mode mode) : failsAt_(failsAt), mode_(mode) {}

    /// Does the work on the failing heap. What it throws for want of memory stops here.
    template <class Work>
    void attempt(Work work) {
        failing::arm(failsAt_, mode_);
        try {
            work();
        } catch (const std::bad_alloc&) {
            threw_ = true;
        }
        failing::disarm();
    }

    bool threw() const {
        return threw_;
    }
    bool failed() const {
        return failing::refusals() > 0;
    }

    /// What must hold after the attempt, whatever came of it.
    void expect(bool holds) {
        holds_ = holds_ && holds;
    }
    /// What must hold unless it threw.
    void expectDone(bool holds) {
        expect(threw_ || holds);
    }

    bool holds() const {
        return holds_;
    }

private:
    long failsAt_;
    failing::Mode mode_;
    bool threw_ = false;
    bool holds_ = true;
};

struct Operation {
    const char* name;
    unsigned ways;
    std::function<void(Trial& trial)> perform;
};

inline bool holds(const ZString& text, const wchar_t* units) {
    return text.isEqual(units) != 0;
}

/// `edit` on an object like `begin` makes of it what it makes with memory, and so it does then.
/// If it `mayGiveUp`, the object may be as it was or empty where a request failed.
template <class Object, class Edit>
auto edited(Object begin, Edit edit, bool mayGiveUp = false) {
    return [=](Trial& trial) {
        Object expected(begin), object(begin);
        edit(expected);
        trial.attempt([&] { edit(object); });
        const bool gaveUp = trial.failed() && (object == begin || object == Object());
        trial.expectDone(object == expected || (mayGiveUp && gaveUp));
        object = begin;
        edit(object);
        trial.expect(object == expected);
    };
}

template <class Object, class Edit>
auto editedOrNot(Object begin, Edit edit) {
    return edited(begin, edit, true);
}

/// Operations of one kind of class, a row of the report.
struct Group {
    const char* title;
    std::vector<Operation> operations;
};

Group stringOperations();
Group encodedStringOperations();
Group arrayOperations();
Group blockOperations();
Group listOperations();
Group treeOperations();
Group transformOperations();
Group quantityOperations();
Group scannerOperations();
Group numberOperations();
Group runtimeOperations();
