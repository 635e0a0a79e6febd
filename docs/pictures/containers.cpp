#include "pictures.h"

#include <zarnex/foundation.h>

#include <cmath>

Svg drawListRing() {
    Svg picture(420, 250,
                "Five elements of a ZList in a ring, and where positions past the ends lead");
    ZList<int> list{0, 1, 2, 3, 4};
    const double pi = std::acos(-1.0);
    const auto length = static_cast<int>(list.length());
    const auto x = [&](double i) { return 122 + 78 * std::sin(2 * pi * i / length); };
    const auto y = [&](double i) { return 126 - 78 * std::cos(2 * pi * i / length); };
    for (int i = 0; i < length; ++i) {
        picture.arrow(x(i + 0.27), y(i + 0.27), x(i + 0.73), y(i + 0.73), "ink");
        picture.arrow(x(i + 0.7) * 0.86 + 122 * 0.14, y(i + 0.7) * 0.86 + 126 * 0.14,
                      x(i + 0.3) * 0.86 + 122 * 0.14, y(i + 0.3) * 0.86 + 126 * 0.14, "thin");
    }
    for (int i = 0; i < length; ++i) {
        picture.circle(x(i), y(i), 19, i == 0 ? "bluish" : "greenish");
        picture.text(x(i), y(i) + 5, std::to_string(list[i]), "on", "middle");
    }
    picture.text(122, 24, "head", "small quiet", "middle");

    double row = 74;
    for (const long index : {0L, 4L, 5L, 7L, -1L, -2L}) {
        const std::string name = "list[" + std::to_string(index) + "]";
        picture.text(252, row, name, "code");
        picture.text(326, row, "is element " + std::to_string(list[index]), "small");
        row += 26;
    }
    return picture;
}

Svg drawArrayGrowth() {
    Svg picture(420, 290, "The slots of two arrays while elements are added one by one");
    const int most = 150;
    const double left = 52;
    const double bottom = 250;
    const double sx = 2.2;
    const double sy = 0.8;
    for (const int slots : {0, 32, 64, 96, 128, 160, 192, 224, 256}) {
        picture.line(left, bottom - sy * slots, left + sx * most, bottom - sy * slots, "thin");
        if (slots % 64 == 0)
            picture.text(left - 8, bottom - sy * slots + 5, std::to_string(slots), "small quiet",
                         "end");
    }
    for (const int count : {1, 50, 100, 150})
        picture.text(left + sx * count, bottom + 20, std::to_string(count), "small quiet",
                     "middle");
    picture.line(left, bottom, left + sx * most, bottom - sy * most, "ink dashed");

    const struct {
        int step;
        const char* style;
    } arrays[] = {{-1, "blue"}, {32, "orange"}};
    for (const auto& kind : arrays) {
        ZXArray<int> array(0, kind.step);
        std::string way;
        for (int count = 1; count <= most; ++count) {
            array.add(count);
            const double height = bottom - sy * array.allocLength();
            way += (way.empty() ? "M" : "L") + Svg::number(left + sx * (count - 1)) + " " +
                   Svg::number(height) + "L" + Svg::number(left + sx * count) + " " +
                   Svg::number(height);
        }
        picture.path(way, kind.style);
    }
    picture.box(62, 38, 232, 78, "card");
    picture.line(70, 56, 94, 56, "blue");
    picture.text(102, 61, "slots, doubling (the default)", "small");
    picture.line(70, 78, 94, 78, "orange");
    picture.text(102, 83, "slots, in steps of 32", "small");
    picture.line(70, 100, 94, 100, "ink dashed");
    picture.text(102, 105, "elements", "small");
    return picture;
}
