#include "../rows.h"
#include "plane.h"

#include <zarnex/geometry/DRECT.h>
#include <zarnex/geometry/circleCentre.h>
#include <zarnex/geometry/lineFit.h>
#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>

#if BENCH_BOOST
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#endif
#if BENCH_EIGEN
#include <Eigen/Dense>
#endif
#if BENCH_GEOS
#include <geos_c.h>
#endif
#if BENCH_GSL
#include <gsl/gsl_fit.h>
#endif
#if BENCH_QT
#include <QLineF>
#include <QRectF>
#endif

#include <algorithm>
#include <cmath>
#include <list>
#include <vector>

namespace bench {

namespace {

constexpr std::size_t cases = 4096;

#if BENCH_BOOST
namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostSegment = bg::model::segment<BoostPoint>;
using BoostBox = bg::model::box<BoostPoint>;
#endif

/// A pool of cases, each of as many neighbouring points as it takes.
template <class P>
Array<P> places(std::size_t each) {
    return pairedOnPages<P>(randomNumbers(2 * each * cases, -100.0, 100.0, 1));
}

/// The sum of what `measure` makes of each case of the pool, given its first point.
template <std::size_t Each, class Pool, class Measure>
auto sumOver(const Pool& pool, Measure measure) {
    return [&pool, measure] {
        double sum = 0.0;
        for (std::size_t i = 0; i < cases; ++i)
            sum += measure(&pool[i * Each]);
        return sum;
    };
}

// By hand: the same formulas and guarantees on plain structures.

Plain operator-(const Plain& p, const Plain& q) {
    return {p.x - q.x, p.y - q.y};
}

double dot(const Plain& u, const Plain& v) {
    return u.x * v.x + u.y * v.y;
}

double cross(const Plain& u, const Plain& v) {
    return u.x * v.y - u.y * v.x;
}

Plain normalized(const Plain& v) {
    const double squared = dot(v, v);
    if (!(squared > 1e-11))
        return v;
    const double inverse = 1.0 / std::sqrt(squared);
    return {v.x * inverse, v.y * inverse};
}

bool plainIntersect(Plain& out, const Plain* p) {
    const double a1 = p[1].y - p[0].y;
    const double b1 = -(p[1].x - p[0].x);
    const double c1 = a1 * p[0].x + b1 * p[0].y;
    const double a2 = p[3].y - p[2].y;
    const double b2 = -(p[3].x - p[2].x);
    const double c2 = a2 * p[2].x + b2 * p[2].y;
    const double det = a1 * b2 - b1 * a2;
    if (std::fabs(det) < 1e-14)
        return false;
    out = {(c1 * b2 - b1 * c2) / det, (a1 * c2 - c1 * a2) / det};
    return true;
}

bool plainBetween(double v, double a, double b) {
    return a < b ? a <= v && v <= b : a == b || (b <= v && v <= a);
}

bool plainMeet(const Plain* p) {
    Plain at;
    return plainIntersect(at, p) && plainBetween(at.x, p[0].x, p[1].x) &&
           plainBetween(at.y, p[0].y, p[1].y) && plainBetween(at.x, p[2].x, p[3].x) &&
           plainBetween(at.y, p[2].y, p[3].y);
}

double plainSegmentDistance(const Plain* p) {
    const Plain d = p[1] - p[0];
    const double squared = dot(d, d);
    const double s = dot(p[2] - p[0], d);
    Plain at = p[0];
    if (squared > 9.999999999999998e-15 && s > 0.0)
        at = s < squared ? Plain{p[0].x + d.x * (s / squared), p[0].y + d.y * (s / squared)} : p[1];
    const Plain way = p[2] - at;
    return std::sqrt(dot(way, way));
}

int plainTurn(const Plain* p) {
    const double k = cross(normalized(p[1] - p[0]), normalized(p[2] - p[1]));
    return k > 0.0 ? 1 : k < 0.0 ? -1 : 0;
}

bool plainCentre(Plain& centre, const Plain* p) {
    const auto same = [](const Plain& a, const Plain& b) {
        return std::fabs(a.x - b.x) <= 1e-7 && std::fabs(a.y - b.y) <= 1e-7;
    };
    if (same(p[2], p[1]) || same(p[1], p[0]) || same(p[2], p[0]))
        return false;
    if (std::fabs(cross(normalized(p[1] - p[0]), normalized(p[2] - p[0]))) < 0.01)
        return false;
    const double ax = 2.0 * (p[0].x - p[1].x);
    const double ay = 2.0 * (p[0].y - p[1].y);
    const double ar = dot(p[0], p[0]) - dot(p[1], p[1]);
    const double bx = 2.0 * (p[0].x - p[2].x);
    const double by = 2.0 * (p[0].y - p[2].y);
    const double br = dot(p[0], p[0]) - dot(p[2], p[2]);
    const double det = ax * by - bx * ay;
    if (std::fabs(det) <= 1e-9)
        return false;
    centre = {(ar * by - br * ay) / det, (ax * br - bx * ar) / det};
    return true;
}

/// The same as a library has it: behind a call, with the centre in memory.
[[gnu::noinline]] bool calledCentre(Plain& centre, const Plain* p) {
    return plainCentre(centre, p);
}

void meetRow(Suite& suite) {
    suite.row(
        "segments meet", 1.0, "Whether two random segments have a point in common.",
        [](Row& row, const auto& measure) {
            row.why("The point found is compared with the four ends, as the outcome is fixed; Qt "
                    "compares the two parameters. By hand, the same comparisons take nearly twice "
                    "our time.");
            const auto ours = places<DPoint>(4);
            const auto plain = places<Plain>(4);
            row.per(cases);
            row.ours(sumOver<4>(ours, [](const DPoint* p) {
                return isContainedIntersect(p[0], p[1], p[2], p[3]);
            }));
            row.peer("by hand", sumOver<4>(plain, [](const Plain* p) { return plainMeet(p); }));
#if BENCH_BOOST
            const auto boost = places<BoostPoint>(4);
            row.peer("Boost", sumOver<4>(boost, [](const BoostPoint* p) {
                         return bg::intersects(BoostSegment(p[0], p[1]), BoostSegment(p[2], p[3]));
                     }));
#endif
#if BENCH_QT
            const auto qt = places<QPointF>(4);
            row.peer("Qt", sumOver<4>(qt, [](const QPointF* p) {
                         return QLineF(p[0], p[1]).intersects(QLineF(p[2], p[3])) ==
                                QLineF::BoundedIntersection;
                     }));
#endif
#if BENCH_GEOS
            row.peer("GEOS", sumOver<4>(plain, [](const Plain* p) {
                         double x = 0.0;
                         double y = 0.0;
                         return GEOSSegmentIntersection(p[0].x, p[0].y, p[1].x, p[1].y, p[2].x,
                                                        p[2].y, p[3].x, p[3].y, &x, &y) == 1;
                     }));
#endif
            measure();
        });
}

void lineRow(Suite& suite) {
    suite.row(
        "line intersection", 1.0, "Where two lines meet, each through two points.",
        [](Row& row, const auto& measure) {
            const auto ours = places<DPoint>(4);
            const auto plain = places<Plain>(4);
            row.per(cases);
            row.tolerance(1e-9);
            row.ours(sumOver<4>(ours, [](const DPoint* p) {
                DPoint at;
                return intersect(at, p[0], p[1], p[2], p[3]) == 0 ? at.x + at.y : 0.0;
            }));
            row.peer("by hand", sumOver<4>(plain, [](const Plain* p) {
                         Plain at;
                         return plainIntersect(at, p) ? at.x + at.y : 0.0;
                     }));
#if BENCH_EIGEN
            using Vector = Eigen::Vector2d;
            using Line = Eigen::Hyperplane<double, 2>;
            const auto eigen = places<Vector>(4);
            row.peer(
                "Eigen", sumOver<4>(eigen, [](const Vector* p) {
                    return Line::Through(p[0], p[1]).intersection(Line::Through(p[2], p[3])).sum();
                }));
#endif
#if BENCH_QT
            const auto qt = places<QPointF>(4);
            row.peer("Qt", sumOver<4>(qt, [](const QPointF* p) {
                         QPointF at;
                         return QLineF(p[0], p[1]).intersects(QLineF(p[2], p[3]), &at) !=
                                        QLineF::NoIntersection
                                    ? at.x() + at.y()
                                    : 0.0;
                     }));
#endif
            measure();
        });
}

void segmentRow(Suite& suite) {
    suite.row("point to segment", 1.0, "The distance of a point from a segment.",
              [](Row& row, const auto& measure) {
                  const auto ours = places<DPoint>(3);
                  const auto plain = places<Plain>(3);
                  row.per(cases);
                  row.tolerance(1e-12);
                  row.ours(sumOver<3>(ours, [](const DPoint* p) {
                      return distanceToLineSegment(p[0], p[1], p[2]);
                  }));
                  row.peer("by hand", sumOver<3>(plain, plainSegmentDistance));
#if BENCH_BOOST
                  const auto boost = places<BoostPoint>(3);
                  row.peer("Boost", sumOver<3>(boost, [](const BoostPoint* p) {
                               return bg::distance(p[2], BoostSegment(p[0], p[1]));
                           }));
#endif
                  measure();
              });
}

void turnRow(Suite& suite) {
    suite.row(
        "orientation", 1.0, "Whether three points turn left or right.",
        [](Row& row, const auto& measure) {
            const auto ours = places<DPoint>(3);
            const auto plain = places<Plain>(3);
            row.per(cases);
            row.ours(
                sumOver<3>(ours, [](const DPoint* p) { return Are3PointsCCW(p[0], p[1], p[2]); }));
            row.peer("by hand", sumOver<3>(plain, plainTurn));
            row.beside("by hand, cross product alone", sumOver<3>(plain, [](const Plain* p) {
                           const double k = cross(p[1] - p[0], p[2] - p[1]);
                           return k > 0.0 ? 1 : k < 0.0 ? -1 : 0;
                       }));
#if BENCH_BOOST
            const auto boost = places<BoostPoint>(3);
            row.peer("Boost", sumOver<3>(boost, [](const BoostPoint* p) {
                         return bg::strategy::side::side_by_triangle<>::apply(p[0], p[1], p[2]);
                     }));
#endif
#if BENCH_GEOS
            row.peer("GEOS", sumOver<3>(plain, [](const Plain* p) {
                         return GEOSOrientationIndex(p[0].x, p[0].y, p[1].x, p[1].y, p[2].x,
                                                     p[2].y);
                     }));
#endif
            measure();
        });
}

/// A star of 1,000 corners, from one place on.
std::vector<Plain> star(std::size_t from) {
    constexpr std::size_t corners = 1000;
    const std::vector<double> radii = randomNumbers(corners, 50.0, 100.0, 6);
    std::vector<Plain> outline;
    for (std::size_t i = 0; i < corners; ++i) {
        const std::size_t corner = (i + from) % corners;
        const double angle = 6.283185307 * static_cast<double>(corner) / corners;
        outline.push_back({radii[corner] * std::cos(angle), radii[corner] * std::sin(angle)});
    }
    return outline;
}

/// The sign of twice the area, over the corners in order.
template <class Ring>
int plainWinding(const Ring& ring) {
    double area = 0.0;
    const Plain* before = &ring.back();
    for (const Plain& p : ring) {
        area += cross(*before, p);
        before = &p;
    }
    return area > 0.0;
}

// By the turn at the topmost corner, as the library does.
int plainTopmostWinding(const std::list<Plain>& ring) {
    auto top = ring.begin();
    for (auto p = ring.begin(); p != ring.end(); ++p) {
        if (p->y > top->y)
            top = p;
    }
    const auto before = std::prev(top == ring.begin() ? ring.end() : top);
    const auto next = std::next(top);
    const Plain corner[] = {*before, *top, next == ring.end() ? ring.front() : *next};
    return plainTurn(corner) > 0;
}

void windingRow(Suite& suite) {
    suite.row("winding", 1.0, "The direction of an outline of 1,000 points in a list; per point.",
              [](Row& row, const auto& measure) {
                  const std::vector<Plain> outline = star(123);
                  std::list<DPoint> ours;
                  std::list<Plain> plain;
                  for (const Plain& p : outline) {
                      ours.push_back(DPoint(p.x, p.y));
                      plain.push_back(p);
                  }
                  row.per(static_cast<double>(outline.size()));
                  row.ours([&] {
                      int valid = 0;
                      return isCCWSTDListDPoint(valid, ours);
                  });
                  row.peer("by hand", [&] { return plainTopmostWinding(plain); });
                  row.peer("by hand, area", [&] { return plainWinding(plain); });
                  row.beside("array, by hand, area", [&] { return plainWinding(outline); });
#if BENCH_BOOST
                  bg::model::polygon<BoostPoint, false> boost;
                  for (const Plain& p : outline)
                      bg::append(boost.outer(), BoostPoint(p.x, p.y));
                  bg::append(boost.outer(), BoostPoint(outline[0].x, outline[0].y));
                  row.beside("array, Boost area", [&] { return bg::area(boost) > 0.0; });
#endif
#if BENCH_GEOS
                  const auto size = static_cast<unsigned>(outline.size());
                  GEOSCoordSequence* const geos = GEOSCoordSeq_create(size + 1, 2);
                  for (unsigned i = 0; i <= size; ++i) {
                      GEOSCoordSeq_setX(geos, i, outline[i % size].x);
                      GEOSCoordSeq_setY(geos, i, outline[i % size].y);
                  }
                  row.beside("array, GEOS", [&] {
                      char isCcw = 0;
                      GEOSCoordSeq_isCCW(geos, &isCcw);
                      return isCcw;
                  });
#endif
                  measure();
#if BENCH_GEOS
                  GEOSCoordSeq_destroy(geos);
#endif
              });
}

double plainFit(const std::list<Plain>& pts) {
    double sumX = 0.0;
    double sumY = 0.0;
    for (const Plain& p : pts) {
        sumX += p.x;
        sumY += p.y;
    }
    const double count = static_cast<double>(pts.size());
    const double mx = sumX / count;
    const double my = sumY / count;
    double sxx = 0.0;
    double sxy = 0.0;
    double syy = 0.0;
    for (const Plain& p : pts) {
        const double dx = p.x - mx;
        const double dy = p.y - my;
        sxx += dx * dx;
        sxy += dx * dy;
        syy += dy * dy;
    }
    const double spread = sxx - syy;
    return 2.0 * sxy / (spread + std::sqrt(spread * spread + 4.0 * (sxy * sxy)));
}

void fitRow(Suite& suite) {
    suite.row("line fit", 1.0, "The slope of the best line through 1,000 points; per point.",
              [](Row& row, const auto& measure) {
                  // So close to a line that both kinds of least squares find the same one.
                  std::list<DPoint> ours;
                  std::list<Plain> plain;
                  std::vector<double> coordinates;
                  for (const Plain& p : paired<Plain>(randomNumbers(2000, -1.0, 1.0, 1))) {
                      const Plain at{100.0 * p.x, 75.0 * p.x + 1e-6 * p.y};
                      ours.push_back(DPoint(at.x, at.y));
                      plain.push_back(at);
                      coordinates.insert(coordinates.end(), {at.x, at.y});
                  }
                  row.per(1000);
                  row.tolerance(1e-9);
                  row.ours([&] {
                      double a = 0.0;
                      double b = 0.0;
                      double c = 0.0;
                      fitToLine(ours, a, b, c);
                      return -a / b;
                  });
                  row.peer("by hand", [&] { return plainFit(plain); });
#if BENCH_GSL
                  row.peer("GSL, array", [&] {
                      double c0 = 0.0;
                      double c1 = 0.0;
                      double ignored = 0.0;
                      gsl_fit_linear(&coordinates[0], 2, &coordinates[1], 2, 1000, &c0, &c1,
                                     &ignored, &ignored, &ignored, &ignored);
                      return c1;
                  });
#endif
#if BENCH_EIGEN
                  const Eigen::Map<const Eigen::Matrix2Xd> eigen(coordinates.data(), 2, 1000);
                  row.beside("array, Eigen", [&] {
                      const Eigen::Vector2d mean = eigen.rowwise().mean();
                      const Eigen::Matrix2Xd centred = eigen.colwise() - mean;
                      const Eigen::Matrix2d spreads = centred * centred.transpose();
                      Eigen::SelfAdjointEigenSolver<Eigen::Matrix2d> solver;
                      solver.computeDirect(spreads);
                      const Eigen::Vector2d along = solver.eigenvectors().col(1);
                      return along.y() / along.x();
                  });
#endif
                  measure();
              });
}

void centreRow(Suite& suite) {
    suite.row("circle centre", 1.0, "The centre of the circle through three points.",
              [](Row& row, const auto& measure) {
                  row.why("A call, and the centre through memory: the same by hand stands beside. "
                          "Short steps and overflow have tests that the one by hand leaves out.");
                  // Of nearly straight points the others have far centres: none in the pool.
                  std::vector<DPoint> ours;
                  std::vector<Plain> plain;
                  const auto all = places<Plain>(6);
                  for (std::size_t i = 0; i + 2 < all.size() && plain.size() < 3 * cases; ++i) {
                      const Plain u = normalized(all[i + 1] - all[i]);
                      const Plain v = normalized(all[i + 2] - all[i]);
                      if (std::fabs(cross(u, v)) > 0.05)
                          plain.insert(plain.end(), &all[i], &all[i] + 3);
                  }
                  for (const Plain& p : plain)
                      ours.push_back(DPoint(p.x, p.y));
                  row.per(cases);
                  row.tolerance(1e-9);
                  row.ours(sumOver<3>(ours, [](const DPoint* p) {
                      DPoint centre;
                      return computeCentre(&centre, p[0], p[1], p[2]) == 0 ? centre.x + centre.y
                                                                           : 0.0;
                  }));
                  row.peer("by hand", sumOver<3>(plain, [](const Plain* p) {
                               Plain centre;
                               return plainCentre(centre, p) ? centre.x + centre.y : 0.0;
                           }));
                  row.beside("by hand, called", sumOver<3>(plain, [](const Plain* p) {
                                 Plain centre;
                                 return calledCentre(centre, p) ? centre.x + centre.y : 0.0;
                             }));
#if BENCH_EIGEN
                  using Vector = Eigen::Vector2d;
                  std::vector<Vector> eigen;
                  for (const Plain& p : plain)
                      eigen.emplace_back(p.x, p.y);
                  const auto equations = [](const Vector* p, Eigen::Matrix2d& m, Vector& rhs) {
                      m.row(0) = 2.0 * (p[0] - p[1]).transpose();
                      m.row(1) = 2.0 * (p[0] - p[2]).transpose();
                      rhs << p[0].squaredNorm() - p[1].squaredNorm(),
                          p[0].squaredNorm() - p[2].squaredNorm();
                  };
                  row.peer("Eigen, LU", sumOver<3>(eigen, [equations](const Vector* p) {
                               Eigen::Matrix2d m;
                               Vector rhs;
                               equations(p, m, rhs);
                               return m.partialPivLu().solve(rhs).sum();
                           }));
                  row.beside("Eigen, inverse without a test",
                             sumOver<3>(eigen, [equations](const Vector* p) {
                                 Eigen::Matrix2d m;
                                 Vector rhs;
                                 equations(p, m, rhs);
                                 return (m.inverse() * rhs).sum();
                             }));
#endif
                  measure();
              });
}

/// With the tolerance of the library's edges.
bool plainRectangles(DRECT& out, const DRECT& a, const DRECT& b) {
    const auto low = [](double v) { return v - (1e-10 + 1e-10 * std::fabs(v)); };
    const auto high = [](double v) { return v + (1e-10 + 1e-10 * std::fabs(v)); };
    const auto isEmpty = [](const DRECT& r) {
        return std::fabs(r.left) <= 1e-10 && std::fabs(r.top) <= 1e-10 &&
               std::fabs(r.right) <= 1e-10 && std::fabs(r.bottom) <= 1e-10;
    };
    out = {0.0, 0.0, 0.0, 0.0};
    if (isEmpty(a) || isEmpty(b))
        return false;
    if (b.left > high(a.right) || a.left > high(b.right) || b.top > high(a.bottom) ||
        a.top > high(b.bottom))
        return false;
    out.left = a.left >= low(b.left) ? a.left : b.left;
    out.top = a.top >= low(b.top) ? a.top : b.top;
    out.right = high(b.right) >= a.right ? a.right : b.right;
    out.bottom = high(b.bottom) >= a.bottom ? a.bottom : b.bottom;
    return true;
}

void rectangleRow(Suite& suite) {
    suite.row("rectangle intersection", 1.0,
              "The common part of two random rectangles, 60 % of which have one. Ours and the "
              "one by hand compare with tolerances, the others exactly.",
              [](Row& row, const auto& measure) {
                  std::vector<DRECT> ours;
                  const std::vector<double> numbers = randomNumbers(8 * cases, -100.0, 100.0, 1);
                  for (std::size_t i = 0; i < numbers.size(); i += 4) {
                      const auto [left, right] = std::minmax(numbers[i], numbers[i + 1]);
                      const auto [top, bottom] = std::minmax(numbers[i + 2], numbers[i + 3]);
                      ours.push_back({left, top, right, bottom});
                  }
                  row.per(cases);
                  row.tolerance(1e-12);
                  const auto sizeOf = [](const DRECT& r) {
                      return (r.right - r.left) + (r.bottom - r.top);
                  };
                  row.ours(sumOver<2>(ours, [sizeOf](const DRECT* r) {
                      DRECT common;
                      return IntersectDRect(&common, &r[0], &r[1]) ? sizeOf(common) : 0.0;
                  }));
                  row.peer("by hand", sumOver<2>(ours, [sizeOf](const DRECT* r) {
                               DRECT common;
                               return plainRectangles(common, r[0], r[1]) ? sizeOf(common) : 0.0;
                           }));
#if BENCH_QT
                  std::vector<QRectF> qt;
                  for (const DRECT& r : ours)
                      qt.push_back(QRectF(QPointF(r.left, r.top), QPointF(r.right, r.bottom)));
                  row.peer("Qt", sumOver<2>(qt, [](const QRectF* r) {
                               const QRectF common = r[0].intersected(r[1]);
                               return common.width() + common.height();
                           }));
#endif
#if BENCH_BOOST
                  std::vector<BoostBox> boost;
                  for (const DRECT& r : ours)
                      boost.push_back({{r.left, r.top}, {r.right, r.bottom}});
                  row.beside("Boost, exact", sumOver<2>(boost, [](const BoostBox* r) {
                                 BoostBox common;
                                 if (!bg::intersection(r[0], r[1], common))
                                     return 0.0;
                                 return (common.max_corner().x() - common.min_corner().x()) +
                                        (common.max_corner().y() - common.min_corner().y());
                             }));
#endif
#if BENCH_EIGEN
                  using Box = Eigen::AlignedBox2d;
                  std::vector<Box> eigen;
                  for (const DRECT& r : ours)
                      eigen.emplace_back(Eigen::Vector2d(r.left, r.top),
                                         Eigen::Vector2d(r.right, r.bottom));
                  row.beside("Eigen, exact", sumOver<2>(eigen, [](const Box* r) {
                                 const Box common = r[0].intersection(r[1]);
                                 return common.isEmpty() ? 0.0 : common.sizes().sum();
                             }));
#endif
                  measure();
              });
}

} // namespace

void geometryRows(Suite& suite) {
    suite.topic("geometry");
#if BENCH_GEOS
    initGEOS(nullptr, nullptr);
#endif
    meetRow(suite);
    lineRow(suite);
    segmentRow(suite);
    turnRow(suite);
    windingRow(suite);
    fitRow(suite);
    centreRow(suite);
    rectangleRow(suite);
    rootRows(suite);
#if BENCH_GEOS
    finishGEOS();
#endif
}

} // namespace bench
