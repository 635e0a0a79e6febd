#pragma once

#include <string>

/// A picture for the pages: SVG on a card of its own, light or dark as the reader's system is.
///
/// Places and sizes are in pixels with y growing downward. A style is one of the classes that
/// Svg.cpp lists, or several between blanks.
class Svg {
public:
    /// `title` is read out to those who cannot see the picture.
    Svg(double width, double height, const char* title);

    void line(double x1, double y1, double x2, double y2, const char* style);

    /// With a head at the second end.
    void arrow(double x1, double y1, double x2, double y2, const char* style);

    void circle(double x, double y, double radius, const char* style);
    void box(double x, double y, double width, double height, const char* style);

    /// `d` as in the attribute of that name.
    void path(const std::string& d, const char* style);

    /// Begins at `x`, ends there ("end") or has its middle there ("middle"); `y` is the base line.
    void text(double x, double y, const std::string& words, const char* style,
              const char* anchor = "start");

    /// 1 if `file` could be written.
    int write(const std::string& file) const;

    /// At most one decimal, "." in every locale.
    static std::string number(double value);

private:
    std::string body_;
};
