#pragma once

/// Inputs and plain structures for the rows about the plane.

#include <cstddef>
#include <new>
#include <random>
#include <vector>

namespace bench {

/// `count` numbers from `low` to `high`, the same for the same seed.
inline std::vector<double> randomNumbers(std::size_t count, double low, double high,
                                         unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> distribution(low, high);
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = distribution(random);
    return numbers;
}

/// A point or vector as one writes it by hand.
struct Plain {
    double x;
    double y;
};

/// Arrays begin on a page of their own. A store at the same place of a page as one of the
/// next loads delays it, so that otherwise chance decides which side is slow.
template <class T>
struct OnPages {
    using value_type = T;
    static constexpr std::align_val_t page{4096};

    OnPages() = default;
    template <class Other>
    OnPages(const OnPages<Other>&) {}

    T* allocate(std::size_t count) {
        return static_cast<T*>(::operator new(count * sizeof(T), page));
    }
    void deallocate(T* elements, std::size_t) {
        ::operator delete(elements, page);
    }
    bool operator==(const OnPages&) const = default;
};

template <class T>
using Array = std::vector<T, OnPages<T>>;

/// Every two of `numbers` as the coordinates of one `Place`.
template <class Place, class Places = std::vector<Place>>
Places paired(const std::vector<double>& numbers) {
    Places places;
    places.reserve(numbers.size() / 2);
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        places.push_back(Place{numbers[i], numbers[i + 1]});
    return places;
}

template <class Place>
Array<Place> pairedOnPages(const std::vector<double>& numbers) {
    return paired<Place, Array<Place>>(numbers);
}

} // namespace bench
