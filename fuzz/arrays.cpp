/// Arrays: sequences of operations, against std::vector.

#include "fuzz/fuzz.h"
#include "fuzz/vectors.h"

#include <zarnex/containers/ZArray.h>
#include <zarnex/containers/ZXArray.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace {

using namespace fuzz;

// ---- ZXArray

/// An array and its slots, spare ones included.
struct ArrayPair {
    ZXArray<int> array;
    Values slots;
    int length = 0;
    int step = -1;
    int empty = 0;

    ArrayPair() {
        array.setEmpty(0); // every slot is defined
    }

    int grown(int n) const {
        if (n < 1)
            return 0;
        if (step >= 1)
            return (n + step - 1) / step * step;
        int count = slots.empty() ? 32 : sizeOf(slots);
        for (; count < n; count *= 2) {
        }
        for (; count / 2 >= n && n < sizeOf(slots); count /= 2) {
        }
        return count;
    }

    void allocate(int n) {
        slots.resize(static_cast<std::size_t>(n), empty);
    }

    int& reach(int i) {
        i = std::max(i, 0);
        if (i >= sizeOf(slots))
            allocate(grown(i + 1));
        length = std::max(length, i + 1);
        return *at(slots, i);
    }

    void cut(int n) {
        if (n < length)
            std::fill(at(slots, n), at(slots, length), empty);
    }

    void check() const {
        FUZZ_REQUIRE(array.length() == length);
        FUZZ_REQUIRE(array.allocLength() == sizeOf(slots));
        for (int i = 0; i < sizeOf(slots); ++i)
            FUZZ_REQUIRE(array[i] == *at(slots, i));
        FUZZ_REQUIRE(array[sizeOf(slots)] == empty);
    }
};

void changeArray(fuzz::Input& input, ArrayPair& a, ArrayPair& b) {
    const int i = input.between(-3, 120);
    const int value = input.choice(16);
    switch (input.choice(15)) {
    case 0:
        a.array.set(i, value);
        a.reach(i) = value;
        break;
    case 1:
        a.array.add(value);
        a.reach(a.length) = value;
        break;
    case 2: { // an element of the array itself
        const int own = a.array[0];
        a.array.add(a.array[0]);
        a.reach(0) = own;
        a.reach(a.length) = own;
        break;
    }
    case 3:
        a.array.ins(i, value);
        if (std::max(i, 0) < a.length) {
            a.reach(a.length);
            std::move_backward(at(a.slots, std::max(i, 0)), at(a.slots, a.length - 1),
                               at(a.slots, a.length));
        }
        a.reach(i) = value;
        break;
    case 4:
        a.array.del(i);
        if (std::max(i, 0) < a.length) {
            std::move(at(a.slots, std::max(i, 0) + 1), at(a.slots, a.length),
                      at(a.slots, std::max(i, 0)));
            *at(a.slots, --a.length) = a.empty;
        }
        break;
    case 5: {
        const Values used(a.slots.begin(), at(a.slots, a.length));
        FUZZ_REQUIRE(a.array.find(value) == positionOf(used, value));
        const Values reversed(used.rbegin(), used.rend());
        const int last = positionOf(reversed, value);
        FUZZ_REQUIRE(a.array.find(value, 1) == (last < 0 ? -1 : a.length - 1 - last));
        break;
    }
    case 6:
        a.array.setAll(value);
        std::fill(a.slots.begin(), at(a.slots, a.length), value);
        break;
    case 7:
        a.array.reset();
        a.allocate(a.length = 0);
        break;
    case 8:
        a.array.compact();
        a.allocate(a.length);
        break;
    case 9: {
        const int n = std::max(i, 0);
        a.array.setSize(i);
        a.cut(n);
        if (n > sizeOf(a.slots))
            a.allocate(a.grown(n));
        a.length = n;
        break;
    }
    case 10: {
        const int n = std::max(i, 0);
        const int count = a.grown(n);
        a.array.resize(i);
        if (count > a.length)
            a.cut(n);
        a.allocate(count);
        a.length = n;
        break;
    }
    case 11:
        a.array.setAllocSize(i);
        a.length = std::min(a.length, std::max(i, 0));
        a.allocate(std::max(i, 0));
        break;
    case 12:
        a.array.setEmpty(value);
        a.empty = value;
        std::fill(at(a.slots, a.length), a.slots.end(), value);
        break;
    case 13:
        a.array.setStep(i);
        a.step = i;
        break;
    default:
        FUZZ_REQUIRE((a.array == b.array) ==
                     int(std::equal(a.slots.begin(), at(a.slots, a.length), b.slots.begin(),
                                    at(b.slots, b.length))));
        if (value % 2 == 0) {
            a.array = b.array;
        } else {
            ZXArray<int> copy(b.array);
            a.array = std::move(copy);
        }
        a.slots = b.slots;
        a.length = b.length;
        a.step = b.step;
        a.empty = b.empty;
    }
}

void tryArrays(fuzz::Input& input) {
    trySteps<ArrayPair, 2>(input, [&](auto& a, auto& b) { changeArray(input, a, b); });
}

// ---- ZArray

using Slots = std::vector<std::optional<float>>; // of which some were never written

void checkSlots(const Slots& slots, const std::function<float(int)>& element) {
    for (int i = 0; i < sizeOf(slots); ++i)
        FUZZ_REQUIRE(!*at(slots, i) || **at(slots, i) == element(i));
}

void tryBlockArray(fuzz::Input& input) {
    const int n = input.choice(40);
    const int step = std::max(n, 1);
    ZArray<float> array(static_cast<unsigned>(n), 7);
    Slots block(static_cast<std::size_t>(2 * step));
    Slots cache(static_cast<std::size_t>(step), 0.0f);
    bool isFrozen = false;
    const auto reach = [&](int index) { // one step stays in reserve
        while (index + 1 >= sizeOf(block) - step)
            block.resize(block.size() + static_cast<std::size_t>(step));
    };
    const auto move = [&](int to, int from, int count) {
        const int outside = std::max(0, -std::min(to, from));
        to += outside;
        from += outside;
        count -= outside;
        if (count <= 0)
            return;
        reach(from + count);
        reach(to + count);
        const Slots moved(at(block, from), at(block, from + count));
        std::copy(moved.begin(), moved.end(), at(block, to));
    };
    const auto load = [&] { std::copy_n(block.begin(), step, cache.begin()); };
    for (int steps = 0; !input.atEnd() && steps < 60; ++steps) {
        const int i = input.between(-3, 120);
        const float value = static_cast<float>(input.byte());
        if (block.size() > 2000)
            return;
        switch (input.choice(7)) {
        case 0:
            array[i] = value;
            reach(std::max(i, 0));
            *at(block, std::max(i, 0)) = value;
            break;
        case 1:
            FUZZ_REQUIRE(array.insert(value, i) == value);
            move(i + 1, i, sizeOf(block) - i);
            reach(std::max(i, 0));
            *at(block, std::max(i, 0)) = value;
            break;
        case 2:
            array.remove(i);
            move(i - 1, i, sizeOf(block) - i);
            reach(std::max(i, 0));
            break;
        case 3: {
            const int from = input.between(-3, 120);
            const int count = input.between(0, 600); // a chunk has 256 elements
            FUZZ_REQUIRE(array.move(i, from, from + count, 1) == 0);
            move(i, from, count);
            break;
        }
        case 4: {
            const int from = input.between(-3, 120);
            const int count = input.between(0, 600);
            FUZZ_REQUIRE(array.copy(i, from, count, 1) == 0);
            move(i, from, count);
            if (count >= 1 && !isFrozen)
                load();
            break;
        }
        case 5:
            array.freeze();
            if (!isFrozen)
                std::copy(cache.begin(), cache.end(), block.begin());
            isFrozen = true;
            break;
        default:
            if (value < 128) {
                array.restore();
                isFrozen = false;
                load();
            } else {
                array.reset();
                block.resize(static_cast<std::size_t>(2 * step));
            }
        }
        const ZArray<float>& constant = array;
        checkSlots(block, [&](int slot) { return constant[slot]; });
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    if (input.choice(2) == 0)
        tryArrays(input);
    else
        tryBlockArray(input);
}
