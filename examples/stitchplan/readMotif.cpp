#include "stitchplan/readMotif.h"

#include "stitchplan/outlines.h"
#include "stitchplan/pieces.h"
#include "stitchplan/typedValues.h"

#include "host/trimming.h"
#include "host/unitNames.h"
#include "host/utf8.h"

#include <zarnex/geometry/circleCentre.h>
#include <zarnex/units/unitIds.h>

#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

namespace stitchplan {

namespace {

constexpr int mostCopies = 1000;
constexpr std::size_t mostCorners = 20000;

class Reader {
public:
    Motif read(const std::vector<std::string_view>& lines);

private:
    struct Statement {
        std::string_view keyword;
        void (Reader::*read)(std::string_view rest);
        bool isSetting;  ///< stands once at most
        bool needsValue; ///< behind the keyword
    };
    static const std::array<Statement, 12> statements;

    void readStatement(std::string_view text);

    void title(std::string_view rest);
    void units(std::string_view rest);
    void hoop(std::string_view rest);
    void stitch(std::string_view rest);
    void spacing(std::string_view rest);
    void rowAngle(std::string_view rest);
    void scale(std::string_view rest);
    void outline(std::string_view rest);
    void points(std::string_view rest);
    void close(std::string_view rest);
    void circle(std::string_view rest);
    void repeat(std::string_view rest);

    DPoint point(std::string_view text) const;
    void mustNotBeOpen() const;
    void countCorners(const Outline& last);

    Motif motif_;
    std::set<std::string_view> given_;
    int line_ = 0;
    std::size_t corners_ = 0; ///< of the outlines but the last
    int openSince_ = 0;       ///< the line of the outline that is open; 0 for none
    int bareUnit_ = zarnex::unitMillimeter;
};

const std::array<Reader::Statement, 12> Reader::statements = {{
    {"title", &Reader::title, true, true},
    {"units", &Reader::units, false, true},
    {"hoop", &Reader::hoop, true, true},
    {"stitch", &Reader::stitch, true, true},
    {"spacing", &Reader::spacing, true, true},
    {"angle", &Reader::rowAngle, true, true},
    {"scale", &Reader::scale, true, true},
    {"outline", &Reader::outline, false, false},
    {"point", &Reader::points, false, true},
    {"close", &Reader::close, false, false},
    {"circle", &Reader::circle, false, true},
    {"repeat", &Reader::repeat, false, true},
}};

void Reader::title(std::string_view rest) {
    motif_.title = rest;
}

void Reader::units(std::string_view rest) {
    bareUnit_ = host::unitOfWord(rest);
    if (!isLengthUnit(bareUnit_))
        throw ValueError("not the unit of a length: " + host::quoted(rest));
}

void Reader::hoop(std::string_view rest) {
    std::vector<std::string_view> sides = split(rest, 'x');
    if (sides.size() != 2)
        sides = split(rest, 'X');
    if (sides.size() != 2)
        throw ValueError("a hoop is two lengths with an x between");
    motif_.hoopWidth = length(sides[0], bareUnit_);
    motif_.hoopHeight = length(sides[1], bareUnit_);
    if (!(motif_.hoopWidth > 0.0 && motif_.hoopHeight > 0.0))
        throw ValueError("the sides of a hoop must be above zero");
}

void Reader::stitch(std::string_view rest) {
    motif_.stitchLength = lengthOrDensity(rest, bareUnit_);
    motif_.stitchLine = line_;
    if (!(motif_.stitchLength >= shortestStitch))
        throw ValueError("the stitch length must be 0.3 mm or more");
}

void Reader::spacing(std::string_view rest) {
    motif_.rowSpacing = lengthOrDensity(rest, bareUnit_);
    motif_.spacingLine = line_;
    if (!(motif_.rowSpacing > 0.0))
        throw ValueError("the spacing of rows must be above zero");
}

void Reader::rowAngle(std::string_view rest) {
    motif_.degrees = angle(rest);
}

void Reader::scale(std::string_view rest) {
    motif_.scale = percentage(rest) / 100.0;
    if (!(motif_.scale > 0.0 && motif_.scale <= 100.0))
        throw ValueError("the scale must be above 0 % and no more than 10000 %");
}

void Reader::mustNotBeOpen() const {
    if (openSince_ != 0)
        throw MotifError(openSince_, "open outline, no \"close\" follows");
}

// Refuses too many before they fill the memory.
void Reader::countCorners(const Outline& last) {
    if (corners_ + last.lines.size() > mostCorners)
        throw ValueError("this makes more than " + std::to_string(mostCorners) + " corners");
}

void Reader::outline(std::string_view rest) {
    mustNotBeOpen();
    openSince_ = line_;
    motif_.outlines.emplace_back();
    motif_.outlines.back().line = line_;
    if (!rest.empty())
        points(rest);
}

void Reader::points(std::string_view rest) {
    if (openSince_ == 0)
        throw ValueError("a point must follow an \"outline\"");
    for (const std::string_view text : split(rest, ';'))
        addCorner(motif_.outlines.back(), point(text), line_);
    countCorners(motif_.outlines.back());
}

void Reader::close(std::string_view rest) {
    if (!rest.empty())
        throw ValueError("nothing may stand behind \"close\"");
    if (openSince_ == 0)
        throw ValueError("no outline is open");
    openSince_ = 0;
    corners_ += motif_.outlines.back().lines.size();
}

void Reader::circle(std::string_view rest) {
    mustNotBeOpen();
    const std::vector<std::string_view> parts = split(rest, ';');
    if (parts.size() != 3)
        throw ValueError("a circle is three points with semicolons between");
    const DPoint first = point(parts[0]);
    DPoint centre;
    if (computeCentre(&centre, first, point(parts[1]), point(parts[2])) != 0)
        throw ValueError("no circle: the points coincide or lie on a line");
    motif_.outlines.push_back(circleOutline(centre, (first - centre).length(), line_));
    countCorners(motif_.outlines.back());
    corners_ += motif_.outlines.back().lines.size();
}

void Reader::repeat(std::string_view rest) {
    Repeat repeat;
    if (rest == "mirrored") {
        repeat.kind = Repeat::Kind::mirrored;
    } else if (rest == "flipped") {
        repeat.kind = Repeat::Kind::flipped;
    } else {
        const std::string_view times = takeWord(rest);
        if (takeWord(rest) != "by")
            throw ValueError(
                "a repeat is \"mirrored\", \"flipped\" or such as \"6 by 60 degrees\"");
        repeat.count = count(times, mostCopies);
        repeat.degrees = angle(rest);
    }
    motif_.repeats.push_back(repeat);
    double copies = 1.0;
    for (const Repeat& each : motif_.repeats)
        copies *= each.count;
    if (copies > mostCopies)
        throw ValueError("this makes more than " + std::to_string(mostCopies) + " copies");
}

DPoint Reader::point(std::string_view text) const {
    const std::vector<std::string_view> parts = split(text, ',');
    if (parts.size() != 2)
        throw ValueError("a point is two lengths with a comma between");
    return DPoint(length(parts[0], bareUnit_), length(parts[1], bareUnit_));
}

void Reader::readStatement(std::string_view text) {
    std::string_view rest = text;
    const std::string_view keyword = takeWord(rest);
    for (const Statement& statement : statements) {
        if (statement.keyword != keyword)
            continue;
        if (statement.isSetting && !given_.insert(statement.keyword).second)
            throw ValueError("given a second time");
        if (statement.needsValue && rest.empty())
            throw ValueError("nothing stands behind \"" + std::string(keyword) + '"');
        return (this->*statement.read)(rest);
    }
    throw ValueError("unknown statement " + host::quoted(keyword));
}

Motif Reader::read(const std::vector<std::string_view>& lines) {
    for (const std::string_view line : lines) {
        ++line_;
        const std::string_view text = host::trimmed(line.substr(0, line.find('#')), blanks);
        try {
            if (!host::isText(line))
                throw ValueError("this is no text");
            if (!text.empty())
                readStatement(text);
        } catch (const ValueError& error) {
            throw MotifError(line_, error.what());
        }
    }
    mustNotBeOpen();
    if (given_.count("hoop") == 0)
        throw MotifError(0, "no hoop is given");
    if (motif_.outlines.empty())
        throw MotifError(0, "neither an outline nor a circle is given");
    return std::move(motif_);
}

} // namespace

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines = split(host::withoutByteOrderMark(text), '\n');
    for (std::string_view& line : lines)
        line = host::withoutCarriageReturn(line);
    return lines;
}

Motif readMotif(const std::vector<std::string_view>& lines) {
    return Reader().read(lines);
}

} // namespace stitchplan
