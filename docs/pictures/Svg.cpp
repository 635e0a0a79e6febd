#include "Svg.h"

#include <cmath>
#include <cstdio>

namespace {

const char* const styles = R"(<style>
:root { color-scheme: light dark; }
text { font: 14px system-ui, "DejaVu Sans", sans-serif; fill: #1f2733; }
.code { font-family: ui-monospace, "DejaVu Sans Mono", monospace; font-size: 13px; }
.small { font-size: 12px; }
.bold { font-weight: 700; }
.card { fill: #ffffff; stroke: #d9dde3; }
.ink { stroke: #1f2733; stroke-width: 2; fill: none; }
.thin { stroke: #c3c9d2; stroke-width: 1; fill: none; }
.blue { stroke: #0b5cad; stroke-width: 2; fill: none; }
.orange { stroke: #b4530a; stroke-width: 2; fill: none; }
.green { stroke: #2a6f2a; stroke-width: 2; fill: none; }
.dashed { stroke-dasharray: 4 4; }
.heavy { stroke-width: 5; stroke-linecap: round; }
.dot { fill: #1f2733; }
.faint { fill: #c3c9d2; }
.bluish { fill: #0b5cad; }
.orangish { fill: #b4530a; }
.greenish { fill: #2a6f2a; }
.pale { fill: #0b5cad; fill-opacity: 0.13; }
text.quiet { fill: #5c6675; }
text.on { fill: #ffffff; font-weight: 700; }
@media (prefers-color-scheme: dark) {
text { fill: #dde3ec; }
.card { fill: #1b2029; stroke: #333b48; }
.ink { stroke: #dde3ec; }
.thin { stroke: #4a5464; }
.blue { stroke: #79b8ff; }
.orange { stroke: #ffab70; }
.green { stroke: #85d996; }
.dot { fill: #dde3ec; }
.faint { fill: #4a5464; }
.bluish { fill: #79b8ff; }
.orangish { fill: #ffab70; }
.greenish { fill: #85d996; }
.pale { fill: #79b8ff; }
text.quiet { fill: #9aa5b5; }
text.on { fill: #14181f; }
}
</style>
)";

std::string escaped(const std::string& words) {
    std::string safe;
    for (const char c : words)
        safe += c == '<' ? "&lt;" : c == '&' ? "&amp;" : c == '"' ? "&quot;" : std::string(1, c);
    return safe;
}

// Blanks count: texts show what was typed.
std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string attribute(const char* name, double value) {
    return attribute(name, Svg::number(value));
}

} // namespace

Svg::Svg(double width, double height, const char* title) {
    const std::string size = number(width) + " " + number(height);
    body_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", width) +
            attribute("height", height) + attribute("viewBox", "0 0 " + size) +
            " role=\"img\">\n<title>" + escaped(title) + "</title>\n" + styles;
    body_ += "<rect class=\"card\" x=\"0.5\" y=\"0.5\" rx=\"8\"" + attribute("width", width - 1) +
             attribute("height", height - 1) + "/>\n";
}

void Svg::line(double x1, double y1, double x2, double y2, const char* style) {
    body_ += "<line" + attribute("class", style) + attribute("x1", x1) + attribute("y1", y1) +
             attribute("x2", x2) + attribute("y2", y2) + "/>\n";
}

void Svg::arrow(double x1, double y1, double x2, double y2, const char* style) {
    const double length = std::hypot(x2 - x1, y2 - y1);
    const double x = (x2 - x1) / length * 9.0;
    const double y = (y2 - y1) / length * 9.0;
    line(x1, y1, x2, y2, style);
    path("M" + number(x2 - x - y / 2) + " " + number(y2 - y + x / 2) + "L" + number(x2) + " " +
             number(y2) + "L" + number(x2 - x + y / 2) + " " + number(y2 - y - x / 2),
         style);
}

void Svg::circle(double x, double y, double radius, const char* style) {
    body_ += "<circle" + attribute("class", style) + attribute("cx", x) + attribute("cy", y) +
             attribute("r", radius) + "/>\n";
}

void Svg::box(double x, double y, double width, double height, const char* style) {
    body_ += "<rect" + attribute("class", style) + attribute("x", x) + attribute("y", y) +
             attribute("width", width) + attribute("height", height) + attribute("rx", "4") +
             "/>\n";
}

void Svg::path(const std::string& d, const char* style) {
    body_ += "<path" + attribute("class", style) + attribute("d", d) + "/>\n";
}

void Svg::text(double x, double y, const std::string& words, const char* style,
               const char* anchor) {
    body_ += "<text" + attribute("class", style) + attribute("x", x) + attribute("y", y) +
             attribute("text-anchor", anchor) + " xml:space=\"preserve\">" + escaped(words) +
             "</text>\n";
}

int Svg::write(const std::string& file) const {
    std::FILE* const out = std::fopen(file.c_str(), "wb");
    if (out == nullptr)
        return 0;
    const bool written = std::fputs((body_ + "</svg>\n").c_str(), out) >= 0;
    return std::fclose(out) == 0 && written;
}

std::string Svg::number(double value) {
    const long long tenths = std::llround(value * 10.0);
    const long long size = tenths < 0 ? -tenths : tenths;
    std::string digits = (tenths < 0 ? "-" : "") + std::to_string(size / 10);
    if (size % 10 != 0)
        digits += "." + std::to_string(size % 10);
    return digits;
}
