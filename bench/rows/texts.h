#pragma once

/// What the rows about text share.

#include "../Suite.h"

#if BENCH_QT
#include <QtCore/QString>
#endif

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// Inputs of one kind, handed out in turn so that no side works on a constant.
template <class T>
class Pool {
public:
    explicit Pool(std::vector<T> items) : items_(std::move(items)) {}

    template <class Make>
    Pool(std::size_t count, Make make) {
        for (std::size_t i = 0; i < count; ++i)
            items_.push_back(make(i));
    }

    const T& next() const {
        const T& item = items_[next_];
        next_ = next_ + 1 == items_.size() ? 0 : next_ + 1;
        return item;
    }

private:
    std::vector<T> items_;
    mutable std::size_t next_ = 0; // sides are called as constants
};

inline constexpr std::size_t poolSize = 64;

/// The ASCII text `text` in units of another width.
template <class Text>
Text widened(const std::string& text) {
    return Text(text.begin(), text.end());
}

/// `length` characters of English words, different for each `seed`.
std::string words(std::size_t length, std::size_t seed);

#if BENCH_QT
inline QString qString(const std::u16string& text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), qsizetype(text.size()));
}
#endif

// Parts of the string topic.
void searchRows(Suite& suite);
void textGrowthRows(Suite& suite);
void pathRows(Suite& suite);

} // namespace bench
