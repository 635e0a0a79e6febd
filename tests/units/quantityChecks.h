#pragma once

#include "tests/support.h"

/// Assigns `source` to a valid Target and to an invalid one and checks what comes out;
/// construction must do the same to a fresh one.
template <class Target, class Source>
void checkAssigned(const Source& source, double value) {
    SCOPED_TRACE(testing::Message()
                 << "unit " << source.getUnitId() << " to " << Target().getUnitId());
    Target valid(7.0), invalid(ZString(L"wide"));
    for (Target* const target : {&valid, &invalid}) {
        *target = source;
        EXPECT_EQ(double(*target), value);
        EXPECT_EQ(target->isValid(), source.isValid());
    }
    EXPECT_EQ(double(Target(source)), value);
}

/// Checks ==, != and < of two values, which are the same or not by the rule of the class.
template <class Quantity>
void checkCompared(double left, double right, bool same) {
    const Quantity a(left), b(right);
    SCOPED_TRACE(testing::Message() << left << " and " << right << " as unit " << a.getUnitId());
    EXPECT_EQ(a == b, same);
    EXPECT_EQ(a != b, !same);
    EXPECT_EQ(a < b, double(a) < double(b));
    EXPECT_EQ(b < a, double(b) < double(a));
}

/// Checks the text of a value, also where it is asked for in a unit that the class ignores.
template <class Quantity>
void checkText(double value, const wchar_t* text, int ignoredUnit = -1) {
    Quantity quantity(ZString(L"wide")); // mostly invalid
    quantity = value;
    SCOPED_TRACE(testing::Message() << value << " as unit " << quantity.getUnitId());
    EXPECT_EQ(wide(quantity), text);
    EXPECT_EQ(wide(static_cast<const Quantity&>(quantity)), text);
    EXPECT_EQ(wide(quantity.getStringWithUnits(ignoredUnit)), text);
    EXPECT_EQ(quantity.isValid(), 1);
}
