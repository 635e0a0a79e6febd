#pragma once

/// @file
/// ZMultiByteString, and its comparisons with plain text.

#include <zarnex/config.h>
#include <zarnex/containers/ZXArray.h>

#include <type_traits>

namespace zarnex::detail {
struct TextAccess;
}

/// 8-bit text with value semantics, in whatever encoding it was made: the system code
/// page, UTF-8 or another (see conversions.h).
///
/// - The length is never stored. Every operation measures the bytes up to the
///   terminator.
/// - The buffer is an array whose slots in use are normally length + 1 and whose
///   allocation grows in steps of 32 bytes.
///
/// Kept as is: `==` and `!=` are exact, although `<`, `>`, `<=` and `>=` take A to Z as a
/// to z: "Abc" and "abc" are neither equal nor less nor greater. ZString ignores case in
/// all of them, ZWideString in none. And a string in a condition is a pointer, which is
/// never null: ask length().
///
/// A null pointer counts as the empty text unless a function says otherwise. Text handed
/// to an operation may lie inside the string itself. Nothing throws; without memory the
/// process ends with "failed alloc" and status 1.
///
///     const ZMultiByteString name = strToUtf8(L"Stickgr\u00F6\u00DFe");
///     name.length()                      // 12, in bytes
///     name.startsWith("stick", 1)        // 1
class ZARNEX_API ZMultiByteString {
public:
    /// The empty text, in one slot.
    ZMultiByteString();

    /// A copy of `text`.
    ZMultiByteString(const char* text);

    /// The first `n` bytes of `text`, fewer if it is shorter, in `n` + 1 slots.
    ZMultiByteString(const char* text, int n);

    /// Converts to a code page: 0 is the system's, 65001 UTF-8. Empty if that fails.
    ZMultiByteString(const ZString& text, int codePage);

    /// Copies the whole array: slots in use, allocation, step and contents.
    ZMultiByteString(const ZMultiByteString& other);

    /// Leaves `other` empty and without storage, ready for use.
    ZMultiByteString(ZMultiByteString&& other) noexcept;

    /// Takes the slots in use and the text of `other`, cut to those slots.
    ZMultiByteString& operator=(const ZMultiByteString& other);

    /// The same; `other` may lose its text.
    ZMultiByteString& operator=(ZMultiByteString&& other) noexcept;

    /// Takes `text`.
    ZMultiByteString& operator=(const char* text);

    /// Frees the buffer.
    ~ZMultiByteString();

    /// @name Comparison
    /// By the values of the bytes, 0 to 255; in an order, A to Z count as a to z.
    /// @{

    /// 1 if it holds, else 0.
    int operator==(const ZMultiByteString& other) const;
    int operator==(const char* other) const;
    int operator!=(const ZMultiByteString& other) const;
    int operator!=(const char* other) const;
    int operator<(const ZMultiByteString& other) const;
    int operator<(const char* other) const;
    int operator>(const ZMultiByteString& other) const;
    int operator>(const char* other) const;
    int operator<=(const ZMultiByteString& other) const;
    int operator<=(const char* other) const;
    int operator>=(const ZMultiByteString& other) const;
    int operator>=(const char* other) const;

    /// 1 if the text begins with `text`, also an empty one; 0 for null. With
    /// `ignoreCase`, A to Z count as a to z.
    int startsWith(const char* text, int ignoreCase) const;
    /// @}

    /// @name Access
    /// @{

    /// Byte `i`. Past the slots in use they grow, without a new terminator.
    ///
    /// Kept as is: a negative `i` counts as 0, although ZString counts it from the end.
    char& operator[](int i);

    /// The same without growing: past the allocation a zero.
    const char& operator[](int i) const;

    /// The same for every other integer type, as an int.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    char& operator[](Index i) {
        return (*this)[static_cast<int>(i)];
    }

    /// The same without growing.
    template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
    const char& operator[](Index i) const {
        return array_.get(static_cast<int>(i));
    }

    /// The text, valid until the string changes. Never null.
    operator const char*() const;

    int length() const; ///< bytes, without the terminator; measured

    /// The slots in use.
    ///
    /// Kept as is: the size, although the name speaks of the allocation.
    int allocLength() const;

    /// `count` bytes from `start`, fewer at the end of the text. A negative `start`
    /// counts from the end, a negative `count` means all that follow.
    ZMultiByteString subString(int start, int count);
    ZMultiByteString subString(int start, int count) const; ///< the same
    /// @}

    /// @name Editing
    /// @{

    /// Appends in place and returns the string.
    ZMultiByteString& operator+=(const ZMultiByteString& text);
    ZMultiByteString& operator+=(const char* text);

    /// Sets the slots in use to `n` + 1 and terminates the last; negative is 0. Cuts
    /// the text, or leaves it as it is when it is shorter.
    ///
    /// Kept as is: the allocation follows, also downward, although ZString::resize(int)
    /// keeps it.
    void resize(int n);

    /// Sets the text by a printf format, by the rules of ZString::set(), except that "%s"
    /// takes narrow text and "%S" and "%ls" wide; null changes nothing.
    void set(const char* format, ...);

    /// Not for objects, which no conversion reads: pass a string as
    /// `static_cast<const char*>(text)`.
    template <class... Arguments,
              std::enable_if_t<(std::is_class_v<std::decay_t<Arguments>> || ...), int> = 0>
    void set(const char* format, const Arguments&... arguments) = delete;
    /// @}

private:
    friend struct zarnex::detail::TextAccess;
    explicit ZMultiByteString(ZXArray<char>&& array);

    ZXArray<char> array_;
};

/// Plain text on the left. Without these the string would convert to a pointer, and
/// addresses would be compared.
/// @{
ZARNEX_API int operator==(const char* a, const ZMultiByteString& b);
ZARNEX_API int operator!=(const char* a, const ZMultiByteString& b);
ZARNEX_API int operator<(const char* a, const ZMultiByteString& b);
ZARNEX_API int operator>(const char* a, const ZMultiByteString& b);
ZARNEX_API int operator<=(const char* a, const ZMultiByteString& b);
ZARNEX_API int operator>=(const char* a, const ZMultiByteString& b);
/// @}

ZARNEX_INLINE const char& ZMultiByteString::operator[](int i) const {
    return array_.get(i);
}

ZARNEX_INLINE ZMultiByteString::operator const char*() const {
    const char* const text = array_;
    return text == nullptr ? "" : text; // without storage after a move
}

ZARNEX_INLINE int ZMultiByteString::allocLength() const {
    return array_.length();
}
