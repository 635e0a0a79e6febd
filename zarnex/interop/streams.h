#pragma once

/// @file
/// Text in the streams of the standard library.
///
///     std::wcout << name << L" is " << std::setw(10) << zarnex::asText(length) << L'\n';
///     std::cout << zarnex::asText(name);             // in UTF-8
///
/// What streams get without asText():
///
///     | written            | to a wide stream | to a narrow stream       |
///     |--------------------|------------------|--------------------------|
///     | `ZString`          | the text         | numbers, as by dump()    |
///     | `ZWideString`      | the text         | does not compile         |
///     | `ZMultiByteString` | bytes, widened   | the bytes                |
///     | a quantity         | the bare number  | does not compile         |
///
/// Everything respects the width, the fill and the side of the stream and resets the width, but
/// numbers by dump(). Widths count units: bytes in a narrow stream, where a character of UTF-8 can
/// have four. A wide stream over a file or the console converts by its own locale, and fails at
/// what that does not have.

#include <zarnex/config.h>
#include <zarnex/interop/standardStrings.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/ZWideString.h>
#include <zarnex/units/ZMillimeter.h>

#include <iosfwd>
#include <type_traits>

namespace zarnex {

namespace detail {

template <class Class>
using IfQuantity = std::enable_if_t<std::is_base_of_v<typename Class::Quantity, Class> &&
                                        std::is_constructible_v<ZString, Class&>,
                                    int>;

} // namespace detail

/// A text on its way to a stream. It keeps a copy, so it may outlive what it was made of.
class StreamText {
public:
    /// Holds a copy of `text`.
    explicit StreamText(const ZString& text) : text_(text) {}

    /// In the units of the text.
    template <class Traits>
    friend std::basic_ostream<wchar_t, Traits>& operator<<(std::basic_ostream<wchar_t, Traits>& out,
                                                           const StreamText& shown) {
        return out << static_cast<const wchar_t*>(shown.text_);
    }

    /// In UTF-8.
    template <class Traits>
    friend std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& out,
                                                        const StreamText& shown) {
        return out << toUtf8(shown.text_).c_str();
    }

private:
    ZString text_;
};

/// The text, for streams of either kind. Null is the empty text.
/// @{
inline StreamText asText(const ZString& text) {
    return StreamText(text);
}
inline StreamText asText(const wchar_t* text) {
    return StreamText(ZString(text));
}
/// @}

/// The text that a quantity displays: that of the conversion of a const object, so that a speed has
/// two decimals and not twelve; a ZMillimeter has the decimals that it needs.
/// @{
template <class Class, detail::IfQuantity<Class> = 0>
StreamText asText(const Class& quantity) {
    return StreamText(ZString(quantity));
}
inline StreamText asText(const ZMillimeter& length) {
    return StreamText(length.getString());
}
/// @}

} // namespace zarnex

/// The text, to wide streams. Without it they would write the address.
template <class Traits>
std::basic_ostream<wchar_t, Traits>& operator<<(std::basic_ostream<wchar_t, Traits>& out,
                                                const ZWideString& text) {
    return out << static_cast<const wchar_t*>(text);
}

/// Not to narrow streams, which would write the address too: use asText().
template <class Traits>
void operator<<(std::basic_ostream<char, Traits>& out, const ZWideString& text) = delete;
