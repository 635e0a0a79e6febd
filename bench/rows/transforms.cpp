#include "../rows.h"
#include "plane.h"

#include <zarnex/transforms/CompositeTrans.h>
#include <zarnex/transforms/Z2DTrans.h>

#if BENCH_EIGEN
#include <Eigen/Dense>
#endif
#if BENCH_QT
#include <QPointF>
#include <QTransform>
#endif

#include <cmath>
#include <list>
#include <memory>
#include <vector>

namespace bench {

namespace {

constexpr std::size_t poolSize = 1024;

/// A 2 x 2 matrix as one writes it by hand.
struct PlainMatrix {
    double m00, m01, m10, m11;
};

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
        } else {
            Matrix matrix;
#if BENCH_EIGEN
            if constexpr (std::is_same_v<Matrix, Eigen::Matrix2d>)
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
auto mapAll(const std::vector<Place>& places, std::vector<Place>& out, Map map) {
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
        "map points, " + name, 1.0, "Points by one linear transform into another array; per point.",
        [count](Row& row, const auto& measure) {
            const std::vector<double> numbers = randomNumbers(2 * count, -100.0, 100.0, 1);
            const auto ours = paired<DPoint>(numbers);
            const auto plain = paired<Plain>(numbers);
            auto oursOut = ours;
            auto plainOut = plain;
            const Z2DTrans t = pool<Z2DTrans>()[1];
            const PlainMatrix m = pool()[1];
            row.per(static_cast<double>(count));
            row.why("The elements stand behind a pointer, in storage of the matrix's own. The "
                    "compiler has to expect that a point written is one of them, and reads all "
                    "four again for each point; those of a plain structure stay in registers. With "
                    "1,000,000 points memory sets the pace.");
            row.ours(mapAll(ours, oursOut, [&t](const DPoint& p) { return t * p; }));
            row.peer("by hand", mapAll(plain, plainOut, [&m](const Plain& p) { return m * p; }));
#if BENCH_EIGEN
            using Vector = Eigen::Vector2d;
            const Eigen::Matrix2d e = pool<Eigen::Matrix2d>()[1];
            const auto eigen = paired<Vector>(numbers);
            auto eigenOut = eigen;
            row.peer("Eigen",
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
            const auto qt = paired<QPointF>(numbers);
            auto qtOut = qt;
            row.peer("Qt", mapAll(qt, qtOut, [&q](const QPointF& p) { return q.map(p); }));
#endif
            measure();
        });
}

void composeRow(Suite& suite) {
    suite.row("compose", 1.0, "One transform after another, 1,024 in a row; per transform.",
              [](Row& row, const auto& measure) {
                  const auto ours = pool<Z2DTrans>();
                  const auto plain = pool();
                  row.per(poolSize);
                  row.tolerance(1e-11);
                  row.why(
                      "Each result goes through the storage of the matrix, and the next step waits "
                      "until it can be read back; the plain structure stays in registers.");
                  row.ours([&] {
                      Z2DTrans all;
                      for (const Z2DTrans& each : ours)
                          all.compose(each);
                      return all(0, 1);
                  });
                  row.peer("by hand", [&] {
                      PlainMatrix all{1.0, 0.0, 0.0, 1.0};
                      for (const PlainMatrix& each : plain)
                          all = each * all;
                      return all.m01;
                  });
#if BENCH_EIGEN
                  const auto eigen = pool<Eigen::Matrix2d>();
                  row.peer("Eigen", [&] {
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
        "2x2 inverse", 1.0, "1,024 matrices, each with the test for a singular one; per matrix.",
        [](Row& row, const auto& measure) {
            const auto ours = pool<Z2DTrans>();
            const auto plain = pool();
            Z2DTrans oursOut;
            PlainMatrix plainOut;
            row.per(poolSize);
            row.tolerance(1e-11);
            row.why("det() is a virtual call, which derived classes may override, and each element "
                    "is divided by it, as rounding is fixed; Eigen multiplies by one reciprocal.");
            row.ours([&] {
                double sum = 0.0;
                for (const Z2DTrans& each : ours) {
                    if (each.invert(oursOut) == 0)
                        sum += oursOut(0, 0) + oursOut(0, 1);
                }
                return sum;
            });
            row.peer("by hand", [&] {
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
            row.peer("Eigen", [&] {
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
    suite.row("2x2 product", 1.0, "1,024 products of neighbours; per product.",
              [](Row& row, const auto& measure) {
                  const auto ours = pool<Z2DTrans>();
                  const auto plain = pool();
                  Z2DTrans oursOut;
                  PlainMatrix plainOut;
                  row.per(poolSize);
                  row.why("The elements of all three matrices stand behind pointers, which takes "
                          "more reading, and their shapes are looked at before.");
                  row.ours([&] {
                      double sum = 0.0;
                      for (std::size_t i = 1; i < poolSize; ++i) {
                          ours[i - 1].multiply(ours[i], oursOut);
                          sum += oursOut(0, 0) + oursOut(1, 0);
                      }
                      return sum;
                  });
                  row.peer("by hand", [&] {
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
                  row.peer("Eigen", [&] {
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

void matrixRow(Suite& suite) {
    suite.row("8x8 product", 1.5, "Two matrices of 8 x 8, into a third.",
              [](Row& row, const auto& measure) {
                  constexpr int size = 8;
                  const auto a = randomNumbers(size * size, -1.0, 1.0, 4);
                  const auto b = randomNumbers(size * size, -1.0, 1.0, 5);
                  const ZMatrix<double> oursA(size, size, a.data());
                  const ZMatrix<double> oursB(size, size, b.data());
                  ZMatrix<double> oursOut(size, size, nullptr);
                  row.tolerance(1e-12);
                  row.ours([&] {
                      oursA.multiply(oursB, oursOut);
                      return oursOut(3, 5);
                  });
#if BENCH_EIGEN
                  using Rows =
                      Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
                  using Fixed = Eigen::Matrix<double, size, size, Eigen::RowMajor>;
                  const Eigen::MatrixXd eigenA = Eigen::Map<const Rows>(a.data(), size, size);
                  const Eigen::MatrixXd eigenB = Eigen::Map<const Rows>(b.data(), size, size);
                  Eigen::MatrixXd eigenOut(size, size);
                  row.peer("Eigen", [&] {
                      eigenOut.noalias() = eigenA * eigenB;
                      return eigenOut(3, 5);
                  });
                  const Fixed fixedA(a.data());
                  const Fixed fixedB(b.data());
                  Fixed fixedOut;
                  row.beside("Eigen, fixed size", [&] {
                      fixedOut.noalias() = fixedA * fixedB;
                      return fixedOut(3, 5);
                  });
#endif
                  double plainA[size][size];
                  double plainB[size][size];
                  double plainOut[size][size];
                  std::copy(a.begin(), a.end(), plainA[0]);
                  std::copy(b.begin(), b.end(), plainB[0]);
                  row.beside("by hand, fixed size", [&] {
                      for (int i = 0; i < size; ++i) {
                          for (int j = 0; j < size; ++j) {
                              double sum = 0.0;
                              for (int k = 0; k < size; ++k)
                                  sum += plainA[i][k] * plainB[k][j];
                              plainOut[i][j] = sum;
                          }
                      }
                      return plainOut[3][5];
                  });
                  measure();
              });
}

// Members of a chain, for the library's base class and for one written by hand.

struct PlainStep {
    virtual ~PlainStep() = default;
    virtual Plain transform(const Plain& p) = 0;
    virtual Plain reverseTransform(const Plain& p) = 0;
};

template <class Base, class P>
class Shift : public Base {
public:
    Shift(double x, double y) : x_(x), y_(y) {}
    P transform(const P& p) override {
        return P{p.x + x_, p.y + y_};
    }
    P reverseTransform(const P& p) override {
        return P{p.x - x_, p.y - y_};
    }

private:
    double x_;
    double y_;
};

template <class Base, class P>
class Turn : public Base {
public:
    explicit Turn(const PlainMatrix& m) : m_(m) {}
    P transform(const P& p) override {
        return P{m_.m00 * p.x + m_.m01 * p.y, m_.m10 * p.x + m_.m11 * p.y};
    }
    P reverseTransform(const P& p) override {
        return P{m_.m00 * p.x + m_.m10 * p.y, m_.m01 * p.x + m_.m11 * p.y};
    }

private:
    PlainMatrix m_;
};

/// Shift and turn in turn, six steps.
template <class Base, class P, class Add>
void addSteps(Add add) {
    const std::vector<PlainMatrix> turns = pool();
    for (std::size_t i = 0; i < 3; ++i) {
        add(new Shift<Base, P>(1.5, -0.25));
        add(new Turn<Base, P>(turns[i]));
    }
}

template <template <class...> class Steps>
class PlainChain {
public:
    PlainChain() {
        addSteps<PlainStep, Plain>([this](PlainStep* step) { steps_.emplace_back(step); });
    }
    Plain transform(const Plain& p) {
        Plain image = p;
        for (const auto& step : steps_)
            image = step->transform(image);
        return image;
    }
    Plain reverseTransform(const Plain& p) {
        Plain image = p;
        for (auto step = steps_.rbegin(); step != steps_.rend(); ++step)
            image = (*step)->reverseTransform(image);
        return image;
    }

private:
    Steps<std::unique_ptr<PlainStep>> steps_;
};

template <class Chain, class P>
auto thereAndBack(Chain& chain, const std::vector<P>& places) {
    return [&chain, &places] {
        double sum = 0.0;
        for (const P& p : places) {
            const P there = chain.transform(p);
            sum += there.x + chain.reverseTransform(there).y;
        }
        return sum;
    };
}

void chainRow(Suite& suite) {
    suite.row("chain", 1.0,
              "1,000 points through a chain of six virtual transforms and back; per point.",
              [](Row& row, const auto& measure) {
                  const std::vector<double> numbers = randomNumbers(2000, -100.0, 100.0, 1);
                  const auto ours = paired<DPoint>(numbers);
                  const auto plain = paired<Plain>(numbers);
                  CompositeTrans<DPoint> chain(1);
                  addSteps<ArbTrans<DPoint>, DPoint>(
                      [&chain](ArbTrans<DPoint>* step) { chain.addTrans(step); });
                  PlainChain<std::list> listed;
                  PlainChain<std::vector> contiguous;
                  row.per(1000);
                  row.ours(thereAndBack(chain, ours));
                  row.peer("by hand", thereAndBack(listed, plain));
                  row.beside("by hand, vector", thereAndBack(contiguous, plain));
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
    matrixRow(suite);
    chainRow(suite);
}

} // namespace bench
