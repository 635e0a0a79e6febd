// Quantities, the scanner and conversion between units.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <cwchar>
#include <optional>

namespace {

bool holds(const ZString& text, const wchar_t* units) {
    return std::wcscmp(static_cast<const wchar_t*>(text), units) == 0;
}

/// Made from text on the failing heap.
template <class Quantity>
void readFrom(Trial& trial, const wchar_t* text, double value) {
    const ZString typed(text);
    std::optional<Quantity> quantity;
    trial.attempt([&] { quantity.emplace(typed); });
    trial.expectDone(quantity && double(*quantity) == value && quantity->isValid());
}

/// Every text of a value, rendered on the failing heap.
template <class Quantity>
void render(Trial& trial) {
    Quantity quantity(2.5);
    trial.attempt([&] {
        const ZString own(quantity);
        const ZString constant(static_cast<const Quantity&>(quantity));
        const ZString other = quantity.getStringWithUnits(zarnex::unitInch);
        trial.expect(!own.isEmpty() && !constant.isEmpty() && !other.isEmpty());
    });
    trial.expect(double(quantity) == 2.5 && quantity.isValid());
}

} // namespace

Group quantityOperations() {
    constexpr unsigned reading = endsAlloc | endsScanner;
    return {
        "quantities read, rendered, converted",
        {
            {"ZMillimeter read", reading,
             [](Trial& t) { readFrom<ZMillimeter>(t, L"1 in", 25.4); }},
            {"ZCentimeter read", reading,
             [](Trial& t) { readFrom<ZCentimeter>(t, L"1 in", 2.54); }},
            {"ZInch read", reading, [](Trial& t) { readFrom<ZInch>(t, L"1 in", 1.0); }},
            {"ZEmbPoint read", reading, [](Trial& t) { readFrom<ZEmbPoint>(t, L"1 in", 254.0); }},
            {"ZSpi read", reading, [](Trial& t) { readFrom<ZSpi>(t, L"1 in", 1.0); }},
            {"ZMillimeterPerSec read", reading,
             [](Trial& t) { readFrom<ZMillimeterPerSec>(t, L"1 mm", 1.0); }},
            {"ZCentimeterPerSec read", reading,
             [](Trial& t) { readFrom<ZCentimeterPerSec>(t, L"1 in", 2.54); }},
            {"ZSquareCentimeter read", reading,
             [](Trial& t) { readFrom<ZSquareCentimeter>(t, L"1 per sq cm", 1.0); }},
            {"ZNumber read", asksNothing, [](Trial& t) { readFrom<ZNumber>(t, L"7", 7.0); }},
            {"ZRealNumber read", asksNothing,
             [](Trial& t) { readFrom<ZRealNumber>(t, L"7", 7.0); }},
            {"ZHalfNumber read", asksNothing,
             [](Trial& t) { readFrom<ZHalfNumber>(t, L"7", 7.0); }},
            {"ZPercent read", asksNothing, [](Trial& t) { readFrom<ZPercent>(t, L"7 %", 7.0); }},
            {"ZDegree read", asksNothing, [](Trial& t) { readFrom<ZDegree>(t, L"7", 7.0); }},
            {"ZMillimeter rendered", endsAlloc, render<ZMillimeter>},
            {"ZCentimeter rendered", endsAlloc, render<ZCentimeter>},
            {"ZInch rendered", endsAlloc, render<ZInch>},
            {"ZEmbPoint rendered", endsAlloc, render<ZEmbPoint>},
            {"ZSpi rendered", endsAlloc, render<ZSpi>},
            {"ZMillimeterPerSec rendered", endsAlloc, render<ZMillimeterPerSec>},
            {"ZCentimeterPerSec rendered", endsAlloc, render<ZCentimeterPerSec>},
            {"ZSquareCentimeter rendered", endsAlloc, render<ZSquareCentimeter>},
            {"ZRealNumber rendered", endsAlloc, render<ZRealNumber>},
            {"ZHalfNumber rendered", endsAlloc, render<ZHalfNumber>},
            {"ZPercent rendered", endsAlloc, render<ZPercent>},
            {"ZDegree rendered", endsAlloc, render<ZDegree>},
            {"lengths converted by assignment", endsAlloc, // a centimetre has a label of its own
             [](Trial& t) {
                 const ZMillimeter length(25.4);
                 t.attempt([&] {
                     t.expect(double(ZInch(length)) == 1.0 && double(ZSpi(length)) == 1.0);
                     t.expect(double(ZCentimeter(length)) == 2.54);
                 });
             }},
            {"setUnitString", endsAlloc,
             [](Trial& t) {
                 t.attempt([] { ZMillimeter::setUnitString(ZString(L"Millimeter")); });
                 t.expect(holds(ZMillimeter(2.5).getString(), L" 2.5 Millimeter"));
             }},
            {"setUnitString of an object", endsAlloc,
             [](Trial& t) {
                 ZCentimeter length(2.5);
                 t.attempt([&] { length.setUnitString(ZString(L"Zentimeter")); });
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
