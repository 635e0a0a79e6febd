#pragma once

/// Inputs and plain structures for the rows about the plane.

#include <cstddef>
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

/// Every two of `numbers` as the coordinates of one `Place`.
template <class Place>
std::vector<Place> paired(const std::vector<double>& numbers) {
    std::vector<Place> places;
    places.reserve(numbers.size() / 2);
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        places.push_back(Place{numbers[i], numbers[i + 1]});
    return places;
}

} // namespace bench
