#include "stitchplan/picture.h"

#include "host/utf8.h"

#include <zarnex/geometry/rounding.h>

#include <charconv>
#include <cstddef>
#include <string>

namespace stitchplan {

namespace {

constexpr double margin = 60.0; ///< around the hoop, in points
constexpr double footer = 90.0; ///< below it, for the scale bar

/// Text of an SVG file, in millimetres with y growing downward.
class Drawing {
public:
    explicit Drawing(const std::function<void(std::string_view)>& write) : write_(write) {}

    /// Hands over what waits; the last call.
    void flush() {
        write_(text_);
        text_.clear();
    }

    Drawing& operator<<(std::string_view text) {
        text_ += text;
        if (text_.size() >= 4096)
            flush();
        return *this;
    }

    /// A length in points as millimetres, to a hundredth.
    Drawing& operator<<(double points) {
        char digits[mostDigits];
        return *this << std::string_view(digits, written(digits, points));
    }

    Drawing& operator<<(const DPoint& p) {
        char digits[2 * mostDigits + 1];
        std::size_t length = written(digits, p.x);
        digits[length++] = ' ';
        length += written(digits + length, -p.y);
        return *this << std::string_view(digits, length);
    }

private:
    static constexpr std::size_t mostDigits = 16;

    static std::size_t written(char* out, double points) {
        char* end = out;
        long long hundredths = zarnex::roundHalfAwayToInt(points * 10.0);
        if (hundredths < 0) {
            *end++ = '-';
            hundredths = -hundredths;
        }
        end = std::to_chars(end, out + mostDigits, hundredths / 100).ptr;
        if (hundredths % 100 != 0) {
            *end++ = '.';
            *end++ = static_cast<char>('0' + hundredths / 10 % 10);
            if (hundredths % 10 != 0)
                *end++ = static_cast<char>('0' + hundredths % 10);
        }
        return static_cast<std::size_t>(end - out);
    }

    const std::function<void(std::string_view)>& write_;
    std::string text_;
};

std::string escaped(std::string_view text) {
    std::string plain = host::shown(text, 100);
    for (const std::string_view refused : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) // no characters of XML
        for (std::size_t at; (at = plain.find(refused)) != std::string::npos;)
            plain.replace(at, refused.size(), "\xEF\xBF\xBD");
    std::string out;
    for (const char c : plain) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

void drawFabric(Drawing& out, const Motif& motif) {
    const double width = motif.hoopWidth;
    const double height = motif.hoopHeight;
    out << R"svg(<defs>
<pattern id="linen" width="1" height="1" patternUnits="userSpaceOnUse">
<rect width="1" height="1" fill="#ece3d0"/>
<path d="M0 .25H.5M.5 .75H1" stroke="#f6f0e2" stroke-width=".38"/>
<path d="M.25 .5V1M.75 0V.5" stroke="#e0d4bb" stroke-width=".38"/>
</pattern>
<marker id="needle" viewBox="-1 -1 2 2" markerWidth=".26" markerHeight=".26" markerUnits="userSpaceOnUse">
<circle r="1" fill="#4d0f1c"/>
</marker>
</defs>
)svg";
    out << "<rect x=\"" << -width / 2.0 << "\" y=\"" << -height / 2.0 << "\" width=\"" << width
        << "\" height=\"" << height
        << "\" rx=\"4\" fill=\"url(#linen)\" stroke=\"#b08a5b\" stroke-width=\"1.6\"/>\n";
}

void drawOutlines(Drawing& out, const Plan& plan) {
    out << "<g fill=\"none\" stroke=\"#4a90c4\" stroke-width=\"1\" stroke-opacity=\".6\" "
           "stroke-linejoin=\"round\">\n";
    for (const Z2DTrans& copy : plan.copies)
        for (const Outline& outline : plan.motif.outlines) {
            std::string_view lead = "<path d=\"M";
            for (int i = 0; i < outline.corners.length(); ++i) {
                out << lead << copy * outline.corners[i];
                lead = "L";
            }
            out << "Z\"/>\n";
        }
    out << "</g>\n";
}

// The threads stand in the file once and are drawn four times: their dark edges, their
// colour, the shine on them, and the needle points.
void drawThreads(Drawing& out, const StitchPath& path, const std::function<void(int)>& progress) {
    out << "<defs><g id=\"threads\">\n";
    for (int thread = 0; thread < path.threads(); ++thread) {
        std::string_view lead = "<path d=\"M";
        for (int i = path.threadBegin(thread); i < path.threadBegin(thread + 1); ++i) {
            out << lead << path.needle(i);
            lead = "L";
            progress(i);
        }
        out << "\"/>\n";
    }
    out << R"svg(</g></defs>
<g fill="none" stroke-linecap="round" stroke-linejoin="round">
<use href="#threads" stroke="#7d1a2f" stroke-width=".46"/>
<use href="#threads" stroke="#b8324c" stroke-width=".34"/>
<use href="#threads" stroke="#e58a98" stroke-width=".08" stroke-opacity=".7"/>
<use href="#threads" marker-start="url(#needle)" marker-mid="url(#needle)" marker-end="url(#needle)"/>
</g>
)svg";
}

void drawScaleBar(Drawing& out, const Motif& motif) {
    const double length = motif.hoopWidth >= 300.0 ? 100.0 : 10.0;
    const double left = -motif.hoopWidth / 2.0;
    const double y = -motif.hoopHeight / 2.0 - margin;
    const DPoint begin(left, y);
    const DPoint end(left + length, y);
    const DVector tick(0.0, 12.0);
    out << "<path d=\"M" << begin + tick << "L" << begin - tick << "M" << begin << "L" << end << "M"
        << end + tick << "L" << end - tick << "\" stroke=\"#333\" stroke-width=\".4\"/>\n";
    out << "<text x=\"" << end.x + 20.0 << "\" y=\"" << -y + 12.0
        << "\" font-family=\"sans-serif\" font-size=\"3.6\" fill=\"#333\">"
        << (length == 100.0 ? "10 mm" : "1 mm");
    if (!motif.title.empty())
        out << " \xE2\x80\x93 " << escaped(motif.title);
    out << "</text>\n";
}

} // namespace

void drawPicture(const Plan& plan, const std::function<void(std::string_view)>& write,
                 const std::function<void(int)>& progress) {
    const Motif& motif = plan.motif;
    const double width = motif.hoopWidth + 2.0 * margin;
    const double height = motif.hoopHeight + margin + margin + footer;
    Drawing out(write);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "mm\" height=\""
        << height << "mm\" viewBox=\"" << -width / 2.0 << " " << -motif.hoopHeight / 2.0 - margin
        << " " << width << " " << height << "\">\n";
    if (!motif.title.empty())
        out << "<title>" << escaped(motif.title) << "</title>\n";
    out << "<rect x=\"" << -width / 2.0 << "\" y=\"" << -motif.hoopHeight / 2.0 - margin
        << "\" width=\"" << width << "\" height=\"" << height << "\" fill=\"#fbfaf7\"/>\n";
    drawFabric(out, motif);
    drawOutlines(out, plan);
    drawThreads(out, plan.path, progress);
    drawScaleBar(out, motif);
    out << "</svg>\n";
    out.flush();
}

} // namespace stitchplan
