#pragma once

/// @file
/// Comparison of quantities with plain numbers, such as `width == 2.5` and
/// `width < 3`.
///
/// A quantity equals a number when it equals, by the rule of its class, the
/// quantity of exactly that number; so ZNumber(2) does not equal 2.9. Order is
/// that of the values. Without these functions such a comparison would be torn
/// between a quantity made of the number and the number of the quantity.

#include <zarnex/geometry/formulas.h>

#include <type_traits>

namespace zarnex::detail {

// Every quantity class names itself in a nested type `Quantity`, which classes that
// are derived from it inherit.
template <class Class, class Number>
using IfQuantityAndNumber =
    std::enable_if_t<std::is_same_v<decltype(typename Class::Quantity(0.0).isValid()), int> &&
                         std::is_arithmetic_v<Number>,
                     int>;

template <class A, class B>
using IfDifferentQuantities =
    std::enable_if_t<std::is_same_v<decltype(typename A::Quantity(0.0).isValid()), int> &&
                         std::is_same_v<decltype(typename B::Quantity(0.0).isValid()), int> &&
                         !std::is_same_v<typename A::Quantity, typename B::Quantity>,
                     int>;

} // namespace zarnex::detail

/// 1 if it holds, else 0. With a NaN only != holds.
/// @{
template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator==(const Class& object, Number number) {
    using Quantity = typename Class::Quantity;
    const Quantity& quantity = object;
    const Quantity other(static_cast<double>(number));
    return zarnex::detail::isExactly(other, static_cast<double>(number)) && quantity == other;
}

template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator==(Number number, const Class& object) {
    return object == number;
}

template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator!=(const Class& object, Number number) {
    return !(object == number);
}

template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator!=(Number number, const Class& object) {
    return !(object == number);
}

template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator<(const Class& object, Number number) {
    return double(object) < static_cast<double>(number);
}

template <class Class, class Number, zarnex::detail::IfQuantityAndNumber<Class, Number> = 0>
int operator>(const Class& object, Number number) {
    return double(object) > static_cast<double>(number);
}
/// @}

/// Quantities of different units do not compare: their bare numbers would. Convert
/// first, as in `length == ZMillimeter(width)`. Sums are of bare numbers all the same.
/// @{
template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator==(const A&, const B&) = delete;

template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator!=(const A&, const B&) = delete;

template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator<(const A&, const B&) = delete;

template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator>(const A&, const B&) = delete;

template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator<=(const A&, const B&) = delete;

template <class A, class B, zarnex::detail::IfDifferentQuantities<A, B> = 0>
int operator>=(const A&, const B&) = delete;
/// @}
