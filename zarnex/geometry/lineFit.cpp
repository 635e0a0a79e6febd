#include <zarnex/geometry/lineFit.h>

#include <zarnex/geometry/tolerance.h>

#include <algorithm>
#include <cmath>

int fitToLine(const std::list<DPoint>& pts, double& a, double& b, double& c) {
    if (pts.empty())
        return -1;
    double sumX = 0.0;
    double sumY = 0.0;
    for (const DPoint& p : pts) {
        sumX += p.x;
        sumY += p.y;
    }
    const double count = static_cast<double>(pts.size());
    const double mx = sumX / count;
    const double my = sumY / count;
    double sxx = 0.0;
    double sxy = 0.0;
    double syy = 0.0;
    for (const DPoint& p : pts) {
        const double dx = p.x - mx;
        const double dy = p.y - my;
        sxx += dx * dx;
        sxy += dx * dy;
        syy += dy * dy;
    }
    const double spread = sxx - syy;
    const double normalX = 2.0 * sxy;
    const double normalY = -(spread + std::sqrt(spread * spread + 4.0 * (sxy * sxy)));
    a = normalX;
    b = normalY;
    c = normalX * mx + normalY + my;
    return 0;
}

int fitToLine(const std::list<DPoint>& pts, DVector& dir, DPoint& onLine) {
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    if (const int failure = fitToLine(pts, a, b, c); failure != 0)
        return failure;
    if (IS_ZERO(a) && IS_ZERO(b))
        return -1;

    // The list is read before onLine, which may be one of its points, is written.
    const bool hasPointOffAxes = std::any_of(
        pts.begin(), pts.end(), [](const DPoint& p) { return !IS_ZERO(p.x) && !IS_ZERO(p.y); });
    const DVector way = pts.back() - pts.front();
    onLine = IS_ZERO(b) ? DPoint(-c / a, 0.0) : DPoint(0.0, -c / b);
    if (!hasPointOffAxes)
        return -1;
    if (!dir.isSameSense(way))
        dir.reverse();
    return 0;
}
