#include <zarnex/units/internal/factors.h>

#include <zarnex/units/unitIds.h>

namespace zarnex::detail {

namespace {

enum class Rule : unsigned char {
    refuse,
    times,       // value * factor
    by,          // value / factor
    intoDensity, // factor / value, the value a length: not below zero
    intoLength,  // factor / value, the value a density: above zero
};

struct Conversion {
    Rule rule;
    double factor;
};

constexpr Conversion no{Rule::refuse, 0.0};
constexpr Conversion same{Rule::times, 1.0};
constexpr Conversion times(double factor) {
    return {Rule::times, factor};
}
constexpr Conversion by(double factor) {
    return {Rule::by, factor};
}
constexpr Conversion intoDensity(double factor) {
    return {Rule::intoDensity, factor};
}
constexpr Conversion intoLength(double factor) {
    return {Rule::intoLength, factor};
}

constexpr int columns = 6;

constexpr Conversion table[][columns] = {
    // from mm, mm/s      cm, cm/s           inch               point               spi sq cm
    /* mm    */ {same, times(10.0), times(25.4), by(10.0), intoLength(25.4), no},
    /* cm    */ {by(10.0), same, times(2.54), by(100.0), intoLength(2.54), no},
    /* inch  */ {by(25.4), by(2.54), same, by(254.0), intoLength(1.0), no},
    /* point */ {times(10.0), times(100.0), times(254.0), same, intoLength(254.0), no},
    /* spi   */
    {intoDensity(25.4), intoDensity(2.54), intoDensity(1.0), intoDensity(254.0), same, no},
    // Kept as is: inches and points are refused here, although cm/s takes them.
    /* mm/s  */ {same, times(10.0), no, no, no, no},
    /* cm/s  */ {by(10.0), same, times(2.54), by(100.0), no, no},
    /* sq cm */ {no, no, no, no, no, same},
};

// The column of a unit, or -1.
constexpr int columnOf(int unit) {
    switch (unit) {
    case unitMillimeter:
    case unitMillimeterPerSec:
        return 0;
    case unitCentimeter:
    case unitCentimeterPerSec:
        return 1;
    case unitInch:
        return 2;
    case unitEmbPoint:
        return 3;
    case unitSpi:
        return 4;
    case unitSquareCentimeter:
        return 5;
    default:
        return -1;
    }
}

} // namespace

int convertTo(Target target, double value, int unit, double& result) {
    const int column = columnOf(unit);
    if (column < 0)
        return 0;
    const Conversion& conversion = table[static_cast<int>(target)][column];
    switch (conversion.rule) {
    case Rule::times:
        result = value * conversion.factor;
        return 1;
    case Rule::by:
        result = value / conversion.factor;
        return 1;
    case Rule::intoDensity:
        if (value < 0.0)
            return 0;
        result = conversion.factor / (value + 0.0); // a zero of either sign: +infinity
        return 1;
    case Rule::intoLength:
        if (!(value > 0.0))
            return 0;
        result = conversion.factor / value;
        return 1;
    default:
        return 0;
    }
}

double convertAssigned(Target target, double value, int unit) {
    const Conversion& conversion = table[static_cast<int>(target)][columnOf(unit)];
    switch (conversion.rule) {
    case Rule::times:
        return value * conversion.factor;
    case Rule::by:
        return value / conversion.factor;
    default:
        return value == 0.0 ? 0.0 : conversion.factor / value;
    }
}

} // namespace zarnex::detail
