// Quantities, the scanner and conversion between units.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

namespace {

/// Quantities read from `text` on the failing heap.
template <class... Quantities>
auto readFrom(const wchar_t* text) {
    return [typed = ZString(text)](Trial& trial) {
        trial.attempt([&] { trial.expect((Quantities(typed).isValid() && ...)); });
    };
}

/// Every text of a value, rendered on the failing heap.
template <class Quantity>
bool isRendered() {
    Quantity quantity(2.5);
    const ZString own(quantity);
    const ZString constant(static_cast<const Quantity&>(quantity));
    const ZString other = quantity.getStringWithUnits(zarnex::unitInch);
    return !own.isEmpty() && !constant.isEmpty() && !other.isEmpty() && double(quantity) == 2.5;
}

template <class... Quantities>
void render(Trial& trial) {
    trial.attempt([&] { trial.expect((isRendered<Quantities>() && ...)); });
}

} // namespace

Group quantityOperations() {
    constexpr unsigned reading = endsAlloc | endsScanner;
    return {
        "quantities read, rendered, converted",
        {
            {"lengths read", reading,
             readFrom<ZMillimeter, ZCentimeter, ZInch, ZEmbPoint, ZSpi>(L"1 in")},
            {"speeds read", reading, readFrom<ZMillimeterPerSec, ZCentimeterPerSec>(L"1 mm")},
            {"ZSquareCentimeter read", reading, readFrom<ZSquareCentimeter>(L"1 per sq cm")},
            {"numbers read", asksNothing,
             readFrom<ZNumber, ZRealNumber, ZHalfNumber, ZPercent, ZDegree>(L"7")},
            {"lengths rendered", endsAlloc,
             render<ZMillimeter, ZCentimeter, ZInch, ZEmbPoint, ZSpi>},
            {"speeds and densities rendered", endsAlloc,
             render<ZMillimeterPerSec, ZCentimeterPerSec, ZSquareCentimeter>},
            {"numbers rendered", endsAlloc, render<ZRealNumber, ZHalfNumber, ZPercent, ZDegree>},
            {"lengths converted by assignment", endsAlloc, // a centimetre has a label of its own
             [](Trial& t) {
                 const ZMillimeter length(25.4);
                 t.attempt([&] {
                     t.expect(double(ZInch(length)) == 1.0 && double(ZSpi(length)) == 1.0);
                     t.expect(double(ZCentimeter(length)) == 2.54);
                 });
             }},
            {"setUnitString, of all and of an object", endsAlloc,
             [](Trial& t) {
                 ZCentimeter length(2.5);
                 t.attempt([&] {
                     ZMillimeter::setUnitString(ZString(L"Millimeter"));
                     length.setUnitString(ZString(L"Zentimeter"));
                 });
                 t.expect(holds(ZMillimeter(2.5).getString(), L" 2.5 Millimeter"));
                 t.expect(holds(length, L" 2.5 Zentimeter"));
             }},
            {"renderZUnitQuantity", endsAlloc,
             [](Trial& t) {
                 ZString text;
                 t.attempt([&] {
                     for (int unit = 0; unit <= 16; ++unit)
                         renderZUnitQuantity(unit, 2.5, text, 1);
                 });
                 t.expect(holds(text, L" 2.5 \u00B0"));
             }},
            {"convertZUnits", reading,
             [](Trial& t) {
                 double inches = 0.0;
                 t.attempt([&] { inches = convertZUnits(2, 25.4, 4, 1); });
                 t.expect(inches == 1.0);
             }},
        },
    };
}

Group scannerOperations() {
    return {
        "`ZUnitScanner`, `yy_scan`",
        {
            {"ZUnitScanner", endsScanner,
             [](Trial& t) {
                 t.attempt([&] {
                     ZUnitScanner scanner(L"2.5 mm");
                     t.expect(scanner.yylex() == 1 && scanner.value == 2.5);
                     t.expect(scanner.yylex() == 2 && scanner.yylex() == 0);
                 });
                 ZUnitScanner again(L"3 in"); // the lock is free
                 t.expect(again.yylex() == 1 && again.value == 3.0);
             }},
            {"yy_scan(size)", endsScanner,
             [](Trial& t) {
                 t.attempt([&] {
                     yy_scan engine(50);
                     engine.yyin = nullptr;
                     t.expect(engine.yylex() == 0);
                 });
             }},
        },
    };
}
