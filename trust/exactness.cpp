// Compares the geometry with exact rational arithmetic, for `./dev trust geometry`: prints how
// often and how far it is off, as Markdown, and fails where that is more than rounding explains.

#include <zarnex/geometry/circleCentre.h>
#include <zarnex/geometry/lineIntersection.h>
#include <zarnex/geometry/orientation.h>
#include <zarnex/geometry/projection.h>

#include <gmpxx.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <list>
#include <random>
#include <string>
#include <vector>

namespace {

using Exact = mpq_class;

struct ExactPoint {
    Exact x, y;
};

ExactPoint exact(const DPoint& p) {
    return {Exact(p.x), Exact(p.y)};
}

ExactPoint operator-(const ExactPoint& p, const ExactPoint& q) {
    return {p.x - q.x, p.y - q.y};
}

Exact cross(const ExactPoint& u, const ExactPoint& v) {
    return u.x * v.y - u.y * v.x;
}

// Above 0 for a turn to the left on the way from a over b to c.
Exact turn(const DPoint& a, const DPoint& b, const DPoint& c) {
    return cross(exact(b) - exact(a), exact(c) - exact(b));
}

// --- the input ------------------------------------------------------------------------

struct Case {
    DPoint a, b, c, d;
};

std::mt19937_64 source(20261121);

double uniform(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(source);
}

int whole(int most) {
    return std::uniform_int_distribution<int>(-most, most)(source);
}

template <class Coordinate>
Case fourPoints(Coordinate next) {
    const auto point = [&next] {
        const double x = next();
        return DPoint(x, next());
    };
    const DPoint a = point(), b = point(), c = point();
    return {a, b, c, point()};
}

DPoint between(const DPoint& a, const DPoint& b, double t) {
    return a + (b - a) * t;
}

struct Kind {
    const char* name;
    int cases;
    Case (*make)(int i);
};

constexpr double step = 0x1p-53; // between the doubles below 1

const Kind kinds[] = {
    {"random, up to 1000", 10000,
     [](int) { return fourPoints([] { return uniform(-1000, 1000); }); }},
    {"whole numbers up to 2^20", 10000,
     [](int) { return fourPoints([] { return double(whole(1 << 20)); }); }},
    {"whole numbers below 2^31", 10000,
     [](int) { return fourPoints([] { return double(whole(INT_MAX)); }); }},
    {"tenths up to 1", 10000, [](int) { return fourPoints([] { return whole(10) / 10.0; }); }},
    {"an end on the other line, rounded", 10000,
     [](int) {
         Case made = fourPoints([] { return uniform(-1000, 1000); });
         made.c = between(made.a, made.b, uniform(-0.2, 1.2));
         return made;
     }},
    {"nearly parallel", 10000,
     [](int) {
         Case made = fourPoints([] { return uniform(-1000, 1000); });
         const DVector aside = (made.b - made.a).ortho(1) * std::pow(10.0, uniform(-14, -3));
         made.c = between(made.a, made.b, uniform(-1, 2)) + aside;
         made.d = between(made.a, made.b, uniform(-1, 2)) - aside;
         return made;
     }},
    {"256 x 256 neighbouring doubles", 256 * 256,
     [](int i) {
         const DPoint near(0.5 + step * (i % 256), 0.5 + step * (i / 256));
         return Case{near, DPoint(12, 12), DPoint(24, 24), DPoint(0.5, 0.5)};
     }},
    {"the same about (17.3, 17.3)", 256 * 256,
     [](int i) {
         const DPoint near(0.50000000000002531 + step * (i % 256),
                           0.5000000000000171 + step * (i / 256));
         return Case{near, DPoint(17.300000000000001, 17.300000000000001),
                     DPoint(24.00000000000005, 24.0000000000000517765), DPoint(0.5, 0.5)};
     }},
    {"within 1, at 10^7", 10000,
     [](int) { return fourPoints([] { return 1e7 + uniform(0, 1); }); }},
    {"within 10^-7", 10000, [](int) { return fourPoints([] { return uniform(0, 1e-7); }); }},
};

// --- what is counted ------------------------------------------------------------------

int faults = 0;

void demand(bool holds, const char* what, const Case& made) {
    if (holds)
        return;
    if (++faults <= 20)
        std::fprintf(stderr, "%s: %a %a, %a %a, %a %a, %a %a\n", what, made.a.x, made.a.y, made.b.x,
                     made.b.y, made.c.x, made.c.y, made.d.x, made.d.y);
}

// Computed signs against the true ones.
struct Signs {
    int cases = 0, opposite = 0, lost = 0, invented = 0;

    void add(int computed, int expected) {
        ++cases;
        opposite += computed * expected < 0;
        lost += computed == 0 && expected != 0;
        invented += computed != 0 && expected == 0;
    }
};

struct Answers {
    int cases = 0, missed = 0, wrong = 0;

    void add(bool computed, bool expected) {
        ++cases;
        missed += expected && !computed;
        wrong += computed && !expected;
    }
};

struct Errors {
    std::vector<double> values;

    void add(const DPoint& computed, const ExactPoint& expected) {
        const Exact dx = abs(Exact(computed.x) - expected.x);
        const Exact dy = abs(Exact(computed.y) - expected.y);
        const Exact size = std::max(Exact(abs(expected.x)), Exact(abs(expected.y)));
        if (size != 0)
            values.push_back(Exact(std::max(dx, dy) / size).get_d());
    }

    std::string shown() {
        if (values.empty())
            return " | - | -";
        std::sort(values.begin(), values.end());
        char text[80];
        std::snprintf(text, sizeof text, " | %.0e | %.0e", values[values.size() / 2],
                      values.back());
        return text;
    }
};

std::string share(int part, int cases) {
    if (part == 0)
        return "0";
    char text[40];
    std::snprintf(text, sizeof text, "%.3g %%", 100.0 * part / cases);
    return text;
}

struct Figures {
    Signs crossProducts, turns;
    Answers outlines, meetings, parallels, wholeMeetings;
    Errors crossings, feet, centres, otherCentres;
};

// --- the comparisons ------------------------------------------------------------------

void compareTurns(const Case& made, Figures& to) {
    const DPoint &a = made.a, &b = made.b, &c = made.c;
    const Exact k = turn(a, b, c);
    const DVector u = b - a, v = c - b;
    const double sizes = std::fabs(u.x * v.y) + std::fabs(u.y * v.x);
    const double computed = crossProd(b, a, c, b);
    const int sign = computed > 0 ? 1 : computed < 0 ? -1 : 0;
    const int side = Are3PointsCCW(a, b, c);
    to.crossProducts.add(sign, sgn(k));
    to.turns.add(side, sgn(k));
    // Two differences, a product and a sum are rounded.
    demand(sign == sgn(k) || abs(k) <= Exact(4 * step * sizes), "sign of crossProd", made);
    demand(side == sgn(k) || abs(k) <= Exact(2e-15 * sizes), "Are3PointsCCW", made);
    int valid = 0;
    const int left = isCCWSTDListDPoint(valid, {a, b, c});
    to.outlines.add(valid != 0 && left != 0, k > 0);
}

struct Crossing {
    Exact determinant;
    ExactPoint place;
    double boundX, boundY; // how far rounding may take the computed place from it
    bool isCertain;        // whether the computed determinant has digits that are right
};

Crossing crossingOf(const Case& made) {
    const ExactPoint p = exact(made.a), q = exact(made.c);
    const ExactPoint u = exact(made.b) - p, v = exact(made.d) - q;
    Crossing found{cross(u, v), {}, 0, 0, false};
    if (found.determinant == 0)
        return found;
    const Exact along = cross(q - p, v) / found.determinant;
    found.place = {p.x + along * u.x, p.y + along * u.y};
    // Every product of the two equations and of their solution, rounded some ten times.
    const DVector du = made.b - made.a, dv = made.d - made.c;
    const double ux = std::fabs(du.x), uy = std::fabs(du.y);
    const double vx = std::fabs(dv.x), vy = std::fabs(dv.y);
    const double c1 = uy * std::fabs(made.a.x) + ux * std::fabs(made.a.y);
    const double c2 = vy * std::fabs(made.c.x) + vx * std::fabs(made.c.y);
    const double determinants = ux * vy + uy * vx;
    const double size = std::fabs(found.determinant.get_d());
    found.isCertain = size > 100 * step * determinants;
    const auto bound = [&](double numerators, double place) {
        return 12 * step * (numerators + std::fabs(place) * determinants) / size;
    };
    found.boundX = bound(c1 * vx + c2 * ux, found.place.x.get_d());
    found.boundY = bound(c1 * vy + c2 * uy, found.place.y.get_d());
    return found;
}

// By how much `value` lies inside of the range from a to b; below 0 outside.
Exact inside(const Exact& value, double a, double b) {
    return std::min(Exact(value - std::min(a, b)), Exact(std::max(a, b) - value));
}

void compareCrossings(const Case& made, Figures& to) {
    const DPoint &a = made.a, &b = made.b, &c = made.c, &d = made.d;
    const Crossing found = crossingOf(made);
    DPoint out;
    const bool crosses = intersect(out, a, b, c, d) == 0;
    to.parallels.add(crosses, found.determinant != 0);
    if (crosses && found.isCertain) {
        to.crossings.add(out, found.place);
        demand(abs(Exact(out.x) - found.place.x) <= found.boundX &&
                   abs(Exact(out.y) - found.place.y) <= found.boundY,
               "point of intersect", made);
    }
    const bool computed = isContainedIntersect(a, b, c, d) != 0;
    bool meet = found.determinant != 0, isSure = found.isCertain;
    const struct {
        const Exact& value;
        double bound, from, to;
    } ranges[] = {{found.place.x, found.boundX, a.x, b.x},
                  {found.place.y, found.boundY, a.y, b.y},
                  {found.place.x, found.boundX, c.x, d.x},
                  {found.place.y, found.boundY, c.y, d.y}};
    for (const auto& range : ranges) {
        const Exact depth = inside(range.value, range.from, range.to);
        meet = meet && depth >= 0;
        isSure = isSure && (range.from == range.to || abs(depth) > range.bound);
    }
    to.meetings.add(computed, meet);
    const bool hasDeterminant = std::fabs(found.determinant.get_d()) > 1.01e-14;
    demand(!isSure || !hasDeterminant || computed == meet, "isContainedIntersect", made);
}

void compareFeet(const Case& made, Figures& to) {
    const DPoint &a = made.a, &b = made.b, &p = made.d;
    const ExactPoint u = exact(b) - exact(a), w = exact(p) - exact(a);
    DPoint foot;
    if (projectPointOntoLine(foot, p, a, b) != 0)
        return;
    const Exact along = (w.x * u.x + w.y * u.y) / (u.x * u.x + u.y * u.y);
    to.feet.add(foot, {Exact(a.x) + along * u.x, Exact(a.y) + along * u.y});
}

void compareCentres(const Case& made, Figures& to) {
    const ExactPoint p = exact(made.a), u = exact(made.b) - p, v = exact(made.c) - p;
    const Exact twice = 2 * cross(u, v);
    if (twice == 0)
        return;
    const Exact uu = u.x * u.x + u.y * u.y, vv = v.x * v.x + v.y * v.y;
    const ExactPoint centre{p.x + (uu * v.y - vv * u.y) / twice,
                            p.y + (vv * u.x - uu * v.x) / twice};
    DPoint found;
    if (computeCentre(&found, made.a, made.b, made.c) == 0)
        to.centres.add(found, centre);
    if (LUcomputeCentre(&found, made.a, made.b, made.c) == 0)
        to.otherCentres.add(found, centre);
}

void compareIntegers(const Case& made, Figures& to) {
    const auto ints = [](const DPoint& p) { return IPoint(int(p.x), int(p.y)); };
    const Crossing found = crossingOf(made);
    IPoint out(0, 0);
    if (intersect(out, ints(made.a), ints(made.b), ints(made.c), ints(made.d)) != 0)
        return;
    const Exact half(1, 2);
    to.wholeMeetings.add(abs(out.x - found.place.x) <= half && abs(out.y - found.place.y) <= half,
                         true);
}

template <class Row>
void table(const char* head, std::vector<Figures>& all, Row row) {
    std::printf("%s", head);
    for (std::size_t i = 0; i < all.size(); ++i)
        std::printf("| %s%s |\n", kinds[i].name, row(all[i]).c_str());
    std::printf("\n");
}

std::string shown(const Signs& signs) {
    return " | " + share(signs.opposite, signs.cases) + " | " + share(signs.lost, signs.cases) +
           " | " + share(signs.invented, signs.cases);
}

std::string shown(const Answers& answers) {
    return " | " + share(answers.missed, answers.cases) + " | " +
           share(answers.wrong, answers.cases);
}

} // namespace

int main() {
    std::vector<Figures> all;
    int cases = 0;
    for (const Kind& kind : kinds) {
        Figures figures;
        for (int i = 0; i < kind.cases; ++i) {
            const Case made = kind.make(i);
            compareTurns(made, figures);
            compareCrossings(made, figures);
            compareFeet(made, figures);
            compareCentres(made, figures);
            if (std::string(kind.name).find("whole") == 0)
                compareIntegers(made, figures);
        }
        cases += kind.cases;
        all.push_back(figures);
    }
    std::printf("%d cases of four points, compared with exact fractions; shares of the cases, "
                "and errors relative to the greater coordinate of the true point.\n\n"
                "Signs: the opposite one, none where there is one, one where there is none; of an "
                "outline of three points, counter-clockwise ones missed and false ones.\n\n",
                cases);
    table("| points | `crossProd` opposite | none | false | `Are3PointsCCW` opposite | none | "
          "false | `isCCWSTDListDPoint` missed | false |\n|---|---|---|---|---|---|---|---|---|\n",
          all,
          [](Figures& f) { return shown(f.crossProducts) + shown(f.turns) + shown(f.outlines); });
    std::printf("Crossings of lines and of segments:\n\n");
    table("| points | `intersect` missed | false | `isContainedIntersect` missed | false |\n"
          "|---|---|---|---|---|\n",
          all, [](Figures& f) { return shown(f.parallels) + shown(f.meetings); });
    std::printf("Errors, the median and the greatest:\n\n");
    table("| points | `intersect` | | `projectPointOntoLine` | | `computeCentre` | | "
          "`LUcomputeCentre` | |\n|---|---|---|---|---|---|---|---|---|\n",
          all, [](Figures& f) {
              return f.crossings.shown() + f.feet.shown() + f.centres.shown() +
                     f.otherCentres.shown();
          });
    std::printf("`intersect` of `IPoint`:");
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Answers& grid = all[i].wholeMeetings;
        if (grid.cases != 0)
            std::printf(" of the crossings among %s that fit, %s are not at the nearest point.",
                        kinds[i].name, share(grid.missed, grid.cases).c_str());
    }
    std::printf("\n");
    if (faults != 0)
        std::fprintf(stderr, "%d results are further off than rounding explains\n", faults);
    return faults == 0 ? 0 : 1;
}
