#include "../byHand.h"
#include "../quantityTexts.h"
#include "../rows.h"

#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/ZSquareCentimeter.h>
#include <zarnex/units/conversion.h>
#include <zarnex/units/unitIds.h>

#if BENCH_FMT
#include <fmt/format.h>
#include <fmt/xchar.h>
#endif
#if BENCH_QT
#include <QtCore/QString>
#endif
#if BENCH_UDUNITS
#include <udunits2.h>
#endif

#include <cmath>
#include <cwchar>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace bench {

namespace {

using byHand::Unit;

// ---- Reading

constexpr double byHandLimit = 2.0;

/// What a text adds to the result of a side.
double counted(double value, bool valid) {
    return valid ? value + 1000.0 : value;
}

template <class Own, class To>
double readOurs(const std::vector<ZString>& texts) {
    double sum = 0.0;
    for (const ZString& text : texts) {
        const Own read(text);
        sum += counted(To(read), read.isValid());
    }
    return sum;
}

double readByHand(const std::vector<std::wstring>& texts, Unit own, Unit to) {
    double sum = 0.0;
    for (const std::wstring& text : texts) {
        const byHand::Quantity read = byHand::read(text, own);
        sum += counted(byHand::converted(read.value, own, to), read.valid);
    }
    return sum;
}

#if BENCH_UDUNITS

constexpr double udunitsLimit = 0.15;

/// The units that the peer ships, and the stitch.
ut_system* unitSystem() {
    static ut_system* const system = [] {
        ut_set_error_message_handler(ut_ignore);
        ut_system* const made = ut_read_xml(nullptr);
        ut_unit* const one = ut_get_dimensionless_unit_one(made);
        ut_map_name_to_unit("stitches", UT_ASCII, one);
        ut_free(one);
        return made;
    }();
    return system;
}

double readByUdunits(const std::vector<std::string>& texts, ut_unit* to) {
    double sum = 0.0;
    for (const std::string& text : texts) {
        ut_unit* const unit = ut_parse(unitSystem(), text.c_str(), UT_ASCII);
        cv_converter* const converter = ut_get_converter(unit, to);
        sum += counted(cv_convert_double(converter, 1.0), true);
        cv_free(converter);
        ut_free(unit);
    }
    return sum;
}

#endif

/// Reads texts as quantities of the class Own and converts each to the class To.
template <class Own, class To>
class ReadRow {
public:
    ReadRow(std::vector<std::string> texts, Unit own, Unit to)
        : texts_(std::move(texts)), own_(own), to_(to) {}

    /// What the other library reads instead, if it reads such a thing, and into what.
    ReadRow& udunits(const char* format, const char* to) {
        format_ = format;
        into_ = to;
        return *this;
    }

    void addTo(Suite& suite, const std::string& name, const std::string& what) const {
        suite.row(name, byHandLimit, what, [this](Row& row, const auto& measure) {
            const QuantityTexts texts(texts_);
            row.per(textCount);
            row.tolerance(1e-12);
            row.ours([&] { return readOurs<Own, To>(texts.ours); });
            row.peer("by hand", [&] { return readByHand(texts.wide, own_, to_); });
#if BENCH_UDUNITS
            if (format_ != nullptr) {
                const std::vector<std::string> narrow = formed(format_);
                ut_unit* const into = ut_parse(unitSystem(), into_, UT_ASCII);
                row.peerWithin(udunitsLimit, "udunits",
                               [&narrow, into] { return readByUdunits(narrow, into); });
                measure();
                ut_free(into);
                return;
            }
#endif
            measure();
        });
    }

private:
    std::vector<std::string> texts_;
    Unit own_;
    Unit to_;
    const char* format_ = nullptr;
    const char* into_ = nullptr;
};

/// Texts without a number, and with text behind the unit.
std::vector<std::string> invalidTexts() {
    std::vector<std::string> texts = formed("%.1f mm extra");
    for (std::size_t i = 0; i < texts.size(); i += 2)
        texts[i] = i % 4 == 0 ? "wide" : "inches";
    return texts;
}

void readingRows(Suite& suite) {
    ReadRow<ZMillimeter, ZInch>(formed("%.1f mm"), Unit::millimeter, Unit::inch)
        .udunits("%.1f mm", "inch")
        .addTo(suite, "read \"2.5 mm\"", "One decimal and \"mm\" into millimetres, then inches.");
    ReadRow<ZSquareCentimeter, ZSquareCentimeter>(
        formed("%.0f per sq cm"), Unit::perSquareCentimeter, Unit::perSquareCentimeter)
        .udunits("%.0f per cm2", "cm-2")
        .addTo(suite, "read \"40 per sq cm\"",
               "A density per area; udunits reads \"40 per cm2\", which is its way to say so.");
    ReadRow<ZSpi, ZInch>(formed("%.0f stitches per inch"), Unit::stitchesPerInch, Unit::inch)
        .udunits("%.0f stitches per inch", "inch")
        .addTo(suite, "read \"3 stitches per inch\"",
               "A stitch density, then the length of a stitch in inches; udunits has been told "
               "that a stitch is a plain number.");
    ReadRow<ZMillimeter, ZInch>(formed("%.2f centimeters"), Unit::millimeter, Unit::inch)
        .udunits("%.2f centimeters", "inch")
        .addTo(suite, "read \"12.75 centimeters\"", "A long word into millimetres, then inches.");
    ReadRow<ZMillimeter, ZInch>(formed(" -%.1f Inches "), Unit::millimeter, Unit::inch)
        .udunits("-%.1f inches", "inch")
        .addTo(suite, "read \" -3.5 Inches \"",
               "A sign, a capital and blanks around; udunits reads it without the latter.");
    ReadRow<ZEmbPoint, ZMillimeter>(formed("%.0f"), Unit::point, Unit::millimeter)
        .addTo(suite, "read \"25\"", "A bare number in embroidery points, then millimetres.");
    ReadRow<ZMillimeter, ZInch>(invalidTexts(), Unit::millimeter, Unit::inch)
        .addTo(suite, "read invalid text", "\"wide\", \"inches\" and \"2.5 mm extra\" by turns.");
}

// ---- Rendering

/// Lengths to render, in millimetres.
std::vector<double> lengths() {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> hundredths(100, 20000);
    std::vector<double> all;
    for (int i = 0; i < textCount; ++i)
        all.push_back(hundredths(random) / 100.0);
    return all;
}

/// A number from the text's characters.
template <class Text>
int looked(const Text& text) {
    return static_cast<int>(text[0]) + static_cast<int>(text[2]) + static_cast<int>(text[5]);
}

#if BENCH_QT
int looked(const QString& text) {
    return text[0].unicode() + text[2].unicode() + text[5].unicode();
}
#endif

/// A side that renders all `values`, each by `render`.
template <class Render>
auto rendering(const std::vector<double>& values, Render render) {
    return [&values, render] {
        int sum = 0;
        for (const double value : values)
            sum += looked(render(value));
        return sum;
    };
}

template <class... Arguments>
std::wstring printed(const wchar_t* format, Arguments... arguments) {
    wchar_t text[64];
    const int count = std::swprintf(text, sizeof text / sizeof *text, format, arguments...);
    return std::wstring(text, static_cast<std::size_t>(count));
}

int neededDecimals(double millimeters) {
    return std::lround(millimeters * 100.0) % 10 == 0 ? 1 : 2;
}

void renderingRows(Suite& suite) {
    const std::vector<double> values = lengths();
    suite.row("render millimetres", 1.0, "\" 2.5 mm\": four places, one decimal, the label.",
              [&](Row& row, const auto& measure) {
                  row.per(textCount);
                  row.ours(rendering(values, [](double value) -> const ZString {
                      const ZMillimeter length(value);
                      return length;
                  }));
                  row.peer("by hand", rendering(values, [](double value) {
                               return byHand::render(value, 4, 1, L"mm");
                           }));
                  row.peer("swprintf", rendering(values, [](double value) {
                               return printed(L"%4.1f mm", value);
                           }));
#if BENCH_FMT
                  row.peer("fmt", rendering(values, [](double value) {
                               return fmt::format(L"{:4.1f} mm", value);
                           }));
#endif
#if BENCH_QT
                  row.peer("Qt", rendering(values, [](double value) {
                               return QString::number(value, 'f', 1).rightJustified(4) +
                                      QStringLiteral(" mm");
                           }));
#endif
                  measure();
              });
    suite.row(
        "render what is needed", 1.0,
        "\" 2.5 mm\" and \"2.34 mm\": the second decimal only where it says something.",
        [&](Row& row, const auto& measure) {
            row.per(textCount);
            row.ours(rendering(values, [](double value) -> const ZString {
                return ZMillimeter(value).getString();
            }));
            row.peer("by hand", rendering(values, byHand::renderMillimeter));
            row.peer("swprintf", rendering(values, [](double value) {
                         return printed(L"%4.*f mm", neededDecimals(value), value);
                     }));
#if BENCH_FMT
            row.peer("fmt", rendering(values, [](double value) {
                         return fmt::format(L"{:4.{}f} mm", value, neededDecimals(value));
                     }));
#endif
#if BENCH_QT
            row.peer(
                "Qt", rendering(values, [](double value) {
                    return QString::number(value, 'f', neededDecimals(value)).rightJustified(4) +
                           QStringLiteral(" mm");
                }));
#endif
            measure();
        });
    suite.row("render as inches", 1.0, "A length in millimetres as \"0.10 in\".",
              [&](Row& row, const auto& measure) {
                  row.per(textCount);
                  row.ours(rendering(values, [](double value) -> const ZString {
                      return ZMillimeter(value).getStringWithUnits(zarnex::unitInch);
                  }));
                  row.peer("by hand", rendering(values, [](double value) {
                               return byHand::render(value / 25.4, 4, 2, L"in");
                           }));
                  row.peer("swprintf", rendering(values, [](double value) {
                               return printed(L"%4.2f in", value / 25.4);
                           }));
#if BENCH_FMT
                  row.peer("fmt", rendering(values, [](double value) {
                               return fmt::format(L"{:4.2f} in", value / 25.4);
                           }));
#endif
#if BENCH_QT
                  row.peer("Qt", rendering(values, [](double value) {
                               return QString::number(value / 25.4, 'f', 2).rightJustified(4) +
                                      QStringLiteral(" in");
                           }));
#endif
                  measure();
              });
}

void conversionRows(Suite& suite) {
    const std::vector<double> values = lengths();
    suite.row("convert through text", 1.5,
              "convertZUnits from millimetres to inches, which keeps what the display shows.",
              [&](Row& row, const auto& measure) {
                  row.per(textCount);
                  row.tolerance(1e-12);
                  row.ours([&values] {
                      double sum = 0.0;
                      for (const double value : values)
                          sum += convertZUnits(zarnex::unitMillimeter, value, zarnex::unitInch, 0);
                      return sum;
                  });
                  row.peer("by hand", [&values] {
                      double sum = 0.0;
                      for (const double value : values)
                          sum += byHand::read(byHand::renderMillimeter(value), Unit::inch).value;
                      return sum;
                  });
                  measure();
              });
}

} // namespace

void quantityRows(Suite& suite) {
    suite.topic("quantities");
    readingRows(suite);
    renderingRows(suite);
    conversionRows(suite);
}

} // namespace bench
