#include "../rows.h"
#include "plane.h"

#include <zarnex/transforms/Z2DTrans.h>

#if BENCH_EIGEN
#include <Eigen/Dense>
#endif
#if BENCH_QT
#include <QPointF>
#include <QTransform>
#endif

#include <cmath>
#include <memory>
#include <vector>

namespace bench {

/// A 2 x 2 matrix as one writes it by hand.
struct PlainMatrix {
    double m00, m01, m10, m11;
};

/// The same with its elements as the library's matrices have them: behind a pointer, with
/// a determinant that derived classes may override. The compiler is not to know
/// the storage to be new, as it does not of those.
class StoredMatrix {
public:
    StoredMatrix() : StoredMatrix(PlainMatrix{1.0, 0.0, 0.0, 1.0}) {}
    explicit StoredMatrix(const PlainMatrix& m);
    StoredMatrix(const StoredMatrix& other) : StoredMatrix(other.all()) {}
    StoredMatrix& operator=(const StoredMatrix&) = delete;
    virtual ~StoredMatrix() = default;

    virtual double det() const {
        const PlainMatrix m = all();
        return m.m00 * m.m11 - m.m01 * m.m10;
    }
    double get(int r, int c) const {
        return elements_[static_cast<std::size_t>(2 * r + c)];
    }
    PlainMatrix all() const {
        return {elements_[0], elements_[1], elements_[2], elements_[3]};
    }
    void set(const PlainMatrix& m) {
        elements_[0] = m.m00;
        elements_[1] = m.m01;
        elements_[2] = m.m10;
        elements_[3] = m.m11;
    }

private:
    std::unique_ptr<double[]> elements_;
};

StoredMatrix::StoredMatrix(const PlainMatrix& m)
    : elements_(new double[4]{m.m00, m.m01, m.m10, m.m11}) {
    keep(elements_); // may be anybody's from here on
}

namespace {

constexpr std::size_t poolSize = 1024;

Plain operator*(const PlainMatrix& m, const Plain& p) {
    return {m.m00 * p.x + m.m01 * p.y, m.m10 * p.x + m.m11 * p.y};
}

PlainMatrix operator*(const PlainMatrix& a, const PlainMatrix& b) {
    return {a.m00 * b.m00 + a.m01 * b.m10, a.m00 * b.m01 + a.m01 * b.m11,
            a.m10 * b.m00 + a.m11 * b.m10, a.m10 * b.m01 + a.m11 * b.m11};
}

/// As Z2DMatrix::invert(): nothing for a singular matrix.
bool invert(const PlainMatrix& m, PlainMatrix& out) {
    const double det = m.m00 * m.m11 - m.m01 * m.m10;
    if (-1e-9 <= det && det <= 1e-9)
        return false;
    out = {m.m11 / det, -m.m01 / det, -m.m10 / det, m.m00 / det};
    return true;
}

bool invert(const StoredMatrix& m, StoredMatrix& out) {
    const double det = m.det();
    if (-1e-9 <= det && det <= 1e-9)
        return false;
    const PlainMatrix e = m.all();
    out.set({e.m11 / det, -e.m01 / det, -e.m10 / det, e.m00 / det});
    return true;
}

/// Matrices close to rotations, whose long products stay in range.
std::vector<PlainMatrix> pool() {
    std::vector<PlainMatrix> matrices;
    for (const double angle : randomNumbers(poolSize, -3.0, 3.0, 3))
        matrices.push_back({std::cos(angle), -std::sin(angle), std::sin(angle), std::cos(angle)});
    return matrices;
}

/// The same as Z2DTrans and so on.
template <class Matrix>
std::vector<Matrix> pool() {
    std::vector<Matrix> matrices;
    for (const PlainMatrix& m : pool()) {
        if constexpr (std::is_base_of_v<ZMatrix<double>, Matrix>) {
            matrices.push_back(Matrix(DVector(m.m00, m.m01), DVector(m.m10, m.m11)));
        } else if constexpr (std::is_same_v<Matrix, StoredMatrix>) {
            matrices.push_back(StoredMatrix(m));
        } else {
            Matrix matrix;
#if BENCH_EIGEN
            if constexpr (std::is_same_v<Matrix, Eigen::MatrixXd>)
                matrix.resize(2, 2);
            if constexpr (std::is_base_of_v<Eigen::MatrixBase<Matrix>, Matrix>)
                matrix << m.m00, m.m01, m.m10, m.m11;
#endif
#if BENCH_QT
            // Qt's points are rows.
            if constexpr (std::is_same_v<Matrix, QTransform>)
                matrix = QTransform(m.m00, m.m10, m.m01, m.m11, 0.0, 0.0);
#endif
            matrices.push_back(matrix);
        }
    }
    return matrices;
}

template <class Place, class Map>
auto mapAll(const Array<Place>& places, Array<Place>& out, Map map) {
    return [&places, &out, map] {
        for (std::size_t i = 0; i < places.size(); ++i)
            out[i] = map(places[i]);
        if constexpr (requires { out[0].x(); })
            return out[out.size() / 2].x() + out[out.size() / 3].y();
        else
            return out[out.size() / 2].x + out[out.size() / 3].y;
    };
}

void mapRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row(
        "map points, " + name, 1.0,
        "Points by one linear transform into another array; per point. \"inline\": four elements "
        "in the object, which stay in registers, not behind a pointer.",
        [count](Row& row, const auto& measure) {
            row.why(
                "A transform may be assigned a matrix of another shape, which moves nothing, so "
                "each point asks for the shape. Where the compiler sees that nothing changes it in "
                "the loop, the question goes: 0.63 ns a point, with the test or without it.");
            const std::vector<double> numbers = randomNumbers(2 * count, -100.0, 100.0, 1);
            const auto ours = pairedOnPages<DPoint>(numbers);
            const auto plain = pairedOnPages<Plain>(numbers);
            auto oursOut = ours;
            auto plainOut = plain;
            const Z2DTrans t = pool<Z2DTrans>()[1];
            const PlainMatrix m = pool()[1];
            row.per(static_cast<double>(count));
            row.ours(mapAll(ours, oursOut, [&t](const DPoint& p) { return t * p; }));
            const StoredMatrix stored(m);
            auto storedOut = plain;
            row.peer("by hand", mapAll(plain, storedOut,
                                       [&stored](const Plain& p) { return stored.all() * p; }));
            row.beside("by hand, inline",
                       mapAll(plain, plainOut, [&m](const Plain& p) { return m * p; }));
#if BENCH_EIGEN
            using Vector = Eigen::Vector2d;
            const Eigen::Matrix2d e = pool<Eigen::Matrix2d>()[1];
            const auto eigen = pairedOnPages<Vector>(numbers);
            auto eigenOut = eigen;
            const Eigen::MatrixXd dynamic = e;
            auto dynamicOut = eigen;
            row.peer("Eigen", mapAll(eigen, dynamicOut, [&dynamic](const Vector& p) -> Vector {
                         return dynamic.lazyProduct(p);
                     }));
            row.beside("Eigen, inline",
                       mapAll(eigen, eigenOut, [&e](const Vector& p) -> Vector { return e * p; }));
            const Eigen::Map<const Eigen::Matrix2Xd> all(numbers.data(), 2,
                                                         static_cast<Eigen::Index>(count));
            Eigen::Matrix2Xd allOut(2, static_cast<Eigen::Index>(count));
            const auto half = static_cast<Eigen::Index>(count / 2);
            const auto third = static_cast<Eigen::Index>(count / 3);
            row.beside("Eigen, all at once", [&] {
                allOut.noalias() = e * all;
                return allOut(0, half) + allOut(1, third);
            });
#endif
#if BENCH_QT
            const QTransform q = pool<QTransform>()[1];
            const auto qt = pairedOnPages<QPointF>(numbers);
            auto qtOut = qt;
            row.peer("Qt", mapAll(qt, qtOut, [&q](const QPointF& p) { return q.map(p); }));
#endif
            measure();
        });
}

void composeRow(Suite& suite) {
    suite.row(
        "compose", 1.0,
        "One transform after another, 1,024 in a row; per transform. \"inline\": elements in "
        "the object; there the compiler leaves out the two sums that the result does not need.",
        [](Row& row, const auto& measure) {
            row.why("Of 5.6 ns, 3.4 come of asking for the shape, which assignment of another "
                    "matrix may change: behind the question the compiler reads each product back "
                    "from the heap for the next one. Without it the same loop takes 2.2 ns.");
            const auto ours = pool<Z2DTrans>();
            const auto plain = pool();
            row.per(poolSize);
            row.tolerance(1e-11);
            row.ours([&] {
                Z2DTrans all;
                for (const Z2DTrans& each : ours)
                    all.compose(each);
                return all(0, 1);
            });
            const auto stored = pool<StoredMatrix>();
            row.peer("by hand", [&] {
                StoredMatrix all;
                for (const StoredMatrix& each : stored)
                    all.set(each.all() * all.all());
                return all.get(0, 1);
            });
            row.beside("by hand, inline", [&] {
                PlainMatrix all{1.0, 0.0, 0.0, 1.0};
                for (const PlainMatrix& each : plain)
                    all = each * all;
                return all.m01;
            });
#if BENCH_EIGEN
            const auto eigen = pool<Eigen::Matrix2d>();
            const auto dynamic = pool<Eigen::MatrixXd>();
            row.peer("Eigen", [&] {
                Eigen::MatrixXd all = Eigen::MatrixXd::Identity(2, 2);
                Eigen::MatrixXd next(2, 2);
                for (const Eigen::MatrixXd& each : dynamic) {
                    next.noalias() = each.lazyProduct(all);
                    all.swap(next);
                }
                return all(0, 1);
            });
            row.beside("Eigen, inline", [&] {
                Eigen::Matrix2d all = Eigen::Matrix2d::Identity();
                for (const Eigen::Matrix2d& each : eigen)
                    all = each * all;
                return all(0, 1);
            });
#endif
#if BENCH_QT
            const auto qt = pool<QTransform>();
            row.peer("Qt", [&] {
                QTransform all;
                for (const QTransform& each : qt)
                    all *= each;
                return all.m21();
            });
#endif
            measure();
        });
}

void inverseRow(Suite& suite) {
    suite.row(
        "2x2 inverse", 1.0,
        "1,024 matrices, each with the test for a singular one; per matrix. \"inline\": elements "
        "in the object, and no determinant that a derived class may override.",
        [](Row& row, const auto& measure) {
            row.why("Of 4.9 ns, 2.1 are the questions for the shape and for a determinant that a "
                    "derived class may override; without them the same loop takes 2.8 ns.");
            const auto ours = pool<Z2DTrans>();
            const auto plain = pool();
            Z2DTrans oursOut;
            PlainMatrix plainOut;
            row.per(poolSize);
            row.tolerance(1e-11);
            row.ours([&] {
                double sum = 0.0;
                for (const Z2DTrans& each : ours) {
                    if (each.invert(oursOut) == 0)
                        sum += oursOut(0, 0) + oursOut(0, 1);
                }
                return sum;
            });
            const auto stored = pool<StoredMatrix>();
            StoredMatrix storedOut;
            row.peer("by hand", [&] {
                double sum = 0.0;
                for (const StoredMatrix& each : stored) {
                    if (invert(each, storedOut))
                        sum += storedOut.get(0, 0) + storedOut.get(0, 1);
                }
                return sum;
            });
            row.beside("by hand, inline", [&] {
                double sum = 0.0;
                for (const PlainMatrix& each : plain) {
                    if (invert(each, plainOut))
                        sum += plainOut.m00 + plainOut.m01;
                }
                return sum;
            });
#if BENCH_EIGEN
            const auto eigen = pool<Eigen::Matrix2d>();
            Eigen::Matrix2d eigenOut;
            row.beside("Eigen, inline", [&] {
                double sum = 0.0;
                for (const Eigen::Matrix2d& each : eigen) {
                    bool invertible = false;
                    each.computeInverseWithCheck(eigenOut, invertible, 1e-9);
                    if (invertible)
                        sum += eigenOut(0, 0) + eigenOut(0, 1);
                }
                return sum;
            });
#endif
#if BENCH_QT
            const auto qt = pool<QTransform>();
            row.peer("Qt", [&] {
                double sum = 0.0;
                for (const QTransform& each : qt) {
                    bool invertible = false;
                    const QTransform inverse = each.inverted(&invertible);
                    if (invertible)
                        sum += inverse.m11() + inverse.m21();
                }
                return sum;
            });
#endif
            measure();
        });
}

void productRow(Suite& suite) {
    suite.row("2x2 product", 1.0,
              "1,024 products of neighbours; per product. \"inline\": elements in the object.",
              [](Row& row, const auto& measure) {
                  row.why("Of 3.7 ns, 2.0 are the questions for the shapes of all three matrices, "
                          "which assignment may change, and what the compiler reads again behind "
                          "them; without them the same loop takes 1.75 ns.");
                  const auto ours = pool<Z2DTrans>();
                  const auto plain = pool();
                  Z2DTrans oursOut;
                  PlainMatrix plainOut;
                  row.per(poolSize);
                  row.ours([&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          ours[i - 1].multiply(ours[i], oursOut);
                          sum += oursOut(0, 0) + oursOut(1, 0);
                      }
                      return sum;
                  });
                  const auto stored = pool<StoredMatrix>();
                  StoredMatrix storedOut;
                  row.peer("by hand", [&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          storedOut.set(stored[i - 1].all() * stored[i].all());
                          sum += storedOut.get(0, 0) + storedOut.get(1, 0);
                      }
                      return sum;
                  });
                  row.beside("by hand, inline", [&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          plainOut = plain[i - 1] * plain[i];
                          sum += plainOut.m00 + plainOut.m10;
                      }
                      return sum;
                  });
#if BENCH_EIGEN
                  const auto eigen = pool<Eigen::Matrix2d>();
                  Eigen::Matrix2d eigenOut;
                  const auto dynamic = pool<Eigen::MatrixXd>();
                  Eigen::MatrixXd dynamicOut(2, 2);
                  row.peer("Eigen", [&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          dynamicOut.noalias() = dynamic[i - 1].lazyProduct(dynamic[i]);
                          sum += dynamicOut(0, 0) + dynamicOut(1, 0);
                      }
                      return sum;
                  });
                  row.beside("Eigen, inline", [&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          eigenOut.noalias() = eigen[i - 1] * eigen[i];
                          sum += eigenOut(0, 0) + eigenOut(1, 0);
                      }
                      return sum;
                  });
#endif
                  measure();
              });
}

} // namespace

void transformRows(Suite& suite) {
    suite.topic("transforms");
    mapRow(suite, "1,000", 1000);
    mapRow(suite, "1,000,000", 1000000);
    composeRow(suite);
    inverseRow(suite);
    productRow(suite);
    matrixRows(suite);
    chainRows(suite);
}

} // namespace bench
