#pragma once

#include <zarnex/config.h>

#include <cstddef>

/// The C library's qsort() with an object instead of a function for the comparison.
///
///     class ByLength : public QSort::Callback {
///     public:
///         int compare(const void* a, const void* b) override {
///             const int left = *static_cast<const int*>(a);
///             const int right = *static_cast<const int*>(b);
///             return (left > right) - (left < right);
///         }
///     };
///
///     ByLength byLength;
///     QSort::sort(lengths, count, sizeof *lengths, byLength);
class ZARNEX_API QSort {
public:
    /// How two elements compare, to derive from.
    class ZARNEX_API Callback {
    public:
        /// Negative if `a` comes before `b`, positive if after it, 0 if either order will
        /// do. Both point to elements, or to copies of their bytes.
        virtual int compare(const void* a, const void* b) = 0;

        /// Releases nothing: the state is that of derived classes.
        virtual ~Callback();
    };

    /// Sorts `count` elements of `size` bytes each, which are moved as plain bytes. Nothing
    /// for a null `base`, for no elements, for elements without a size, and for more bytes than
    /// std::size_t counts.
    ///
    /// The order of elements that compare equal is whatever qsort() gives. What `cb` throws
    /// comes out of this call; the elements are then all there, in an order left open.
    ///
    /// Only one sort runs at a time in the process; another thread's waits. `cb` may sort
    /// something else itself. It must not wait for a thread that sorts,
    /// nor end its own thread. Quantities that it reads from text take a lock of their own.
    static void sort(void* base, std::size_t count, std::size_t size, Callback& cb);
};
