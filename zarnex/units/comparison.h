#pragma once

#include <type_traits>
#include <utility>

/// Comparison of quantities with plain numbers, such as `width == 2.5` and
/// `width < 3`.
///
/// A quantity equals a number when it equals, by the rule of its class, the
/// quantity of exactly that number; so ZNumber(2) does not equal 2.9. Order is
/// that of the values. Without these functions such a comparison would be torn
/// between a quantity made of the number and the number of the quantity.

namespace zarnex::detail {

template <class Quantity, class = void>
struct IsQuantity : std::false_type {};

template <class Quantity>
struct IsQuantity<Quantity, std::void_t<decltype(std::declval<const Quantity&>().getUnitId()),
                                        decltype(double(std::declval<const Quantity&>()))>>
    : std::true_type {};

template <class Quantity, class Number>
using IfQuantityAndNumber =
    std::enable_if_t<IsQuantity<Quantity>::value && std::is_arithmetic_v<Number>, int>;

} // namespace zarnex::detail

template <class Quantity, class Number, zarnex::detail::IfQuantityAndNumber<Quantity, Number> = 0>
int operator==(const Quantity& quantity, Number number) {
    const Quantity other(static_cast<double>(number));
    return double(other) == static_cast<double>(number) && quantity == other;
}

template <class Quantity, class Number, zarnex::detail::IfQuantityAndNumber<Quantity, Number> = 0>
int operator==(Number number, const Quantity& quantity) {
    return quantity == number;
}

template <class Quantity, class Number, zarnex::detail::IfQuantityAndNumber<Quantity, Number> = 0>
int operator!=(const Quantity& quantity, Number number) {
    return !(quantity == number);
}

template <class Quantity, class Number, zarnex::detail::IfQuantityAndNumber<Quantity, Number> = 0>
int operator!=(Number number, const Quantity& quantity) {
    return !(quantity == number);
}

template <class Quantity, class Number, zarnex::detail::IfQuantityAndNumber<Quantity, Number> = 0>
int operator<(const Quantity& quantity, Number number) {
    return double(quantity) < static_cast<double>(number);
}
