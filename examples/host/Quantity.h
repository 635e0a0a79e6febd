#pragma once

/// A quantity in the class of its own unit, and its way into the other units.

#include <zarnex/units/ZCentimeter.h>
#include <zarnex/units/ZCentimeterPerSec.h>
#include <zarnex/units/ZEmbPoint.h>
#include <zarnex/units/ZInch.h>
#include <zarnex/units/ZMillimeter.h>
#include <zarnex/units/ZMillimeterPerSec.h>
#include <zarnex/units/ZSpi.h>
#include <zarnex/units/ZSquareCentimeter.h>
#include <zarnex/units/unitIds.h>

#include <type_traits>
#include <variant>

namespace host {

using Quantity = std::variant<ZMillimeter, ZCentimeter, ZInch, ZEmbPoint, ZSpi, ZSquareCentimeter,
                              ZMillimeterPerSec, ZCentimeterPerSec>;

/// The quantity that `text` denotes, read by the class of `unit`. Its unit word,
/// if any, must be that class's own.
inline Quantity quantityFrom(const ZString& text, int unit) {
    switch (unit) {
    case zarnex::unitCentimeter:
        return ZCentimeter(text);
    case zarnex::unitInch:
        return ZInch(text);
    case zarnex::unitEmbPoint:
        return ZEmbPoint(text);
    case zarnex::unitSpi:
        return ZSpi(text);
    case zarnex::unitSquareCentimeter:
        return ZSquareCentimeter(text);
    case zarnex::unitMillimeterPerSec:
        return ZMillimeterPerSec(text);
    case zarnex::unitCentimeterPerSec:
        return ZCentimeterPerSec(text);
    default:
        return ZMillimeter(text);
    }
}

inline bool isValid(const Quantity& quantity) {
    return std::visit([](const auto& own) { return own.isValid() != 0; }, quantity);
}

/// Calls `use` with the quantity in each unit that it converts to, its own among
/// them: an object of the class of that unit.
///
/// Lengths and stitch densities convert by the constructors between their classes,
/// speeds as their lengths do, areas into nothing else.
template <class Use>
void inEveryUnit(const Quantity& quantity, Use use) {
    const auto visit = [&use](const auto& own) {
        using Own = std::decay_t<decltype(own)>;
        if constexpr (std::is_same_v<Own, ZSquareCentimeter>) {
            use(own);
        } else if constexpr (std::is_same_v<Own, ZMillimeterPerSec>) {
            ZCentimeterPerSec centimeters;
            centimeters = ZMillimeter(double(own)); // there is no conversion of speeds here
            use(own);
            use(centimeters);
        } else if constexpr (std::is_same_v<Own, ZCentimeterPerSec>) {
            use(ZMillimeterPerSec(own));
            use(own);
        } else {
            use(ZMillimeter(own));
            use(ZCentimeter(own));
            use(ZInch(own));
            use(ZEmbPoint(own));
            use(ZSpi(own));
        }
    };
    std::visit(visit, quantity);
}

} // namespace host
