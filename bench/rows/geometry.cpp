#include "../rows.h"
#include "planeByHand.h"

#include <zarnex/geometry/DRECT.h>
#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>

#if BENCH_EIGEN
#include <Eigen/Dense>
#endif
#if BENCH_GEOS
#include <geos_c.h>
#endif
#if BENCH_QT
#include <QLineF>
#include <QRectF>
#endif

#include <algorithm>
#include <cmath>
#include <vector>

namespace bench {

namespace {

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
    rectangleRow(suite);
    outlineRows(suite);
    rootRows(suite);
#if BENCH_GEOS
    finishGEOS();
#endif
}

} // namespace bench
