#pragma once

/// @file
/// ZString, and with textOperators.h at the foot its operators with plain text.

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZXArray.h>

#include <cstddef>
#include <cwchar>
#include <iosfwd>
#include <type_traits>
#include <utility>

namespace zarnex::detail {

struct TextAccess;

/// The step in which the arrays of strings grow.
inline constexpr int growthStep = 32;

} // namespace zarnex::detail

/// A wide-character string with value semantics: the text type of every
/// interface of the library.
///
/// - The length is never stored. Every operation measures the text up to its
///   terminator, so what a host writes into the buffer counts at once.
/// - The buffer is an array whose slots in use are normally length + 1 and whose
///   allocation grows in steps of 32 characters.
///
/// Kept as is: `==`, `!=`, `<` and `>` ignore case; isEqual() is exact. And a string
/// in a condition is a pointer, which is never null: ask isEmpty().
///
/// Units are those of wchar_t (UTF-16 on Windows, UTF-32 on Linux) without regard
/// to surrogates. 8-bit text is in the system code page (UTF-8 on Linux). A null
/// pointer counts as the empty text unless a function says otherwise. Text handed
/// to an operation may lie inside the string itself. Nothing throws; without
/// memory the process ends with "failed alloc" and status 1.
///
///     ZString label(L"stitch length");
///     label += L": ";
///     label += 42;                   // "stitch length: 42"
///     label == L"STITCH LENGTH: 42"  // 1
class ZARNEX_API ZARNEX_WIDE ZString {
public:
    /// The empty text, in one slot.
    ZString();

    /// Empty, in an array of exactly `n` + 1 slots with the growth step `step`;
    /// a step below 1 lets the array double.
    ZString(int n, int step);

    /// A copy of `text`.
    ZString(const wchar_t* text);

    /// The first `n` units of `text`, fewer if it is shorter, in `n` + 1 slots.
    ZString(const wchar_t* text, int n);

    /// Converts from the system code page. The slots in use are the bytes of
    /// `text` and its terminator.
    ZString(const char* text);

    /// Converts from the system code page and cuts at `n` units, in `n` + 1 slots.
    ZString(const char* text, int n);

    /// The wide form of `text`, which may have to make it.
    ZString(ZGenericString& text);

    /// Copies the whole array: slots in use, allocation, step and contents.
    ZString(const ZString& other);

    /// Leaves `other` empty and without storage, ready for use.
    ZString(ZString&& other) noexcept;

    /// Takes the slots in use and the text of `other`, cut to those slots.
    ///
    /// Kept as is: the growth step stays, although copying construction takes it
    /// over.
    ZString& operator=(const ZString& other);

    /// The same; `other` may lose its text.
    ZString& operator=(ZString&& other) noexcept;

    /// Takes the text, converted as by the constructors. The growth step stays.
    /// @{
    ZString& operator=(const wchar_t* text);
    ZString& operator=(const char* text);
    ZString& operator=(ZGenericString& text);
    /// @}

    /// Frees the buffer.
    ~ZString();

    /// @name Raw access
    /// @{

    /// The text, valid until the string changes. Never null.
    operator const wchar_t*() const;

    /// For functions that write text into the string: room for at least 512
    /// characters, terminator included. Call resize() after them.
    ///
    /// Kept as is: a string that is not const and stands where `const wchar_t*` is
    /// wanted takes this conversion and grows; read through a const reference.
    operator wchar_t*();

    /// Unit `i`; a negative `i` counts from the end, and as 0 when it still lies
    /// before the start. Past the slots in use they grow, without a new terminator.
    wchar_t& operator[](int i);

    /// The same without growing: past the allocation a zero.
    const wchar_t& operator[](int i) const;

    /// The same for every other integer type, as an int.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    wchar_t& operator[](Index i) {
        return (*this)[static_cast<int>(i)];
    }

    /// The same without growing.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    const wchar_t& operator[](Index i) const;
    /// @}

    /// @name Sizes
    /// All are measured but the slots in use, up to the terminator.
    /// @{

    int length() const;                         ///< units, without the terminator
    int bufferSize() const;                     ///< length() + 1
    unsigned long long characterLength() const; ///< length(), not cut to an int
    int unicodeSize() const;                    ///< length() + 1

    /// Bytes of the text in the system code page with terminator; -1 if it cannot
    /// be converted.
    int multiByteSize() const;

    /// The slots in use.
    ///
    /// Kept as is: the size, although the name speaks of the allocation.
    int allocLength() const;

    int isEmpty() const; ///< 1 without text, else 0
    /// @}

    /// @name Concatenation
    /// @{

    /// Appends in place and returns the string; a terminator appends nothing.
    ZString& operator+=(const ZString& text);
    ZString& operator+=(const wchar_t* text);
    ZString& operator+=(wchar_t unit);

    /// Appends the decimal digits of `number`.
    ZString& operator+=(int number);

    ZString operator+(const ZString& text) const; ///< a new string, this one and `text`
    ZString operator+(const wchar_t* text) const; ///< a new string, this one and `text`

    /// A new string: this one, then the decimal digits of `number`.
    ///
    /// Kept as is: a character counts as a number here, so ``text + L'A'`` ends with
    /// 65, although ``text += L'A'`` appends the letter. A narrow character counts as a
    /// number in both.
    ZString operator+(int number) const;

    /// The same for the wider and the unsigned integer types.
    template <class Number, std::enable_if_t<std::is_integral_v<Number> && sizeof(Number) >= 4 &&
                                                 !std::is_same_v<Number, wchar_t> &&
                                                 !std::is_same_v<Number, char32_t>,
                                             int> = 0>
    ZString& operator+=(Number number) {
        if constexpr (std::is_signed_v<Number>)
            return appendNumber(static_cast<long long>(number));
        else
            return appendNumber(static_cast<unsigned long long>(number));
    }

    /// The same into a new string.
    template <class Number, std::enable_if_t<std::is_integral_v<Number> && sizeof(Number) >= 4 &&
                                                 !std::is_same_v<Number, wchar_t> &&
                                                 !std::is_same_v<Number, char32_t>,
                                             int> = 0>
    ZString operator+(Number number) const {
        ZString sum(*this);
        sum += number;
        return sum;
    }

    /// The same for an object that converts to a string, such as a quantity: its
    /// text.
    template <class Object,
              std::enable_if_t<std::is_class_v<std::remove_reference_t<Object>> &&
                                   !std::is_base_of_v<ZString, std::decay_t<Object>> &&
                                   std::is_convertible_v<Object, ZString>,
                               int> = 0>
    ZString& operator+=(Object&& object) {
        const ZString text = std::forward<Object>(object);
        return *this += text;
    }

    /// The same into a new string.
    template <class Object,
              std::enable_if_t<std::is_class_v<std::remove_reference_t<Object>> &&
                                   !std::is_base_of_v<ZString, std::decay_t<Object>> &&
                                   std::is_convertible_v<Object, ZString>,
                               int> = 0>
    ZString operator+(Object&& object) const {
        ZString sum(*this);
        sum += std::forward<Object>(object);
        return sum;
    }

    /// Not for real numbers: how many decimals? Use set() or a quantity.
    template <class Real, std::enable_if_t<std::is_floating_point_v<Real>, int> = 0>
    ZString& operator+=(Real) = delete;

    /// The same.
    template <class Real, std::enable_if_t<std::is_floating_point_v<Real>, int> = 0>
    ZString operator+(Real) const = delete;
    /// @}

    /// @name Comparison
    /// @{

    /// Equality without regard to case, by the current locale's lower case of
    /// each unit (in the default locale that of A to Z).
    int operator==(const ZString& other) const;
    int operator==(const wchar_t* other) const;
    int operator!=(const ZString& other) const;
    int operator!=(const wchar_t* other) const;

    int operator<(const ZString& other) const;  ///< by the order of the lower-cased units
    int operator>(const ZString& other) const;  ///< by the order of the lower-cased units
    int operator<=(const ZString& other) const; ///< by the order of the lower-cased units
    int operator>=(const ZString& other) const; ///< by the order of the lower-cased units

    /// Below, at or above 0 as this text orders before, with or behind `other` by
    /// its lower-cased units.
    int compare(const ZString& other) const;
    int compare(const wchar_t* other) const; ///< the same

    /// Equality unit by unit; 0 for null.
    int isEqual(const ZString& other) const;
    int isEqual(const wchar_t* other) const; ///< the same

    /// A hash of the lower-cased text in 0 ... 2^28 - 1: equal for texts that `==`
    /// finds equal.
    /// Source: System V Application Binary Interface, chapter 5, "Hash Table".
    int hash() const;
    /// @}

    /// @name Searching
    /// Positions count from 0, -1 means not found.
    /// @{

    /// The first slot in use that holds `unit`, or the last one when `fromEnd` is
    /// not 0. Finds terminators too.
    int find(const wchar_t& unit, int fromEnd = 0) const;

    /// The first position at or behind `start` where `text` stands. A negative
    /// `start` counts from the end.
    ///
    /// Kept as is: an empty or null `text` gives the length, wherever the search starts.
    int findString(const wchar_t* text, int start = 0, int ignoreCase = 0) const;

    /// The first position at or behind `start` whose unit is one of `set`, or with
    /// `invert` none of them. A negative `start` counts from the end. An empty
    /// `set` gives the length, or with `invert` the start; a null one -1.
    long long findOneOf(const wchar_t* set, long long start = 0, int invert = 0) const;

    /// The same.
    ///
    /// Kept as is: with `invert` and a set that is not empty always -1, although
    /// findOneOf() searches.
    int findOneOfByUnicode(const wchar_t* set, int start = 0, int invert = 0) const;

    /// 1 if the text begins with `text`, also an empty one; 0 for null.
    int startsWith(const wchar_t* text, int ignoreCase = 0) const;
    /// @}

    /// @name Editing
    /// @{

    /// Replaces every occurrence of `find`, from left to right, without searching
    /// what it put in, once: what that brings about stays. An empty or null `find` changes
    /// nothing.
    void findAndReplace(const wchar_t* find, const wchar_t* replace);

    /// `count` units from `start`, fewer at the end of the text. A negative
    /// `start` counts from the end, a negative `count` means all that follow.
    ZString subString(int start, int count);
    ZString subString(int start, int count) const; ///< the same

    /// Sets the slots in use to `n` + 1 and terminates the last; negative is 0. Cuts
    /// the text, or leaves it as it is when it is shorter.
    void truncate(int n);
    void resize(int n); ///< truncate()

    /// Measures again after a raw write: slots in use are the length + 1, and the
    /// allocation becomes that, rounded up to whole steps.
    void resize();

    /// Removes the text and keeps the allocation.
    void empty();
    void reset(); ///< empty()

    void trimLeft();  ///< removes blanks, tabs, line feeds and carriage returns at the start
    void trimRight(); ///< removes them at the end

    void toLower(); ///< maps each unit to lower case, by the current locale
    void toUpper(); ///< maps each unit to upper case, by the current locale

    /// Sets the text by a printf format; null changes nothing.
    ///
    /// Conversions d i u o x X c C s S p e E f F g G a A %, flags "-+ #0", width,
    /// precision, '*', lengths h hh l ll j z t I I32 I64 L w. "%s" takes wide text, "%S" and
    /// "%hs" narrow. The decimal sign is always a dot, on every platform and in
    /// every locale; infinities are "inf", no number is "nan". What is no
    /// conversion is copied. Arguments may point into the string.
    ///
    /// Kept as is: a digit behind ".*" is a further decimal digit of the
    /// precision: "%4.*2f" with 1 renders 12 decimals.
    void set(const wchar_t* format, ...);

    /// Not for objects, which no conversion reads: pass a string as
    /// `static_cast<const wchar_t*>(text)` and a quantity as `double(quantity)`.
    template <class... Arguments,
              std::enable_if_t<(std::is_class_v<std::decay_t<Arguments>> || ...), int> = 0>
    void set(const wchar_t* format, const Arguments&... arguments) = delete;
    /// @}

    /// @name Export
    /// @{

    /// A copy of the text in the system code page. The caller frees it with `delete[]`. Null
    /// without memory or if the text cannot be converted.
    char* getAscii() const;
    char* getAnsi() const; ///< getAscii()

    /// A copy of the text as it is. The caller frees it with `delete[]`. Null without memory.
    wchar_t* getWide() const;

    /// Converts into `out` and returns the units written, -1 if they did not fit
    /// (what is in `out` is terminated all the same). With `out` null or `n` below
    /// 1 returns multiByteSize().
    int copyString(char* out, int n) const;

    /// Copies at most `n` - 1 units and a terminator. Returns unicodeSize().
    int copyString(wchar_t* out, int n) const;

    /// Writes each unit as a decimal number, without separators: "AB" is 6566.
    void dump(std::ostream& out) const;
    /// @}

private:
    friend struct zarnex::detail::TextAccess;
    explicit ZString(ZXArray<wchar_t>&& array);

    const wchar_t* text() const;
    std::size_t measure() const;
    int fromEnd(int i) const;
    ZString& appendNumber(long long number);
    ZString& appendNumber(unsigned long long number);

    ZXArray<wchar_t> array_;
};

ZARNEX_INLINE ZString::ZString() : array_(L"", 1, zarnex::detail::growthStep) {}

ZARNEX_INLINE ZString::ZString(const wchar_t* text)
    : array_(text == nullptr ? L"" : text,
             text == nullptr ? 1 : static_cast<long long>(std::wcslen(text)) + 1,
             zarnex::detail::growthStep) {}

ZARNEX_INLINE ZString::~ZString() = default;

ZARNEX_INLINE const wchar_t* ZString::text() const {
    const wchar_t* const text = array_;
    return text == nullptr ? L"" : text; // without storage after a move
}

ZARNEX_INLINE ZString::operator const wchar_t*() const {
    return text();
}

ZARNEX_INLINE const wchar_t& ZString::operator[](int i) const {
    return array_.get(i < 0 ? fromEnd(i) : i);
}

template <class Index, std::enable_if_t<std::is_integral_v<Index>, int>>
const wchar_t& ZString::operator[](Index i) const {
    return (*this)[static_cast<int>(i)];
}

ZARNEX_INLINE int ZString::allocLength() const {
    return array_.length();
}

ZARNEX_INLINE int ZString::isEmpty() const {
    return *text() == L'\0';
}

/// The text, to wide streams.
template <class Traits>
std::basic_ostream<wchar_t, Traits>& operator<<(std::basic_ostream<wchar_t, Traits>& out,
                                                const ZString& text) {
    return out << static_cast<const wchar_t*>(text);
}

/// The text as numbers, to narrow streams.
///
/// Kept as is: dump(), that is decimal numbers and no text, although wide streams get
/// the text.
ZARNEX_API std::ostream& operator<<(std::ostream& out, const ZString& text);

extern template class ZARNEX_API ZXArray<ZString>;
extern template class ZARNEX_API ZList<ZString>;
extern template class ZARNEX_API ZList<std::pair<ZString, ZString>>;

#include <zarnex/strings/textOperators.h>
