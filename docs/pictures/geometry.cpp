#include "pictures.h"

#include <zarnex/foundation.h>

namespace {

/// Where a place of the plane stands in the picture: y grows upward there.
struct Frame {
    double left;
    double bottom;
    double scale;

    double x(const DPoint& p) const {
        return left + p.x * scale;
    }
    double y(const DPoint& p) const {
        return bottom - p.y * scale;
    }
};

void drawArrow(Svg& picture, const Frame& frame, const DPoint& a, const DPoint& b) {
    picture.arrow(frame.x(a), frame.y(a), frame.x(b), frame.y(b), "ink");
}

} // namespace

Svg drawOrientation() {
    Svg picture(420, 300,
                "The points to the left of the way from a to b turn to 1, those to its "
                "right to -1");
    const Frame frame{56, 262, 58};
    const DPoint a(1.0, 0.5);
    const DPoint b(3.5, 3.0);
    picture.arrow(24, 280, 24, 230, "thin");
    picture.arrow(24, 280, 74, 280, "thin");
    picture.text(21, 222, "y", "quiet small");
    picture.text(80, 284, "x", "quiet small");
    for (int i = 0; i <= 12; ++i) {
        for (int j = 0; j <= 8; ++j) {
            const DPoint p(0.5 * i, 0.5 * j);
            const int turn = Are3PointsCCW(a, b, p);
            const char* const style = turn > 0 ? "bluish" : turn < 0 ? "orangish" : "dot";
            picture.circle(frame.x(p), frame.y(p), turn == 0 ? 3.5 : 3, style);
        }
    }
    drawArrow(picture, frame, a, b);
    picture.text(frame.x(a) + 9, frame.y(a) + 14, "a", "bold");
    picture.text(frame.x(b) + 12, frame.y(b) + 9, "b", "bold");

    // What stands in the corners is asked there.
    const auto label = [&](const DPoint& p, const char* words) {
        const double x = frame.x(p);
        const double y = frame.y(p);
        picture.box(x - 52, y - 17, 104, 25, "card");
        picture.text(x, y + 1, words + std::to_string(Are3PointsCCW(a, b, p)), "", "middle");
    };
    label(DPoint(1.25, 2.75), "left: ");
    label(DPoint(4.75, 1.25), "right: ");
    label(DPoint(4.25, 3.75), "straight: ");
    return picture;
}

Svg drawPositions() {
    Svg picture(420, 268, "What pointOnLineSegment answers for the points of a grid");
    const Frame frame{30, 238, 36};
    const DPoint a(3.0, 2.0);
    const DPoint b(7.0, 4.0);
    picture.line(frame.x(DPoint(-0.5, 0.25)), frame.y(DPoint(-0.5, 0.25)),
                 frame.x(DPoint(10.4, 5.7)), frame.y(DPoint(10.4, 5.7)), "thin");
    picture.line(frame.x(a), frame.y(a), frame.x(b), frame.y(b), "ink heavy");
    const char* const styles[] = {"faint", "orangish", "bluish", "greenish"};
    for (int i = 0; i <= 10; ++i) {
        for (int j = 0; j <= 6; ++j) {
            const DPoint p(i, j);
            const int code = pointOnLineSegment(p, a, b, 1e-9);
            if (code == 0) {
                picture.circle(frame.x(p), frame.y(p), 2.5, styles[code]);
                continue;
            }
            picture.circle(frame.x(p), frame.y(p), 11, styles[code]);
            picture.text(frame.x(p), frame.y(p) + 5, std::to_string(code), "on", "middle");
        }
    }
    picture.text(frame.x(a) + 4, frame.y(a) + 28, "a", "bold");
    picture.text(frame.x(b) + 2, frame.y(b) + 30, "b", "bold");
    return picture;
}

Svg drawOverlap() {
    Svg picture(420, 252, "What findOverlapLine answers for six places of the segment cd");
    const struct {
        double c;
        double d;
        const char* words;
    } rows[] = {
        {-3.5, -1.5, "before a"}, {-3.0, 0.0, "touches a"}, {-1.5, 2.5, "over a"},
        {6.0, 2.0, "inside"},     {8.0, 10.5, "touches b"}, {9.5, 12.0, "beyond b"},
    };
    const Frame frame{100, 30, 12.0};
    const DPoint a(0.0, 0.0);
    const DPoint b(8.0, 0.0);
    picture.line(frame.x(a), 18, frame.x(a), 238, "thin dashed");
    picture.line(frame.x(b), 18, frame.x(b), 238, "thin dashed");
    picture.line(frame.x(a), 30, frame.x(b), 30, "ink heavy");
    picture.text(frame.x(a) - 16, 35, "a", "bold");
    picture.text(frame.x(b) + 10, 35, "b", "bold");
    double y = 66;
    for (const auto& row : rows) {
        DPoint start;
        DPoint end;
        const DPoint c(row.c, 0.0);
        const DPoint d(row.d, 0.0);
        const OverlapLineReturnCode code = findOverlapLine(start, end, a, b, c, d);
        picture.line(frame.x(c), y, frame.x(d), y, "blue");
        picture.circle(frame.x(c), y, 3, "bluish");
        picture.circle(frame.x(d), y, 3, "bluish");
        if (code == OverlapLineFound) {
            picture.line(frame.x(start), y, frame.x(end), y, "green heavy");
            picture.circle(frame.x(start), y, 4, "greenish");
            picture.circle(frame.x(end), y, 4, "greenish");
        }
        picture.text(292, y + 5, std::to_string(code), "code bold", "end");
        picture.text(306, y + 5, row.words, "");
        y += 32;
    }
    return picture;
}

Svg drawTransforms() {
    Svg picture(420, 392, "The letter F, turned and then stretched, and stretched and then turned");
    const DPoint letter[] = {{0, 0},     {0, 2},     {1.2, 2},   {1.2, 1.6}, {0.4, 1.6},
                             {0.4, 1.2}, {0.9, 1.2}, {0.9, 0.8}, {0.4, 0.8}, {0.4, 0}};
    Z2DTrans none;
    Z2DTrans turnedFirst;
    turnedFirst.rotateInDegree(90.0).xScale(2.0);
    Z2DTrans stretchedFirst;
    stretchedFirst.xScale(2.0).rotateInDegree(90.0);
    const struct {
        const Z2DTrans& t;
        const char* style;
        const char* lines[3];
    } rows[] = {
        {none, "ink", {"Z2DTrans t;", "", ""}},
        {turnedFirst, "blue", {"t.rotateInDegree(90)", " .xScale(2);", ""}},
        {stretchedFirst, "orange", {"t.xScale(2)", " .rotateInDegree(90);", ""}},
    };
    double bottom = 118;
    for (const auto& row : rows) {
        const Frame frame{165, bottom, 36};
        picture.arrow(14, bottom, 222, bottom, "thin");
        picture.arrow(165, bottom + 12, 165, bottom - 100, "thin");
        std::string way = "M";
        for (const DPoint& corner : letter) {
            const DPoint image = row.t * corner;
            way += Svg::number(frame.x(image)) + " " + Svg::number(frame.y(image)) + "L";
        }
        way.back() = 'Z';
        picture.path(way, "pale");
        picture.path(way, row.style);
        double y = bottom - 62;
        for (const char* const line : row.lines) {
            picture.text(240, y, line, "code");
            y += 20;
        }
        bottom += 122;
    }
    return picture;
}
