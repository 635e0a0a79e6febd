/// Typed text: the scanner and the quantity classes against a plain reader, and displayed text
/// read again.

#include "fuzz/fuzz.h"
#include "fuzz/tokenModel.h"

#include <zarnex/foundation.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <vector>

namespace {

/// One that the library must ask for each character.
class AskedScanner : public ZUnitScanner {
public:
    using ZUnitScanner::ZUnitScanner;
};

// Makes `number` the latest that the process read.
void readFirst(const wchar_t* number) {
    ZUnitScanner scanner(number);
    scanner.yylex();
}

/// What a scanner tells of the first tokens, where its host takes a character behind `tokens`.
template <class Scanner>
std::vector<double> toldAround(const std::wstring& text, int tokens) {
    readFirst(L"5");
    Scanner scanner(text.c_str());
    std::vector<double> told;
    for (int token = 1, count = 0; token != 0; ++count) {
        if (count == tokens)
            told.push_back(scanner.yygetc());
        token = scanner.yylex();
        for (const int each : {token, scanner.wordDropped(), scanner.tokenBegin()})
            told.push_back(each);
        told.push_back(scanner.tokenEnd());
        told.push_back(scanner.value);
    }
    return told;
}

void tryTakenCharacter(const std::wstring& text, int tokens) {
    if (text.size() > fuzz::TokenModel::mostHeld)
        return; // what is taken may have parted a token that is too long
    FUZZ_REQUIRE(toldAround<ZUnitScanner>(text, tokens) == toldAround<AskedScanner>(text, tokens));
}

template <class Scanner>
void tryScanner(const std::wstring& text, double latest) {
    fuzz::TokenModel model(text);
    model.value = latest;
    Scanner scanner(text.c_str());
    for (int token = 1; token != 0;) {
        token = model.next();
        FUZZ_REQUIRE(scanner.yylex() == token);
        FUZZ_REQUIRE(scanner.value == model.value);
        FUZZ_REQUIRE(scanner.wordDropped() == int(model.wordDropped));
        FUZZ_REQUIRE(scanner.tokenBegin() == int(model.begin));
        FUZZ_REQUIRE(scanner.tokenEnd() == int(model.end) || token == 0);
    }
}

double millimetersIn(int unit) {
    switch (unit) {
    case 2:
    case 14:
        return 1.0;
    case 3:
    case 12:
        return 10.0;
    case 4:
        return 25.4;
    case 5:
        return 0.1;
    default:
        return 0.0; // no length
    }
}

bool convert(int own, double value, int unit, double& result) {
    const double millimeters = millimetersIn(unit);
    if (own == unit) {
        result = value;
    } else if (own == 7 || unit == 7) {
        return false;
    } else if (own == 6) {
        if (millimeters == 0.0 || value < 0.0)
            return false;
        result = value == 0.0 ? INFINITY : 25.4 / (value * millimeters);
    } else if (unit == 6) {
        if (own == 12 || own == 14 || !(value > 0.0))
            return false;
        result = 25.4 / value / millimetersIn(own);
    } else {
        if (millimeters == 0.0 || (own == 14 && (unit == 4 || unit == 5)))
            return false;
        result = value * millimeters / millimetersIn(own);
    }
    return true;
}

struct Read {
    double value = 0.0;
    bool isValid = false;
};

Read readAs(int own, const std::wstring& text, int preferred, double latest) {
    fuzz::TokenModel model(text);
    model.value = latest;
    Read read;
    if (model.next() != 1)
        return read;
    const double number = model.value;
    read.isValid = true;
    if (convert(own, number, model.next(), read.value)) {
        read.isValid = model.next() == 0 && !model.wordDropped;
    } else if (!convert(own, number, preferred, read.value)) {
        convert(own, number, own, read.value);
    }
    return read;
}

bool isNear(double a, double b) {
    return a == b || std::fabs(a - b) <= 1e-15 * std::fabs(b);
}

// What `take` makes a quantity of, where a bare number is of the unit `preferred`.
template <class Quantity, class Take>
void tryTaking(const std::wstring& text, int preferred, Take take) {
    readFirst(L"7");
    const Read expected = readAs(Quantity().getUnitId(), text, preferred, 7.0);
    Quantity quantity(3.0);
    take(quantity);
    FUZZ_REQUIRE(isNear(quantity, expected.value));
    FUZZ_REQUIRE((quantity.isValid() != 0) == expected.isValid);
}

template <class Quantity>
void tryReading(const std::wstring& text, int preferred) {
    const ZString typed(text.c_str());
    tryTaking<Quantity>(text, 1, [&](Quantity& q) { q = Quantity(typed); });
    tryTaking<Quantity>(text, 1, [&](Quantity& q) { q = typed; });
    tryTaking<Quantity>(text, preferred,
                        [&](Quantity& q) { q.setStringWithUnits(typed, preferred); });
}

// Whether what is displayed can be read again.
template <class Quantity>
bool isReadable(const Quantity& quantity, const ZString& shown) {
    return std::isfinite(double(quantity)) && shown.length() <= 90;
}

// In a fixed format, the text stays the same if it is read and displayed again.
template <class Quantity, class Show>
void tryAgain(const Quantity& quantity, Show show) {
    const ZString shown = show(quantity);
    const Quantity read(shown);
    if (!isReadable(quantity, shown))
        return;
    FUZZ_REQUIRE(read.isValid());
    FUZZ_REQUIRE(show(read).isEqual(shown));
}

// An object that chooses its decimals may choose others for what it displayed, as at halves of
// the last one; the value stays.
template <class Quantity>
void tryChosen(Quantity quantity) {
    const ZString shown = quantity.operator ZString();
    Quantity read(shown);
    const ZString shownAgain = read.operator ZString();
    const Quantity again(shownAgain);
    if (!isReadable(quantity, shown) || !isReadable(quantity, shownAgain))
        return;
    FUZZ_REQUIRE(read.isValid() && again.isValid());
    FUZZ_REQUIRE(double(again) == double(read));
}

template <class Quantity>
void tryDisplay(double value, int width, int precision, int unit) {
    if (std::fabs(value) > 1e40) // a token of 100 characters ends the process
        return;
    Quantity quantity(value);
    const Quantity& constant = quantity;
    tryAgain(constant, [&](const Quantity& each) { return each.getString(width, precision); });
    tryAgain(constant, [](const Quantity& each) { return each.operator ZString(); });
    tryChosen(quantity);
    const ZString converted = constant.getStringWithUnits(unit);
    FUZZ_REQUIRE(converted.length() > 0);
}

template <class Quantity>
void tryNumber(const std::wstring& text) {
    const double expected = std::wcstod(text.c_str(), nullptr);
    const double read = Quantity(ZString(text.c_str()));
    FUZZ_REQUIRE(read == expected || (std::isnan(read) && std::isnan(expected)));
}

void tryInteger(const std::wstring& text) {
    const long long expected = std::wcstol(text.c_str(), nullptr, 10); // may be of 64 bits
    const auto read = static_cast<long long>(double(ZNumber(ZString(text.c_str()))));
    FUZZ_REQUIRE(read == std::clamp(expected, -2147483648LL, 2147483647LL));
}

bool endsProcess(const std::wstring& text) {
    fuzz::TokenModel model(text);
    for (;;) {
        const int token = model.next();
        if (token <= 0)
            return token < 0;
    }
}

} // namespace

void tryInput(fuzz::Input input) {
    const int unit = input.choice(17);
    const int width = input.between(-40, 40);
    const int precision = input.between(0, 40);
    const double value = input.real();
    const int shown = input.choice(8);
    const auto display = [&](auto... each) {
        int i = 0;
        ((i++ == shown ? tryDisplay<decltype(each)>(value, width, precision, unit) : void()), ...);
    };
    display(ZMillimeter(), ZCentimeter(), ZInch(), ZEmbPoint(), ZSpi(), ZSquareCentimeter(),
            ZMillimeterPerSec(), ZCentimeterPerSec());
    if (std::fabs(value) < 1e60)
        convertZUnits(unit, value, input.choice(17), input.choice(2));

    const ZString text = utf8ToStr(input.rest().c_str());
    const std::wstring typed = static_cast<const wchar_t*>(std::as_const(text));
    tryNumber<ZRealNumber>(typed);
    tryNumber<ZDegree>(typed);
    tryInteger(typed);
    if (endsProcess(typed))
        return;
    readFirst(L"5");
    tryScanner<ZUnitScanner>(typed, 5.0);
    readFirst(L"5");
    tryScanner<AskedScanner>(typed, 5.0);
    tryTakenCharacter(typed, unit % 6);
    const auto read = [&](auto... each) { (tryReading<decltype(each)>(typed, unit), ...); };
    read(ZMillimeter(), ZCentimeter(), ZInch(), ZEmbPoint(), ZSpi(), ZSquareCentimeter(),
         ZMillimeterPerSec(), ZCentimeterPerSec());
}
