#include "../rows.h"
#include "planeByHand.h"

#include <zarnex/geometry/circleCentre.h>
#include <zarnex/geometry/lineFit.h>
#include <zarnex/geometry/orientation.h>

#if BENCH_EIGEN
#include <Eigen/Dense>
#endif
#if BENCH_GEOS
#include <geos_c.h>
#endif
#if BENCH_GSL
#include <gsl/gsl_fit.h>
#endif

#include <cmath>
#include <iterator>
#include <list>
#include <vector>

namespace bench {

namespace {

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

} // namespace

void outlineRows(Suite& suite) {
    windingRow(suite);
    fitRow(suite);
    centreRow(suite);
}

} // namespace bench
