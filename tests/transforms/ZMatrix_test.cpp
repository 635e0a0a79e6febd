#include "matrices.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <new>
#include <random>

namespace {

bool heapIsFull = false; // for matrices, which ask without exceptions

} // namespace

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return heapIsFull ? nullptr : ::operator new[](bytes);
}

namespace {

using Matrix = ZMatrix<double>;

TEST(ZMatrix, ImpossibleSizesGiveAnEmptyMatrix) {
    for (const auto& [rows, cols] :
         {std::pair(-1, 2), {INT_MIN, INT_MIN}, {65536, 65536}, {INT_MAX, 2}, {0, -1}}) {
        const double value = 1;
        const Matrix m(rows, cols, &value);
        EXPECT_TRUE(m.getRows() == 0 && m.getCols() == 0) << rows << " x " << cols;
    }
    EXPECT_EQ(Matrix(0, 5, nullptr).getCols(), 5);
}

TEST(ZMatrix, AssignmentTakesTheShapeAndKeepsFittingStorage) {
    Matrix m(2, 3, nullptr);
    const double* const storage = &m(0, 0);
    m = matrix(3, 2, {6, 5, 4, 3, 2, 1});
    EXPECT_EQ(&m(0, 0), storage);
    EXPECT_EQ(m.rangeCheck(3, 2) - m.rangeCheck(2, 3), 1);
    Matrix(m).set(1, 0, 9);
    const Matrix& same = m;
    EXPECT_EQ(elementsOf(m = same), Numbers({6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(elementsOf(m = matrix(1, 1, {7})), Numbers({7}));
}

TEST(ZMatrix, ProductAgreesWithPlainSumsAlsoInPlace) {
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        const int n = static_cast<int>(random() % 11);
        const int rows = round % 3 == 0 ? 3 : n; // every third cannot be in place
        Matrix a(rows, n, nullptr), b(n, n, nullptr), separate(rows, n, nullptr);
        for (int i = 0; i < n * n; ++i)
            b(0, i) = static_cast<double>(random() % 1000) / 7.0;
        for (int i = 0; i < rows * n; ++i)
            a(0, i) = static_cast<double>(random() % 1000) / 7.0;
        Numbers expected;
        for (int i = 0; i < rows * n; ++i) {
            expected.push_back(0.0);
            for (int k = 0; k < n; ++k)
                expected.back() += a(i / n, k) * b(k, i % n);
        }
        Matrix& out = round % 3 == 0 ? separate : round % 3 == 1 ? a : b;
        ASSERT_EQ(a.multiply(b, out), 0);
        ASSERT_EQ(elementsOf(out), expected) << round;
    }
    Matrix zero = matrix(1, 1, {-0.0});
    EXPECT_EQ(zero.multiply(matrix(1, 1, {1}), zero), 0);
    EXPECT_FALSE(std::signbit(zero(0, 0))); // summed up from 0.0
}

TEST(ZMatrix, ShapesThatDoNotFitAreRefused) {
    Matrix a = matrix(2, 3, {1, 2, 3, 4, 5, 6});
    const Matrix mirrored(3, 2, &a(0, 0));
    for (const auto& [rows, cols] : {std::pair(3, 3), {2, 3}, {1, 2}, {2, 1}}) {
        SCOPED_TRACE(testing::Message() << rows << " x " << cols);
        Matrix out = matrix(rows, cols, Numbers(9, 8.0));
        const Numbers before = elementsOf(out);
        EXPECT_EQ(a.multiply(a, out) + a.multiply(mirrored, out) + a.transpose(out), 3);
        EXPECT_EQ(elementsOf(out), before);
    }
    EXPECT_EQ(a.transpose(a) + a.identity(), 2);
    EXPECT_EQ(elementsOf(a), Numbers({1, 2, 3, 4, 5, 6}));
}

TEST(ZMatrix, TransposingInPlaceCopiesTheUpperTriangleDown) {
    Matrix out(3, 2, nullptr);
    EXPECT_EQ(matrix(2, 3, {1, 2, 3, 4, 5, 6}).transpose(out), 0);
    EXPECT_EQ(elementsOf(out), Numbers({1, 4, 2, 5, 3, 6}));
    Matrix square = matrix(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(square.transpose(square), 0);
    EXPECT_EQ(elementsOf(square), Numbers({1, 2, 3, 2, 5, 6, 3, 6, 9}));
}

TEST(ZMatrix, SumsWantTheMirroredShape) {
    Matrix m = matrix(2, 3, {1, 2, 3, 4, 5, 6});
    (m += m) -= m;
    EXPECT_EQ(elementsOf(m), Numbers({1, 2, 3, 4, 5, 6}));
    m += matrix(3, 2, {10, 20, 30, 40, 50, 60});
    EXPECT_EQ(elementsOf(m), Numbers({11, 22, 33, 44, 55, 66}));
    m -= matrix(3, 2, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(elementsOf(m), Numbers({10, 20, 30, 40, 50, 60}));
    m *= m(0, 1); // a part of what it multiplies
    EXPECT_EQ(elementsOf(m), Numbers({200, 400, 600, 800, 1000, 1200}));
}

TEST(ZMatrix, GeneralShapesHaveNoLinearAlgebra) {
    Matrix m = matrix(2, 2, {1, 2, 3, 5});
    Matrix other = matrix(2, 2, {5, 6, 7, 8});
    int unused = 7;
    EXPECT_EQ(m.det(), 0.0);
    EXPECT_EQ(m.invert(other) + m.solve(other) + m.guassianReduction(other, unused), 0);
    EXPECT_EQ(Matrix(2, 3, nullptr).invert(other), 1);
    EXPECT_EQ(elementsOf(m), Numbers({1, 2, 3, 5}));
    EXPECT_EQ(elementsOf(other), Numbers({5, 6, 7, 8}));
}

TEST(ZMatrix, DerivedClassesExchangeRowsAndColumnsAndClearForIdentity) {
    struct Derived : Matrix {
        explicit Derived(const Matrix& m) : Matrix(m) {
            swapRow(0, 2);
            swapCol(1, 0);
            swapRow(-1, 0);
            swapRow(INT_MIN, INT_MAX);
            swapCol(INT_MAX, INT_MIN);
            swapRow(0, 3);
            swapCol(0, 2);
        }
        void clear() override {
            set(0, 1, 7);
        }
    };
    EXPECT_EQ(elementsOf(Derived(matrix(3, 2, {1, 2, 3, 4, 5, 6}))), Numbers({6, 5, 4, 3, 2, 1}));
    Derived square(matrix(2, 2, {2, 3, 4, 5}));
    EXPECT_EQ(square.identity(), 0);
    EXPECT_EQ(elementsOf(square), Numbers({1, 7, 5, 1}));
}

TEST(ZMatrix, WithoutMemoryItIsEmptyAndHarmless) {
#if defined(_WIN32)
    GTEST_SKIP() << "A DLL does not take the operators of its host";
#endif
    Matrix square = matrix(2, 2, {1, 2, 3, 4});
    Z2DMatrix<double> solver = square;
    heapIsFull = true;
    Z2DMatrix<double> none;
    const int multiplied = square.multiply(square, square);
    const int solved = solver.solve(square);
    heapIsFull = false;
    EXPECT_TRUE(multiplied == 4 && solved == 4);
    EXPECT_EQ(elementsOf(square), Numbers({1, 2, 3, 4}));
    EXPECT_EQ(none.getRows() + none.getCols() + none.identity(), 0);
    EXPECT_EQ(((none *= none) * DPoint(3, 4)).y, 4);
    EXPECT_EQ(elementsOf(none = solver), Numbers({1, 2, 3, 4}));
}

} // namespace
