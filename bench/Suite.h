#pragma once

#include "Row.h"

#include <cstdio>
#include <functional>
#include <string>

namespace bench {

/// Measures rows one after the other and writes what came of them.
class Suite {
public:
    /// Only rows whose "topic: name" contains `filter`; `rounds` each. Where `markdown` is
    /// not null, tables go there as well.
    Suite(std::string filter, int rounds, std::FILE* markdown);

    /// What the next rows are about: a heading.
    void topic(std::string name);

    /// Runs `body`, which gives a row its sides and then calls the function it is handed,
    /// unless the filter leaves the row out.
    using Measure = std::function<void()>;
    void row(const std::string& name, double limit, const std::string& what,
             const std::function<void(Row&, const Measure&)>& body);

    /// The rows that ran; those beyond their limit; those whose sides do not agree.
    int count() const {
        return count_;
    }
    int beyond() const {
        return beyond_;
    }
    int wrong() const {
        return wrong_;
    }

    /// Writes what the last topic still owes.
    void finish();

private:
    void print(const Row& row) const;
    void note(const Row& row);

    std::string filter_;
    int rounds_;
    std::FILE* markdown_;
    std::string topic_;
    std::string table_; // of the topic, in Markdown
    std::string notes_;
    int count_ = 0;
    int beyond_ = 0;
    int wrong_ = 0;
};

} // namespace bench
