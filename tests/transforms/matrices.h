#pragma once

#include <zarnex/transforms/Z2DMatrix.h>

#include <initializer_list>
#include <limits>
#include <vector>

using Numbers = std::vector<double>;

/// The elements of `m` row by row.
inline Numbers elementsOf(const ZMatrix<double>& m) {
    Numbers elements;
    for (int r = 0; r < m.getRows(); ++r)
        for (int c = 0; c < m.getCols(); ++c)
            elements.push_back(m(r, c));
    return elements;
}

inline ZMatrix<double> matrix(int rows, int cols, const Numbers& elements) {
    return ZMatrix<double>(rows, cols, elements.data());
}

/// A 2 x 2 matrix.
inline Z2DMatrix<double> matrix(const Numbers& elements) {
    return matrix(2, 2, elements);
}

/// Numbers that arithmetic trips over.
inline constexpr double oddNumbers[] = {0.0,
                                        -0.0,
                                        0.49999999999999994,
                                        -2147483648.5,
                                        1e-9,
                                        5e-324,
                                        -1e308,
                                        std::numeric_limits<double>::infinity(),
                                        -std::numeric_limits<double>::infinity(),
                                        std::numeric_limits<double>::quiet_NaN()};
