#pragma once

#include <zarnex/strings/internal/TextBuffer.h>

#include <cstdarg>

namespace zarnex::detail {

/// Appends `format` with its conversions filled from `arguments`: the printf
/// family's rules, read once and the same on both platforms and in every locale.
///
/// - Conversions d i u o x X c C s S p e E f F g G a A %, flags "-+ #0", width,
///   precision and '*' for either, lengths h hh l ll j z t I I32 I64 L w. A long
///   double is rendered as a double.
/// - `%s` and `%c` take text of the format's own type, `%S` and `%C` of the other;
///   h makes either narrow, l wide. A null text is "(null)". The other type is
///   converted by the system code page.
/// - `%p` is 16 capital hexadecimal digits.
/// - Kept as is: a digit behind ".*" is a further decimal digit of the precision,
///   so "%4.*2f" with the argument 1 renders 12 decimals. Nothing of the kind
///   happens behind the '*' of a width.
/// - A negative argument for '*' is the flag '-' and a width, or no precision.
/// - A conversion that is not listed is copied as it stands and takes no argument.
template <class Char>
void appendFormatted(TextBuffer<Char>& out, const Char* format, std::va_list arguments);

} // namespace zarnex::detail
