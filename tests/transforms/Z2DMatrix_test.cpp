#include "matrices.h"

#include <gtest/gtest.h>

namespace {

using General = ZMatrix<double>;
using Matrix = Z2DMatrix<double>;

TEST(Z2DMatrix, TransposesInThreeWays) {
    Matrix m = matrix({1, 2, 3, 4}), own(m), out;
    EXPECT_EQ(m.transpose(out) + own.transpose() + m.transpose(static_cast<General&>(m)), 0);
    EXPECT_EQ(elementsOf(out), Numbers({1, 3, 2, 4}));
    EXPECT_EQ(elementsOf(own), Numbers({1, 2, 4, 3}));
    EXPECT_EQ(elementsOf(m), Numbers({1, 2, 2, 4}));
    EXPECT_EQ(own.transpose(own), 0);
    EXPECT_EQ(elementsOf(own), Numbers({1, 2, 3, 4}));
}

TEST(Z2DMatrix, InvertsByItsOwnOverloadsAlone) {
    const struct {
        Numbers elements;
        int status;
        Numbers inverse;
    } rows[] = {
        {{1, 2, 3, 4}, 0, {-2, 1, 1.5, -0.5}},
        {{1, 2, 2, 4}, 2, {1, 2, 2, 4}},
        {{5e-10, 0, 0, 1}, 2, {5e-10, 0, 0, 1}},
        {{-1e-9, 0, 0, 1}, 2, {-1e-9, 0, 0, 1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.elements));
        const Matrix given = matrix(row.elements);
        General general(given);
        EXPECT_EQ(given.invert(general), 0); // by its shape
        EXPECT_EQ(elementsOf(general), row.elements);
        Matrix own(given), self(given), out(given);
        EXPECT_TRUE(own.invert() == row.status && self.invert(self) == row.status &&
                    given.invert(out) == row.status);
        for (const Matrix* inverse : {&own, &self, &out})
            EXPECT_EQ(elementsOf(*inverse), row.inverse);
    }
}

TEST(Z2DMatrix, CallsThroughTheBaseReachItsEntries) {
    Matrix m = matrix({1, 2, 3, 5});
    General& general = m;
    EXPECT_EQ(general.det(), -1);
    EXPECT_EQ(general.invert(general), 0);
    EXPECT_EQ(general.multiply(m, general), 0);
    EXPECT_EQ(elementsOf(m), Numbers({7, 12, 18, 31}));
    (general += m) -= matrix({1, 1, 1, 1});
    EXPECT_EQ(elementsOf(general *= 2), Numbers({26, 46, 70, 122}));
    General odd(3, 1, nullptr);
    EXPECT_EQ(general.solve(odd), 1); // the general one returns 0
    general = matrix({4, 3, 2, 1});
    EXPECT_EQ(elementsOf(m), Numbers({4, 3, 2, 1}));

    struct Scaled : Matrix {
        double det() const override {
            return 2.0;
        }
    } scaled;
    EXPECT_EQ(scaled.invert(), 0);
    EXPECT_EQ(elementsOf(scaled), Numbers({0.5, 0, 0, 0.5}));

    struct Noting : General {
        explicit Noting(const General& m) : General(m) {}
        General& operator=(const General& other) override {
            ++assigned;
            return General::operator=(other);
        }
        int assigned = 0;
    } noting(matrix({1, 2, 3, 4}));
    EXPECT_EQ(noting.multiply(noting, noting) + matrix({2, 0, 0, 1}).solve(noting), 0);
    EXPECT_EQ(elementsOf(noting), Numbers({3.5, 5, 15, 22}));
    EXPECT_EQ(noting.assigned, 2);
}

TEST(Z2DMatrix, TakesItselfForAnArgumentAndSolves) {
    const Matrix given = matrix({1, 2, 3, 4});
    Matrix m(given);
    EXPECT_EQ(m.multiply(given, m), 0);
    EXPECT_EQ(elementsOf(m), Numbers({7, 10, 15, 22}));
    m = given;
    EXPECT_EQ(elementsOf(m *= m), Numbers({7, 10, 15, 22}));
    m = given;
    EXPECT_EQ(elementsOf(m *= m.get(1, 0)), Numbers({3, 6, 9, 12}));
    EXPECT_EQ(elementsOf((m += m) -= given), Numbers({5, 10, 15, 20}));
    EXPECT_EQ(elementsOf(m *= matrix({0, 1, 0, 0})), Numbers({0, 5, 0, 15})); // on the right
    m = given;
    EXPECT_EQ(m.solve(m), 0);
    EXPECT_EQ(elementsOf(m), Numbers({1, 0, 0, 1}));
    General b = matrix(2, 3, {2, 4, 6, 4, 8, 12});
    EXPECT_EQ(matrix({2, 0, 0, 4}).solve(b) + matrix({1, 1, 1, 1}).solve(b), 2); // 0 and 2
    EXPECT_EQ(elementsOf(b), Numbers({1, 2, 3, 1, 2, 3}));
}

TEST(Z2DMatrix, AnotherShapeMakesItAGeneralMatrix) {
    for (const auto& [rows, cols] : {std::pair(3, 3), {1, 3}, {0, 0}}) {
        SCOPED_TRACE(testing::Message() << rows << " x " << cols);
        General general = matrix(rows, cols, {1, 2, 3, 4, 5, 6, 7, 8, 9});
        Matrix whole = matrix({1, 2, 3, 4});
        Matrix m;
        m = general;
        EXPECT_EQ(elementsOf(Matrix(general)), Numbers({1, 0, 0, 1}));
        EXPECT_EQ(m.det() + m.solve(whole), 0.0);
        Matrix alike(m);
        EXPECT_EQ(m.invert() + m.transpose() + m.invert(m) + m.invert(alike), 4);
        EXPECT_EQ(m.transpose(m), general.transpose(general));
        EXPECT_EQ(m.invert(whole) + whole.invert(m) + whole.multiply(m, m), 3);
        EXPECT_EQ(m.transpose(whole) + whole.transpose(m) + m.multiply(m, whole), 3);
        EXPECT_EQ((m * DPoint(3, 4)).x, 3);
        m -= whole;
        EXPECT_EQ(elementsOf(whole += m), Numbers({1, 2, 3, 4}));
        EXPECT_EQ(elementsOf(Matrix(m)), elementsOf(general));
        general.multiply(general, general); // refused for 1 x 3
        EXPECT_EQ(elementsOf((m *= m) *= 2.0), elementsOf(general *= 2.0));
        EXPECT_EQ(elementsOf(m += m), elementsOf(general += general));
        EXPECT_EQ(m.identity(), general.identity());
        EXPECT_EQ(elementsOf(m), elementsOf(general));
        m.clear();
        EXPECT_EQ(elementsOf(m), Numbers(elementsOf(general).size(), 0.0));
        EXPECT_EQ(elementsOf(m = whole), Numbers({1, 2, 3, 4}));
    }
}

} // namespace
