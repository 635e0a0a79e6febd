#pragma once

namespace zarnex {

/// The identifiers of the units, under the numbers that every interface takes
/// and returns as plain `int`. 10 is not assigned.
enum UnitId : int {
    unitNone = 0,   ///< no unit; the scanner's end of text
    unitNumber = 1, ///< a number without a unit
    unitMillimeter = 2,
    unitCentimeter = 3,
    unitInch = 4,
    unitEmbPoint = 5, ///< embroidery point, 0.1 mm
    unitSpi = 6,      ///< stitches per inch
    unitSquareCentimeter = 7,

    // No word of typed text stands for these.
    unitInteger = 8,
    unitPercent = 9,
    unitHalfNumber = 11, ///< a number rounded to halves
    unitCentimeterPerSec = 12,
    unitRealNumber = 13,
    unitMillimeterPerSec = 14,
    unitDegree = 15, ///< of angle
};

} // namespace zarnex
