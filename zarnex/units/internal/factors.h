#pragma once

/// The one table of conversion between units.

namespace zarnex::detail {

/// The rows of the table: the unit that a quantity class stores.
enum class Target {
    millimeter,
    centimeter,
    inch,
    embPoint,
    spi,
    millimeterPerSec,
    centimeterPerSec,
    squareCentimeter,
};

/// Converts into `result` and returns 1, or returns 0 and leaves it.
int convertTo(Target target, double value, int unit, double& result);

/// What the setValue() of each class does: converts `value` from `unit` into
/// `stored`, sets `valid` and returns 1.
///
/// Where the target refuses the unit, a density that is no positive number, or (for
/// stitches per inch) a negative length, `stored` becomes 0.0, `valid` 0, and 0 is
/// returned. Speeds count as their lengths: unit 14 is unit 2 and unit 12 is unit 3.
template <class Flag>
int setConverted(Target target, double value, int unit, double& stored, Flag& valid) {
    stored = 0.0;
    valid = convertTo(target, value, unit, stored) != 0;
    return valid;
}

/// The same for assignment between quantities, which refuses nothing: a zero on
/// the far side of a reciprocal gives 0.0.
double convertAssigned(Target target, double value, int unit);

/// What the assignments do: `stored` and `valid` are those of `source`, which counts as `unit`.
template <class Source, class Flag>
void assignConverted(Target target, const Source& source, int unit, double& stored, Flag& valid) {
    stored = convertAssigned(target, source, unit);
    valid = source.isValid();
}

} // namespace zarnex::detail
