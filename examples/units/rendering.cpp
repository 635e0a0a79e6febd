#include "units/rendering.h"

#include "host/unitNames.h"
#include "host/utf8.h"

#include <zarnex/interop/standardStrings.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

namespace units {

using namespace host;

namespace {

constexpr std::array<int, 7> tableUnits = {
    zarnex::unitMillimeter,       zarnex::unitCentimeter, zarnex::unitInch,
    zarnex::unitEmbPoint,         zarnex::unitSpi,        zarnex::unitMillimeterPerSec,
    zarnex::unitCentimeterPerSec,
};

// The text that the library displays. Objects that are not const choose their
// decimals, "2.5 mm" and "2.34 mm"; speeds do so with a dozen of them, so the const
// form serves for these.
template <class Own>
std::string displayText(Own quantity) {
    const ZString text = quantity;
    return zarnex::toUtf8(text);
}

std::string displayText(const ZMillimeterPerSec& speed) {
    const ZString text = speed;
    return zarnex::toUtf8(text);
}

void appendNumber(std::string& out, double number) {
    const double size = std::fabs(number);
    const bool plain = number == 0.0 || (size >= 1e-5 && size < 1e15);
    char digits[32]; // the longest double takes 24
    char* const end = digits + sizeof digits;
    out.append(digits, plain ? std::to_chars(digits, end, number, std::chars_format::fixed).ptr
                             : std::to_chars(digits, end, number).ptr);
}

// `text` with blanks up to `width`, in front or behind.
std::string padded(const std::string& text, std::size_t width, bool inFront) {
    const std::string blanks(width > text.size() ? width - text.size() : 0, ' ');
    return inFront ? blanks + text : text + blanks;
}

} // namespace

std::string digitsOf(double number) {
    std::string out;
    appendNumber(out, number);
    return out;
}

std::string listed(const Quantity& quantity, int to) {
    struct Row {
        std::string unit, display, number;
    };
    std::vector<Row> rows;
    inEveryUnit(quantity, [&](const auto& own) {
        const int unit = own.getUnitId();
        if (own.isValid() && (to == zarnex::unitNone || to == unit))
            rows.push_back({unitName(unit), displayText(own), digitsOf(own)});
    });

    std::size_t unitWidth = 0;
    std::size_t displayWidth = 0;
    for (const Row& row : rows) {
        unitWidth = (std::max)(unitWidth, row.unit.size());
        displayWidth = (std::max)(displayWidth, row.display.size());
    }
    std::string out;
    for (const Row& row : rows)
        out += padded(row.unit, unitWidth, false) + "  " + padded(row.display, displayWidth, true) +
               "  " + row.number + '\n';
    return out;
}

std::string checked(std::string_view text, const Reading& reading) {
    std::string out = quoted(text) + (reading.problem.empty() ? ": valid" : ": invalid");
    if (!reading.problem.empty())
        out += ", " + reading.problem;
    if (!reading.numberText.empty()) {
        out += "; number " + digitsOf(reading.number) + " from " + quoted(reading.numberText);
        if (reading.unitText.empty())
            out += "; no unit, so " + std::string(unitName(reading.unit));
        else
            out += "; unit " + std::string(unitName(reading.unit)) + " from " +
                   quoted(reading.unitText);
    }
    if (!reading.ignored.empty())
        out += "; ignored " + quoted(reading.ignored);
    return out + '\n';
}

std::string tableHeader() {
    std::string out = "line\ttext\tvalid\tnumber\tunit";
    for (const int unit : tableUnits)
        out += '\t' + std::string(unitName(unit));
    return out + "\tignored\tproblem\n";
}

void appendTableRow(std::string& out, long long line, std::string_view text,
                    const Reading& reading) {
    constexpr int most = static_cast<int>(mostTextBytes);
    const bool valid = reading.problem.empty();
    out += std::to_string(line);
    out += '\t';
    appendShown(out, text, most);
    out += valid ? "\tyes\t" : "\tno\t";
    if (!reading.numberText.empty())
        appendNumber(out, reading.number);
    out += '\t';
    out += unitName(reading.unit); // none without a number

    std::array<std::optional<double>, tableUnits.size()> cells;
    if (valid)
        inEveryUnit(reading.quantity, [&cells](const auto& own) {
            const auto at = std::find(tableUnits.begin(), tableUnits.end(), own.getUnitId());
            if (own.isValid() && at != tableUnits.end())
                cells[static_cast<std::size_t>(at - tableUnits.begin())] = own;
        });
    for (const std::optional<double>& cell : cells) {
        out += '\t';
        if (cell)
            appendNumber(out, *cell);
    }
    out += '\t';
    appendShown(out, reading.ignored, most);
    out += '\t';
    out += reading.problem;
    out += '\n';
}

} // namespace units
