#include "../rows.h"
#include "plane.h"

#include <zarnex/geometry/DPoint.h>
#include <zarnex/geometry/DVector.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>

#if BENCH_BOOST
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#endif
#if BENCH_EIGEN
#include <Eigen/Core>
#endif
#if BENCH_QT
#include <QLineF>
#include <QPoint>
#include <QPointF>
#endif

#include <climits>
#include <cmath>
#include <vector>

namespace bench {

namespace {

#if BENCH_BOOST
using BoostPoint = boost::geometry::model::d2::point_xy<double>;
#endif

/// Places and steps of one library's types, the same for all.
template <class Place, class Step = Place>
struct Field {
    Array<Place> places;
    Array<Step> steps;
    mutable Array<Place> out;

    explicit Field(std::size_t count)
        : places(pairedOnPages<Place>(randomNumbers(2 * count, -100.0, 100.0, 1))),
          steps(pairedOnPages<Step>(randomNumbers(2 * count, -100.0, 100.0, 2))), out(places) {}

    /// Fills `out` by `move`, and tells of a few.
    template <class Move>
    auto each(Move move) const {
        return [this, move] {
            const Move local(move); // as the parameters of a function would be
            const std::size_t count = places.size();
            for (std::size_t i = 0; i < count; ++i)
                out[i] = local(places[i], steps[i]);
            double told = 0.0;
            for (std::size_t i = 0; i < count; i += count / 8)
                told += coordinates(out[i]);
            return told;
        };
    }

    /// The sum of what `measure` makes of each.
    template <class Measure>
    auto sum(Measure measure) const {
        return [this, measure] {
            const std::size_t count = places.size();
            double sum = 0.0;
            for (std::size_t i = 0; i < count; ++i)
                sum += measure(places[i], steps[i]);
            return sum;
        };
    }

private:
    template <class P>
    static double coordinates(const P& p) {
        if constexpr (requires { p.x(); })
            return p.x() + 3.0 * p.y();
        else
            return p.x + 3.0 * p.y;
    }
};

Plain normalized(const Plain& p) {
    const double squared = p.x * p.x + p.y * p.y;
    if (!(squared > 1e-11))
        return p;
    const double inverse = 1.0 / std::sqrt(squared);
    return {p.x * inverse, p.y * inverse};
}

void moveRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row("move, " + name, 1.0, "p + v * s into another array; per point.",
              [count](Row& row, const auto& measure) {
                  const volatile double factor = 0.75;
                  const double s = factor;
                  const Field<DPoint, DVector> ours(count);
                  const Field<Plain> plain(count);
                  row.per(static_cast<double>(count));
                  row.ours(ours.each([s](const DPoint& p, const DVector& v) { return p + v * s; }));
                  row.peer("by hand", plain.each([s](const Plain& p, const Plain& v) {
                      return Plain{p.x + v.x * s, p.y + v.y * s};
                  }));
#if BENCH_EIGEN
                  using Vector = Eigen::Vector2d;
                  const Field<Vector> eigen(count);
                  row.peer("Eigen", eigen.each([s](const Vector& p, const Vector& v) -> Vector {
                      return p + v * s;
                  }));
#endif
#if BENCH_QT
                  const Field<QPointF> qt(count);
                  row.peer("Qt",
                           qt.each([s](const QPointF& p, const QPointF& v) { return p + v * s; }));
#endif
#if BENCH_BOOST
                  const Field<BoostPoint> boost(count);
                  row.peer("Boost", boost.each([s](const BoostPoint& p, BoostPoint v) {
                      boost::geometry::multiply_value(v, s);
                      boost::geometry::add_point(v, p);
                      return v;
                  }));
#endif
                  measure();
              });
}

void productRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row("products, " + name, 1.0,
              "The sum of the dot and the cross product and the length; per vector.",
              [count](Row& row, const auto& measure) {
                  const Field<DVector> ours(count);
                  const Field<Plain> plain(count);
                  row.per(static_cast<double>(count));
                  row.ours(ours.sum([](const DVector& u, const DVector& v) {
                      return u * v + u.cross(v) + u.length();
                  }));
                  row.peer("by hand", plain.sum([](const Plain& u, const Plain& v) {
                      return u.x * v.x + u.y * v.y + (u.x * v.y - u.y * v.x) +
                             std::sqrt(u.x * u.x + u.y * u.y);
                  }));
#if BENCH_EIGEN
                  using Vector = Eigen::Vector2d;
                  const Field<Vector> eigen(count);
                  row.peer("Eigen", eigen.sum([](const Vector& u, const Vector& v) {
                      return u.dot(v) + (u.x() * v.y() - u.y() * v.x()) + u.norm();
                  }));
#endif
#if BENCH_QT
                  const Field<QPointF> qt(count);
                  row.peer("Qt", qt.sum([](const QPointF& u, const QPointF& v) {
                      return QPointF::dotProduct(u, v) + (u.x() * v.y() - u.y() * v.x()) +
                             std::sqrt(QPointF::dotProduct(u, u));
                  }));
#endif
#if BENCH_BOOST
                  const Field<BoostPoint> boost(count);
                  row.peer("Boost", boost.sum([](const BoostPoint& u, const BoostPoint& v) {
                      return boost::geometry::dot_product(u, v) +
                             boost::geometry::cross_product(u, v).x() +
                             std::sqrt(boost::geometry::dot_product(u, u));
                  }));
#endif
                  measure();
              });
}

void distanceRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row(
        "distances, " + name, 1.0, "The sum of the distances of pairs; per pair.",
        [count](Row& row, const auto& measure) {
            const Field<DPoint> ours(count);
            const Field<Plain> plain(count);
            row.tolerance(1e-12);
            row.per(static_cast<double>(count));
            row.ours(ours.sum([](const DPoint& p, const DPoint& q) { return p.distance(q); }));
            row.peer("by hand", plain.sum([](const Plain& p, const Plain& q) {
                const double x = q.x - p.x;
                const double y = q.y - p.y;
                return std::sqrt(x * x + y * y);
            }));
#if BENCH_EIGEN
            using Vector = Eigen::Vector2d;
            const Field<Vector> eigen(count);
            row.peer("Eigen",
                     eigen.sum([](const Vector& p, const Vector& q) { return (q - p).norm(); }));
#endif
#if BENCH_QT
            const Field<QPointF> qt(count);
            row.peer("Qt", qt.sum([](const QPointF& p, const QPointF& q) {
                return QLineF(p, q).length();
            }));
#endif
#if BENCH_BOOST
            const Field<BoostPoint> boost(count);
            row.peer("Boost", boost.sum([](const BoostPoint& p, const BoostPoint& q) {
                return boost::geometry::distance(p, q);
            }));
#endif
            measure();
        });
}

void normalizeRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row("normalise, " + name, 1.0,
              "Vectors at length 1 into another array, short ones as they are; per vector.",
              [count](Row& row, const auto& measure) {
                  const Field<DVector> ours(count);
                  const Field<Plain> plain(count);
                  row.tolerance(1e-12);
                  row.per(static_cast<double>(count));
                  row.ours(
                      ours.each([](const DVector& v, const DVector&) { return v.normalize(); }));
                  row.peer("by hand",
                           plain.each([](const Plain& v, const Plain&) { return normalized(v); }));
#if BENCH_EIGEN
                  using Vector = Eigen::Vector2d;
                  const Field<Vector> eigen(count);
                  row.peer("Eigen", eigen.each([](const Vector& v, const Vector&) -> Vector {
                      return v.normalized();
                  }));
#endif
                  measure();
              });
}

/// The nearest int for what does not fit, 0 for NaN: what a cast leaves undefined.
int truncate(double value) {
    if (value > -2147483649.0 && value < 2147483648.0)
        return static_cast<int>(value);
    return value > 0.0 ? INT_MAX : value < 0.0 ? INT_MIN : 0;
}

struct PlainInts {
    int x;
    int y;
};

void integerRow(Suite& suite, const std::string& name, std::size_t count) {
    suite.row(
        "integer points, " + name, 1.0, "p + (q - p) * 0.5, truncated; per point.",
        [count](Row& row, const auto& measure) {
            Array<IPoint> ours;
            Array<PlainInts> plain;
            for (const Plain& p : pairedOnPages<Plain>(randomNumbers(2 * count, -1e6, 1e6, 1))) {
                plain.push_back({static_cast<int>(p.x), static_cast<int>(p.y)});
                ours.push_back(IPoint(plain.back().x, plain.back().y));
            }
            Array<IPoint> oursOut(ours);
            Array<PlainInts> plainOut(plain);
            const std::size_t last = count - 1;
            row.per(static_cast<double>(count));
            row.ours([&] {
                for (std::size_t i = 0; i < last; ++i)
                    oursOut[i] = ours[i] + (ours[i + 1] - ours[i]) * 0.5;
                return oursOut[last / 2].x + 3.0 * oursOut[last / 3].y;
            });
            row.peer("by hand", [&] {
                for (std::size_t i = 0; i < last; ++i) {
                    const PlainInts p = plain[i];
                    const PlainInts q = plain[i + 1];
                    plainOut[i] = {p.x + truncate((q.x - p.x) * 0.5),
                                   p.y + truncate((q.y - p.y) * 0.5)};
                }
                return plainOut[last / 2].x + 3.0 * plainOut[last / 3].y;
            });
            row.beside("by hand, unchecked", [&] {
                for (std::size_t i = 0; i < last; ++i) {
                    const PlainInts p = plain[i];
                    const PlainInts q = plain[i + 1];
                    plainOut[i] = {p.x + static_cast<int>((q.x - p.x) * 0.5),
                                   p.y + static_cast<int>((q.y - p.y) * 0.5)};
                }
                return plainOut[last / 2].x + 3.0 * plainOut[last / 3].y;
            });
#if BENCH_EIGEN
            Array<Eigen::Vector2i> eigen;
            for (const PlainInts& p : plain)
                eigen.emplace_back(p.x, p.y);
            Array<Eigen::Vector2i> eigenOut(eigen);
            row.beside("Eigen, unchecked", [&] {
                for (std::size_t i = 0; i < last; ++i)
                    eigenOut[i] =
                        eigen[i] + ((eigen[i + 1] - eigen[i]).cast<double>() * 0.5).cast<int>();
                return eigenOut[last / 2].x() + 3.0 * eigenOut[last / 3].y();
            });
#endif
            measure();
        });
    suite.row("integer sums, " + name, 1.0, "p + (q - r), which wraps; per point.",
              [count](Row& row, const auto& measure) {
                  Array<IPoint> ours;
                  Array<PlainInts> plain;
                  for (const Plain& p :
                       pairedOnPages<Plain>(randomNumbers(2 * count, -1e6, 1e6, 1))) {
                      plain.push_back({static_cast<int>(p.x), static_cast<int>(p.y)});
                      ours.push_back(IPoint(plain.back().x, plain.back().y));
                  }
                  Array<IPoint> oursOut(ours);
                  Array<PlainInts> plainOut(plain);
                  const std::size_t last = count - 2;
                  row.per(static_cast<double>(count));
                  row.ours([&] {
                      for (std::size_t i = 0; i < last; ++i)
                          oursOut[i] = ours[i] + (ours[i + 1] - ours[i + 2]);
                      return oursOut[last / 2].x + 3.0 * oursOut[last / 3].y;
                  });
                  row.peer("by hand", [&] {
                      for (std::size_t i = 0; i < last; ++i) {
                          const PlainInts p = plain[i];
                          const PlainInts step = {plain[i + 1].x - plain[i + 2].x,
                                                  plain[i + 1].y - plain[i + 2].y};
                          plainOut[i] = {p.x + step.x, p.y + step.y};
                      }
                      return plainOut[last / 2].x + 3.0 * plainOut[last / 3].y;
                  });
#if BENCH_QT
                  Array<QPoint> qt;
                  for (const PlainInts& p : plain)
                      qt.push_back(QPoint(p.x, p.y));
                  Array<QPoint> qtOut(qt);
                  row.peer("Qt", [&] {
                      for (std::size_t i = 0; i < last; ++i)
                          qtOut[i] = qt[i] + (qt[i + 1] - qt[i + 2]);
                      return qtOut[last / 2].x() + 3.0 * qtOut[last / 3].y();
                  });
#endif
#if BENCH_EIGEN
                  Array<Eigen::Vector2i> eigen;
                  for (const PlainInts& p : plain)
                      eigen.emplace_back(p.x, p.y);
                  Array<Eigen::Vector2i> eigenOut(eigen);
                  row.peer("Eigen", [&] {
                      for (std::size_t i = 0; i < last; ++i)
                          eigenOut[i] = eigen[i] + (eigen[i + 1] - eigen[i + 2]);
                      return eigenOut[last / 2].x() + 3.0 * eigenOut[last / 3].y();
                  });
#endif
                  measure();
              });
}

} // namespace

void pointRows(Suite& suite) {
    suite.topic("points");
    const struct {
        const char* name;
        std::size_t count;
    } sizes[] = {{"500", 500}, {"1,000,000", 1000000}};
    for (const auto& size : sizes) {
        moveRow(suite, size.name, size.count);
        productRow(suite, size.name, size.count);
        distanceRow(suite, size.name, size.count);
        normalizeRow(suite, size.name, size.count);
        integerRow(suite, size.name, size.count);
    }
}

} // namespace bench
