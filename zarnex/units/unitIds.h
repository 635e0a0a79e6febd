#pragma once

/// @file
/// The identifiers of the units.

namespace zarnex {

/// The identifiers of the units, under the numbers that every interface takes
/// and returns as plain `int`. 10 is not assigned.
enum UnitId : int {
    unitNone = 0,             ///< no unit; the scanner's end of text
    unitNumber = 1,           ///< a number without a unit
    unitMillimeter = 2,       ///< length
    unitCentimeter = 3,       ///< length
    unitInch = 4,             ///< length, 25.4 mm
    unitEmbPoint = 5,         ///< embroidery point, 0.1 mm
    unitSpi = 6,              ///< stitches per inch
    unitSquareCentimeter = 7, ///< for each square centimetre

    // No word of typed text stands for these.
    unitInteger = 8,           ///< an integer
    unitPercent = 9,           ///< 100 is one hundred percent
    unitHalfNumber = 11,       ///< a number rounded to halves
    unitCentimeterPerSec = 12, ///< speed
    unitRealNumber = 13,       ///< a real number
    unitMillimeterPerSec = 14, ///< speed
    unitDegree = 15,           ///< of angle
};

} // namespace zarnex
