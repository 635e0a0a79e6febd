/// Geometry and transforms with any coordinates: no function crashes, hangs or has undefined
/// behaviour, and what is always so for its results is so.

#include "fuzz/fuzz.h"

#include <zarnex/foundation.h>

#include <cmath>
#include <list>
#include <type_traits>
#include <vector>

namespace {

volatile double sink; // so that compilers leave nothing out

void use(double value) {
    sink = value;
}

template <class Pair>
auto use(const Pair& pair) -> decltype(void(pair.x + pair.y)) {
    use(static_cast<double>(pair.x) + static_cast<double>(pair.y));
}

template <class... Values>
void useAll(const Values&... values) {
    (use(values), ...);
}

template <class Number>
Number coordinate(fuzz::Input& input) {
    if constexpr (std::is_floating_point_v<Number>)
        return input.real();
    else
        return input.integer<Number>();
}

template <class Pair>
Pair pairFrom(fuzz::Input& input) {
    using Number = std::decay_t<decltype(Pair().x)>;
    const Number x = coordinate<Number>(input);
    return Pair(x, coordinate<Number>(input));
}

template <class Point, class Vector>
void tryPoints(fuzz::Input& input) {
    const Point a = pairFrom<Point>(input);
    const Point b = pairFrom<Point>(input);
    const Vector u = pairFrom<Vector>(input);
    const Vector v = pairFrom<Vector>(input);
    const double s = input.real();
    const double t = input.real();
    const double matrix[2][3] = {{s, t, 1.0}, {t, input.real(), input.real()}};

    useAll(a + b, a + u, a - b, a - u, -a, a * s, a / s, a == b, a<b, a <= b, a> b, a >= b);
    Point p = a;
    useAll(p += b, p += u, p -= b, p -= u);
    useAll(a.distance(b), a.squaredDistance(b), a.manhattanDistance(b));
    useAll(Point(a).scale(s, t), Point(a).roundScale(s, t), Point(a).rotate(s, b),
           Point(a).matrixRot(matrix, t), Point(a).mirror(a, b), Point(a).mirror(b, p));
    useAll(u + v, u - v, -u, u * s, u * v, u == v, u<v, u> v, u.length(), u.squaredLength());
    useAll(u.cross(v), u.normalize(), u.ortho(input.integer<int>()), u.projectOn(v),
           u.projectOnUnit(v), u.mirror(v), Vector(u).reverse(), Vector(u).scale(s, t),
           u.isSameSense(v));
    use(isEqual(Point(1, 2), a));
}

void tryLines(fuzz::Input& input) {
    DPoint p[6];
    for (DPoint& each : p)
        each = input.choice(8) == 0 ? p[0] : pairFrom<DPoint>(input);
    IPoint q[4];
    for (IPoint& each : q)
        each = pairFrom<IPoint>(input);
    const double tolerance = input.real();
    const double angleTolerance = input.real();
    const DVector u = p[1] - p[0];

    useAll(atan3(p[0].x, p[0].y), angleRad(p[0], p[1], p[2]), angle(p[0], p[1], p[2]));
    useAll(angleRad(q[0], q[1], q[2]), angle(q[0], q[1], q[2]));
    using Short = ZCoord<short>;
    const Short r[] = {pairFrom<Short>(input), pairFrom<Short>(input), pairFrom<Short>(input)};
    useAll(angleRad(r[0], r[1], r[2]), angle(r[0], r[1], r[2]), isEqual(r[0], r[1], 3));
    useAll(midpoint(p[0], p[1]), weightedSum(p[0], tolerance, p[1], angleTolerance));

    DPoint out;
    DPoint other;
    IPoint inIntegers;
    useAll(computeCentre(&out, p[0], p[1], p[2]), LUcomputeCentre(&out, p[0], p[1], p[2]));
    useAll(intersect(out, p[0], u, p[2], p[3] - p[2]), intersect(out, p[0], p[1], p[2], p[3]),
           intersect(&out, p[0], p[1], p[2], p[3]), isContainedIntersect(p[0], p[1], p[2], p[3]));
    useAll(intersect(inIntegers, q[0], q[1] - q[0], q[2], q[3] - q[2]),
           intersect(inIntegers, q[0], q[1], q[2], q[3]), inIntegers);
    useAll(collinear(p[0], p[1], p[2], p[3], tolerance, angleTolerance),
           collinear(&p[0], &p[1], &p[2], &p[3]), parallel(&p[0], &p[1], &p[2], &p[3], tolerance));
    useAll(pointOnLineSegment(p[0], p[1], p[2], tolerance), pointOnLineSegment(q[0], q[1], q[2]),
           quickCheckPointOnLine(p[0], p[1], p[2], tolerance),
           quickCheckPointOnLine(p[0], p[1], p[2], tolerance, angleTolerance));
    useAll(crossProd(p[0], p[1], p[2], p[3]), crossProduct(&q[0], &q[1], &q[2], &q[3]),
           Are3PointsCCW(p[0], p[1], p[2]));
    useAll(projectPointOntoLine(out, p[0], p[1], p[2]),
           projectPointOntoLineSegment(out, p[0], p[1], p[2]),
           closestToLineSegment(p[0], p[1], p[2]), distanceToLineSegment(p[0], p[1], p[2]),
           distanceToVector(p[0], p[1], p[2]));
    const int found = pointOnLineSegmentWithDistanceAway(out, other, tolerance, p[0], p[1], p[2]);
    FUZZ_REQUIRE(found >= PointFoundTwo && found <= PointFoundNone);
    useAll(pointOnLineSegmentWithDistanceAway(out, tolerance, p[0], p[1]), out, other);
    const int overlap = findOverlapLine(out, other, p[0], p[1], p[2], p[3]);
    FUZZ_REQUIRE(overlap <= OverlapLineFound && overlap >= OverlapLineNotProjected);
    pointsAverage(p[4], p[5]);
    useAll(isEqual(p[4], p[5], tolerance), isPointInBox(p[0], p[1].x, p[1].y, p[2].x, p[2].y));
}

void tryRoots(fuzz::Input& input) {
    const double a = input.real();
    const double b = input.real();
    const double c = input.real();
    const double d = input.real();
    double roots[3] = {};
    int count = cubicRoots(a, b, c, d, roots);
    FUZZ_REQUIRE(count >= 0 && count <= 3 && cubicRoots(a, b, c, d, nullptr) == count);
    count = quadraticSolve(&roots[0], &roots[1], a, b, c);
    FUZZ_REQUIRE(count >= 0 && count <= 2 && quadraticSolve(nullptr, nullptr, a, b, c) == count);
    ZQuadraticSolver::quadraticSolve(&count, &roots[0], &roots[1], a, b, c, d, input.real());
    FUZZ_REQUIRE(count >= 0 && count <= 2);

    const ZrnRandomGenerator random(input.integer<long>());
    ZrnRandomGenerator2 twister(input.integer<long>());
    twister.index = input.integer<int>();
    for (const float number : {random.random(), zrnrandom()})
        FUZZ_REQUIRE(number > 0.0f && number < 1.0f);
    for (int i = 0; i < 3; ++i) {
        for (const double number : {twister.random(), twister.randomOpenEnd()})
            FUZZ_REQUIRE(number >= 0.0 && number < 1.0);
        const double closed = twister.randomClosedEnd();
        FUZZ_REQUIRE(closed >= 0.0 && closed <= 1.0);
    }
}

void tryPointLists(fuzz::Input& input) {
    std::list<DPoint> points;
    ZList<DPoint> list;
    for (int count = input.choice(60); count > 0; --count) {
        points.push_back(input.choice(4) == 0 && !points.empty() ? points.front()
                                                                 : pairFrom<DPoint>(input));
        list.add(points.back());
    }
    int valid = 0;
    use(isCCWSTDListDPoint(valid, points));
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    DVector direction = pairFrom<DVector>(input);
    DPoint onLine;
    useAll(fitToLine(points, a, b, c), fitToLine(points, direction, onLine), onLine);
    if (list.length() != 0)
        use(list.find(list[input.choice(60)]));
}

void tryRectangles(fuzz::Input& input) {
    DRECT r[2];
    for (DRECT& each : r)
        SetDRect(&each, input.real(), input.real(), input.real(), input.real());
    const DBLPOINT p = {input.real(), input.real()};
    const DRECT& given = r[0];
    const bool isFinite = std::isfinite(given.left) && std::isfinite(given.right) &&
                          std::isfinite(given.top) && std::isfinite(given.bottom);
    NormalizeDRect(&r[0]); // an infinite edge has an infinite tolerance
    FUZZ_REQUIRE(!isFinite || (zarnex::detail::lowEnd(given.left) <= given.right &&
                               zarnex::detail::lowEnd(given.top) <= given.bottom));
    InflateDRect(&r[1], p.x, p.y);
    DRECT out;
    useAll(IsDRectEmpty(&r[0]), EqualDRect(&r[0], &r[1]), PointInDRect(&r[0], &p),
           PtInDRect(&r[0], &p), IntersectDRect(&out, &r[0], &r[1]), DRectInDRect(&r[0], &r[1]));
    UnionDRect(&out, &r[0], &r[1]);
    use(out.left);
}

void tryMatrices(fuzz::Input& input) {
    std::vector<ZMatrix<double>> matrices;
    for (int i = 0; i < 3; ++i) {
        const int rows = input.choice(6);
        const int columns = input.choice(6);
        std::vector<double> values(static_cast<std::size_t>(rows * columns + 1));
        for (double& value : values)
            value = input.real();
        matrices.emplace_back(rows, columns, values.data());
    }
    ZMatrix<double>& a = matrices[0];
    const ZMatrix<double>& b = matrices[1];
    ZMatrix<double>& out = matrices[input.choice(2) != 0 ? 2 : 0];
    useAll(a.multiply(b, out), a.transpose(out), a.invert(out), a.identity(), a.det());
    a += b;
    a *= input.real();
    Z2DMatrix<double> m(b);
    m *= m;
    m = a;
    useAll(m.multiply(b, out), m.invert(), m.transpose(), m.det(), m * DPoint(1.0, 2.0));
}

void tryTransforms(fuzz::Input& input) {
    Z2DTrans t;
    Z2DTrans rest;
    for (int steps = input.choice(12); steps > 0; --steps) {
        const double s = input.real();
        switch (input.choice(9)) {
        case 0:
            t.rotate(s);
            break;
        case 1:
            t.rotateInDegree(s);
            break;
        case 2:
            t.rotate(pairFrom<DVector>(input));
            break;
        case 3:
            t.rotate(pairFrom<DVector>(input), pairFrom<DVector>(input));
            break;
        case 4:
            t.scale(s, input.real()).mirror();
            break;
        case 5:
            t.xShear(s).flip();
            break;
        case 6:
            t.yShear(s).compose(rest);
            break;
        case 7: {
            double sx = 0.0;
            double sy = 0.0;
            int nx = input.integer<int>();
            int ny = input.integer<int>();
            useAll(t.split(rest, sx, sy, nx, ny), sx, sy);
            break;
        }
        default:
            t.invert();
        }
    }
    useAll(t * pairFrom<DPoint>(input), t * pairFrom<DVector>(input), t * pairFrom<IPoint>(input),
           t * pairFrom<IVector>(input), t.det());
}

} // namespace

void tryInput(fuzz::Input input) {
    while (!input.atEnd()) {
        switch (input.choice(9)) {
        case 0:
            tryPoints<DPoint, DVector>(input);
            break;
        case 1:
            tryPoints<IPoint, IVector>(input);
            break;
        case 2:
            tryPoints<ZCoord<short>, ZVector<short>>(input);
            break;
        case 3:
            tryLines(input);
            break;
        case 4:
            tryRoots(input);
            break;
        case 5:
            tryPointLists(input);
            break;
        case 6:
            tryRectangles(input);
            break;
        case 7:
            tryMatrices(input);
            break;
        default:
            tryTransforms(input);
        }
    }
}
