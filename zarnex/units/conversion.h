#pragma once

/// @file
/// Values in units that are known by their identifier (zarnex::UnitId).
///
/// Kept as is: conversion goes through the display text, although assignment between
/// quantities is exact: the result is what a user
/// would have typed after reading the displayed source value: with one or two
/// decimals for lengths, none for numbers, 12 or 22 for mm/s.
///
/// Kept as is: a value whose number has 100 characters or more, such as 1e98 mm, ends
/// the process when its text is read as a length, a speed or a density.
///
///     convertZUnits(2, 1.234, 4, 0)   // "1.23 mm" read as inches: 1.23 / 25.4

#include <zarnex/config.h>
#include <zarnex/strings/ZString.h>

/// Writes the text of `value` in `unit` into `out` and returns 0.
///
/// Returns -1 and leaves `out` alone for units without a renderer: 7, 10, 11, 13
/// and all outside 1 ... 15. Units 1 and 8 cut the value to an int. With
/// `densityFormat` not 0 unit 2 always has two decimals; the other units ignore it.
ZARNEX_API int renderZUnitQuantity(int unit, double value, ZString& out, int densityFormat);

/// The value that `text` denotes, in `unit`; 0.0 if it denotes none.
///
/// Kept as is: units 12 and 14 read as 3 and 2. Every unit outside 2 ... 6, 12, 14
/// and 15 reads an integer, also 9 and 13: "2.75" is 2.0.
ZARNEX_API double evaluateRenderedQuantity(int unit, const ZString& text);

/// What evaluateRenderedQuantity() makes, in `toUnit`, of the text that
/// renderZUnitQuantity() gives for `value` in `fromUnit`; of the empty text where
/// that has no renderer.
ZARNEX_API double convertZUnits(int fromUnit, double value, int toUnit, int densityFormat);
