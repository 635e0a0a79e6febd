#pragma once

#include <zarnex/transforms/Z2DMatrix.h>

#include <initializer_list>
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
