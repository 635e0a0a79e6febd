#pragma once

/// How a quantity class takes its value from typed text.

#include <zarnex/strings/ZString.h>
#include <zarnex/units/ZUnitScanner.h>
#include <zarnex/units/unitIds.h>

namespace zarnex::detail {

/// Reads a number and a unit word from `text` and hands them to `setValue`, a
/// callable (double, int unit) -> int that stores the value and its validity and
/// answers 0 if it refuses the unit.
///
/// - No number at the start: 0.0 and invalid.
/// - A unit that is taken: valid, unless another token or a dropped word behind
///   white space follows.
/// - A missing or refused unit: the number counts in `preferredUnit`, and if that
///   is refused too in `ownUnit`; what follows is not looked at.
template <class Flag, class SetValue>
void readQuantity(const ZString& text, int preferredUnit, int ownUnit, double& value, Flag& valid,
                  SetValue setValue) {
    ZUnitScanner scanner(text);
    valid = 1;
    if (scanner.yylex() != unitNumber) {
        value = 0.0;
        valid = 0;
        return;
    }
    const double number = scanner.value;
    if (setValue(number, scanner.yylex())) {
        if (scanner.yylex() != unitNone || scanner.wordDropped())
            valid = 0;
    } else if (!setValue(number, preferredUnit)) {
        setValue(number, ownUnit);
    }
}

} // namespace zarnex::detail
