#pragma once

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/platform/records.h>
#include <zarnex/strings/ZString.h>

#include <cstring>
#include <type_traits>
#include <utility>

/// The identifier of a shape: a GUID, whether it is valid, and its text form.
///
/// The text form is 36 lower-case hexadecimal digits and hyphens, without braces. It
/// is kept beside the GUID, so getString() costs nothing. The built-in shapes have
/// fixed identifiers, which files hold; every other shape gets a new one. Nothing
/// throws.
///
///     ZGUIDWrapper shape;   // a new identifier
///     shape.setBead1();     // "85bd2cf9-607f-437e-90f0-7664182b90fa"
///     shape.isBead1();      // 1
///     ZGUIDWrapper none(0); // invalid, with an empty text
///
/// A GUID that was never set is the nil GUID, all zeros. Two GUIDs are the same only
/// in all 128 bits; texts that differ in case alone name the same GUID.
class ZARNEX_API ZGUIDWrapper {
public:
    /// A new GUID, random and different from all others, with the flag `create`; for
    /// 0 an invalid object. The nil GUID should the system be unable to make one.
    ZGUIDWrapper(int create = 1);

    /// The same for every other integer type, as an int.
    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    ZGUIDWrapper(Integer create) : ZGUIDWrapper(static_cast<int>(create)) {}

    /// A valid object with that GUID.
    /// @{
    ZGUIDWrapper(GUID& guid);
    ZGUIDWrapper(const GUID& guid);
    /// @}

    /// Reads `text` as setString() does.
    ///
    /// Kept as is: always valid, although quantities of unreadable text are not: null
    /// and text that is no GUID give the nil GUID.
    ZGUIDWrapper(const ZString* text);

    /// A copy of a valid object; of an invalid one the flag alone, without GUID and
    /// text.
    ZGUIDWrapper(const ZGUIDWrapper& other);

    /// Takes flag, GUID and text of a valid object.
    ///
    /// Kept as is: of an invalid one the flag alone. GUID and text stay, so this
    /// invalid object has a text, although setValid(0) empties it; setValid(1) makes
    /// the old GUID valid again.
    ZGUIDWrapper& operator=(const ZGUIDWrapper& other);

    /// Frees the text, and with it what getString() referred to.
    ~ZGUIDWrapper();

    /// Reads the text form, in either case, and refreshes the text. Every other text,
    /// also one with braces, blanks or anything behind the GUID, and null leave the
    /// GUID as it was; nothing tells.
    ///
    /// Kept as is: the flag does not change, although every other setter sets it. An
    /// invalid object takes the GUID, but has no text until setValid(1).
    void setString(const ZString* text);

    /// The text form. Empty for an invalid object, except after assignment from one.
    const ZString& getString() const;

    /// Stores the flag and refreshes the text: the text form if `valid` is not 0, else
    /// empty. The GUID stays.
    void setValid(int valid);

    /// The flag as it was set; not 0 if the GUID holds a meaningful value.
    int isValid() const;

    /// ZString::hash() of the text form: in 0 ... 2^28 - 1, and equal for objects that
    /// hold the same valid GUID.
    int hash() const;

    /// 1 if both are invalid, whatever they hold, or both valid with the same GUID.
    int operator==(const ZGUIDWrapper& other) const;
    int operator!=(const ZGUIDWrapper& other) const; ///< 1 where == gives 0, else 0

    /// 1 if this object is invalid and `other` is not, or both are valid and any field
    /// of this GUID (Data1, Data2, Data3 and each byte of Data4, all unsigned) is
    /// smaller than the same field of the other.
    ///
    /// Kept as is: no order, because a greater field in front decides nothing: of two
    /// GUIDs each can be below the other. Sort by getString(), not by this.
    int operator<(const ZGUIDWrapper& other) const;

    /// other < *this. Both can hold at once.
    int operator>(const ZGUIDWrapper& other) const;

    /// @name The built-in shapes
    /// @{

    /// Takes the GUID of that shape and makes the object valid.
    void setBlank();
    void setBead1();
    void setBead2();
    void setSequin1();
    void setSequin2();
    void setSequin1_2(); ///< takes the GUID of sequin 1, then 2, and makes the object valid
    void setSequin2_1(); ///< takes the GUID of sequin 2, then 1, and makes the object valid
    void setRound();
    void setCircle();
    void setCircleShape();

    /// @}

    /// @name Tests of the built-in shapes
    /// @{

    /// 1 for a valid object with the GUID of that shape, else 0.
    int isBlank() const;
    int isBead1() const;
    int isBead2() const;
    int isSequin1() const;
    int isSequin2() const;
    int isSequin1_2() const;
    int isSequin2_1() const;
    int isRound() const;
    int isCircle() const;
    int isCircleShape() const;
    /// @}

protected:
    /// 1 if all 128 bits are equal, whatever the flag.
    int isEqual(const GUID& guid) const;

    /// Brings the text in line with GUID and flag.
    void updateString();

private:
    void setShape(const GUID& guid);
    int isShape(const GUID& guid) const;

    GUID guid_ = {};
    int valid_;
    ZString text_{36, 32}; // room for the text form, growing in a string's usual step
};

ZARNEX_INLINE const ZString& ZGUIDWrapper::getString() const {
    return text_;
}

ZARNEX_INLINE int ZGUIDWrapper::isValid() const {
    return valid_;
}

ZARNEX_INLINE int ZGUIDWrapper::isEqual(const GUID& guid) const {
    return std::memcmp(&guid_, &guid, sizeof guid) == 0; // a GUID has no padding
}

ZARNEX_INLINE int ZGUIDWrapper::operator==(const ZGUIDWrapper& other) const {
    if (valid_ == 0 || other.valid_ == 0)
        return valid_ == 0 && other.valid_ == 0;
    return isEqual(other.guid_);
}

ZARNEX_INLINE int ZGUIDWrapper::operator!=(const ZGUIDWrapper& other) const {
    return !(*this == other);
}

extern template class ZARNEX_API ZList<std::pair<ZString, ZGUIDWrapper>>;
