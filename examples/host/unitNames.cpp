#include "host/unitNames.h"

#include "host/utf8.h"

#include <zarnex/units/ZUnitScanner.h>
#include <zarnex/units/unitIds.h>

#include <cstddef>
#include <string>

namespace host {

const char* unitName(int unit) {
    switch (unit) {
    case zarnex::unitMillimeter:
        return "mm";
    case zarnex::unitCentimeter:
        return "cm";
    case zarnex::unitInch:
        return "in";
    case zarnex::unitEmbPoint:
        return "pt";
    case zarnex::unitSpi:
        return "spi";
    case zarnex::unitSquareCentimeter:
        return "per sq cm";
    case zarnex::unitMillimeterPerSec:
        return "mm/s";
    case zarnex::unitCentimeterPerSec:
        return "cm/s";
    default:
        return "";
    }
}

int unitOfWord(std::string_view text) {
    for (const int speed : {zarnex::unitMillimeterPerSec, zarnex::unitCentimeterPerSec})
        if (text == unitName(speed))
            return speed;

    // Longer text could hold a token that the scanner has no room for.
    constexpr std::size_t longest = sizeof "per square centimeters" - 1;
    std::wstring wide;
    if (text.empty() || text.size() > longest || !toWide(text, wide))
        return zarnex::unitNone;
    ZUnitScanner scanner(wide.c_str());
    const int unit = scanner.yylex();
    const bool whole =
        scanner.tokenBegin() == 0 && scanner.tokenEnd() == static_cast<int>(wide.size());
    return whole && unit != zarnex::unitNumber ? unit : zarnex::unitNone;
}

} // namespace host
