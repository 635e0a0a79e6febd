#pragma once

#include <zarnex/runtime/exiting.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

namespace zarnex::detail {

/// Text under construction: a block on the stack, and beyond it a growing one on
/// the heap. Not terminated.
template <class Char>
class TextBuffer {
public:
    TextBuffer() = default;
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;

    const Char* data() const {
        return data_;
    }
    std::size_t length() const {
        return length_;
    }

    void append(Char unit) {
        *extend(1) = unit;
    }
    void append(Char unit, std::size_t times) {
        std::fill_n(extend(times), times, unit);
    }

    /// Appends units of this or of a narrower type.
    template <class Unit>
    void append(const Unit* begin, const Unit* end) {
        std::copy(begin, end, extend(static_cast<std::size_t>(end - begin)));
    }

    /// Adds `count` units to the length and returns the first, to be filled in.
    Char* extend(std::size_t count) {
        if (count > room_ - length_)
            grow(count);
        Char* const added = data_ + length_;
        length_ += count;
        return added;
    }

private:
    void grow(std::size_t count) {
        const std::size_t room = (std::max)(2 * room_, length_ + count);
        Char* const larger = new (std::nothrow) Char[room];
        if (larger == nullptr)
            exitWithoutMemory();
        std::copy_n(data_, length_, larger);
        heap_.reset(larger);
        data_ = larger;
        room_ = room;
    }

    static constexpr std::size_t stackRoom = 256;
    Char stack_[stackRoom];
    std::unique_ptr<Char[]> heap_;
    Char* data_ = stack_;
    std::size_t room_ = stackRoom;
    std::size_t length_ = 0;
};

} // namespace zarnex::detail
