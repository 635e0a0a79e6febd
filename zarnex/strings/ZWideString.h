#pragma once

/// @file
/// ZWideString, and its comparisons with plain text.

#include <zarnex/config.h>
#include <zarnex/containers/ZXArray.h>

#include <type_traits>

namespace zarnex::detail {
struct TextAccess;
}

/// Wide text with value semantics that compares exactly: UTF-16 on Windows, UTF-32 on
/// Linux.
///
/// - The length is never stored. Every operation measures the units up to the
///   terminator.
/// - The buffer is an array whose slots in use are normally length + 1 and whose
///   allocation grows in steps of 32 units.
///
/// Kept as is: all comparisons are exact, by the values of the units: "B" < "a".
/// ZMultiByteString ignores the case of A to Z in `<` and `>`, ZString all case in all of
/// them. And a string in a condition is a pointer, which is never null: ask length().
///
/// Surrogates are units as any other. A null pointer counts as the empty text unless a
/// function says otherwise. Text handed to an operation may lie inside the string itself.
/// Nothing throws; without memory the process ends with "failed alloc" and status 1.
///
///     ZWideString file(L"motif.emb");
///     file == L"Motif.emb"               // 0
///     file.startsWith(L"MOTIF", 1)       // 1
class ZARNEX_API ZARNEX_WIDE ZWideString {
public:
    /// The empty text, in one slot.
    ZWideString();

    /// A copy of `text`.
    ZWideString(const wchar_t* text);

    /// The first `n` units of `text`, fewer if it is shorter, in `n` + 1 slots.
    ZWideString(const wchar_t* text, int n);

    /// Converts from the system code page, in as many slots as the converted text takes.
    /// Empty if that fails.
    ZWideString(const char* text);

    /// Converts from the system code page and cuts at `n` units, in `n` + 1 slots.
    ZWideString(const char* text, int n);

    /// The text of `text`.
    ZWideString(const ZString& text);

    /// Copies the whole array: slots in use, allocation, step and contents.
    ZWideString(const ZWideString& other);

    /// Leaves `other` empty and without storage, ready for use.
    ZWideString(ZWideString&& other) noexcept;

    /// Takes the slots in use and the text of `other`, cut to those slots.
    ZWideString& operator=(const ZWideString& other);

    /// The same; `other` may lose its text.
    ZWideString& operator=(ZWideString&& other) noexcept;

    /// Takes the text, converted as by the constructors.
    /// @{
    ZWideString& operator=(const wchar_t* text);
    ZWideString& operator=(const char* text);
    ZWideString& operator=(const ZString& text);
    /// @}

    /// Frees the buffer.
    ~ZWideString();

    /// @name Comparison
    /// By the values of the units.
    /// @{

    /// 1 if it holds, else 0.
    int operator==(const ZWideString& other) const;
    int operator==(const wchar_t* other) const;
    int operator!=(const ZWideString& other) const;
    int operator!=(const wchar_t* other) const;
    int operator<(const ZWideString& other) const;
    int operator<(const wchar_t* other) const;
    int operator>(const ZWideString& other) const;
    int operator>(const wchar_t* other) const;
    int operator<=(const ZWideString& other) const;
    int operator<=(const wchar_t* other) const;
    int operator>=(const ZWideString& other) const;
    int operator>=(const wchar_t* other) const;

    /// 1 if the text begins with `text`, also an empty one; 0 for null. With
    /// `ignoreCase`, units that the current locale maps to one lower case count as one.
    int startsWith(const wchar_t* text, int ignoreCase) const;
    /// @}

    /// @name Access
    /// @{

    /// Unit `i`. Past the slots in use they grow, without a new terminator.
    ///
    /// Kept as is: a negative `i` counts as 0, although ZString counts it from the end.
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
    const wchar_t& operator[](Index i) const {
        return array_.get(static_cast<int>(i));
    }

    /// The text, valid until the string changes. Never null.
    operator const wchar_t*() const;

    int length() const; ///< units, without the terminator; measured

    /// The slots in use.
    ///
    /// Kept as is: the size, although the name speaks of the allocation.
    int allocLength() const;

    /// `count` units from `start`, fewer at the end of the text. A negative `start`
    /// counts from the end, a negative `count` means all that follow.
    ZWideString subString(int start, int count);
    ZWideString subString(int start, int count) const; ///< the same
    /// @}

    /// @name Editing
    /// @{

    /// Appends in place and returns the string.
    ZWideString& operator+=(const ZWideString& text);
    ZWideString& operator+=(const wchar_t* text);
    ZWideString& operator+=(const ZString& text);
    ZWideString& operator+=(const char* text); ///< in the system code page

    /// Sets the slots in use to `n` + 1 and terminates the last; negative is 0. Cuts
    /// the text, or leaves it as it is when it is shorter.
    ///
    /// Kept as is: the allocation follows, also downward, although ZString::resize(int)
    /// keeps it.
    void resize(int n);

    /// Sets the text by a printf format, by the rules of ZString::set(); null changes nothing.
    void set(const wchar_t* format, ...);

    /// Not for objects, which no conversion reads: pass a string as
    /// `static_cast<const wchar_t*>(text)`.
    template <class... Arguments,
              std::enable_if_t<(std::is_class_v<std::decay_t<Arguments>> || ...), int> = 0>
    void set(const wchar_t* format, const Arguments&... arguments) = delete;
    /// @}

private:
    friend struct zarnex::detail::TextAccess;
    explicit ZWideString(ZXArray<wchar_t>&& array);

    ZXArray<wchar_t> array_;
};

/// Plain text on the left. Without these the string would convert to a pointer, and
/// addresses would be compared.
/// @{
ZARNEX_API int operator==(const wchar_t* a, const ZWideString& b);
ZARNEX_API int operator!=(const wchar_t* a, const ZWideString& b);
ZARNEX_API int operator<(const wchar_t* a, const ZWideString& b);
ZARNEX_API int operator>(const wchar_t* a, const ZWideString& b);
ZARNEX_API int operator<=(const wchar_t* a, const ZWideString& b);
ZARNEX_API int operator>=(const wchar_t* a, const ZWideString& b);
/// @}

/// The rules of the two classes differ: say which is meant by converting one side.
/// @{
int operator<(const ZString& a, const ZWideString& b) = delete;
int operator>(const ZString& a, const ZWideString& b) = delete;
int operator<=(const ZString& a, const ZWideString& b) = delete;
int operator>=(const ZString& a, const ZWideString& b) = delete;
/// @}

ZARNEX_INLINE const wchar_t& ZWideString::operator[](int i) const {
    return array_.get(i);
}

ZARNEX_INLINE ZWideString::operator const wchar_t*() const {
    const wchar_t* const text = array_;
    return text == nullptr ? L"" : text; // without storage after a move
}

ZARNEX_INLINE int ZWideString::allocLength() const {
    return array_.length();
}
