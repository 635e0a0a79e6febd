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

/// `value` in `unit`, expressed in the unit of `target`.
///
/// Speeds count as their lengths: unit 14 is unit 2 and unit 12 is unit 3. Returns
/// 1 and sets `result`; returns 0 and leaves it where the target refuses the unit,
/// a density that is no positive number, or (for stitches per inch) a negative
/// length.
int convertTo(Target target, double value, int unit, double& result);

/// The same for assignment between quantities, which refuses nothing: a zero on
/// the far side of a reciprocal gives 0.0.
double convertAssigned(Target target, double value, int unit);

} // namespace zarnex::detail
