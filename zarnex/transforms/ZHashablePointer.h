#pragma once

/// @file
/// ZHashablePointer, and its comparisons with plain pointers.

#include <zarnex/config.h>
#include <zarnex/containers/ZList.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/transforms/ArbTrans.h>

#include <cstdint>
#include <type_traits>

/// A pointer to keep in containers that hash or order their elements; for
/// ArbTrans<DPoint>.
///
/// Owns nothing: a host deletes what it points to. Stands for the plain pointer in every
/// other place, and compares with plain pointers on either side.
template <class T>
class ZHashablePointer {
public:
    /// Null.
    ZHashablePointer();
    ZHashablePointer(T* pointer); ///< `pointer`, which may be null

    /// The same address.
    /// @{
    ZHashablePointer(const ZHashablePointer&) = default;
    ZHashablePointer& operator=(const ZHashablePointer&) = default;
    /// @}

    /// Leaves alone what it points to.
    virtual ~ZHashablePointer();

    /// Whether both are the same address: 1 or 0.
    /// @{
    int operator==(const ZHashablePointer& other) const;
    int operator==(const T* other) const;
    int operator!=(const ZHashablePointer& other) const;
    int operator!=(const T* other) const;
    /// @}

    /// In the order of the addresses, which is total: 1 or 0.
    /// @{
    int operator<(const ZHashablePointer& other) const;
    int operator<(const T* other) const;
    int operator>(const ZHashablePointer& other) const;
    int operator>(const T* other) const;
    /// @}

    /// The plain pointer.
    operator T*() const;

    /// What it points to. Not for null.
    /// @{
    T* operator->() const;
    T& operator*() const;
    /// @}

    /// The plain pointer.
    /// @{
    T* getPointer();
    T* getPointer() const;
    /// @}

    /// The low 32 bits of the address times 1741, wrapped into 32 bits; 0 for null.
    int hash() const;

    /// For a null or const pointer on the left.
    /// @{
    friend int operator==(const T* a, const ZHashablePointer& b) {
        return b == a;
    }
    friend int operator!=(const T* a, const ZHashablePointer& b) {
        return b != a;
    }
    friend int operator<(const T* a, const ZHashablePointer& b) {
        return b > a;
    }
    friend int operator>(const T* a, const ZHashablePointer& b) {
        return b < a;
    }
    /// @}

private:
    T* pointer_;
};

namespace zarnex::detail {

/// The place of `pointer` in an order of all pointers, as that of std::less.
inline std::uintptr_t address(const void* pointer) {
    return reinterpret_cast<std::uintptr_t>(pointer);
}

template <class Other, class T>
using IfPointsTo = std::enable_if_t<std::is_convertible_v<Other*, const T*>, int>;

} // namespace zarnex::detail

/// The same comparisons for pointers that would have to be converted first, on either side: to
/// T, where the comparison of two plain pointers would be as good a choice, and to a class
/// derived from T.
/// @{
template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator==(const ZHashablePointer<T>& a, Other* b) {
    return a == static_cast<const T*>(b);
}
template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator==(Other* a, const ZHashablePointer<T>& b) {
    return b == static_cast<const T*>(a);
}

template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator!=(const ZHashablePointer<T>& a, Other* b) {
    return a != static_cast<const T*>(b);
}
template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator!=(Other* a, const ZHashablePointer<T>& b) {
    return b != static_cast<const T*>(a);
}

template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator<(const ZHashablePointer<T>& a, Other* b) {
    return a < static_cast<const T*>(b);
}
template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator<(Other* a, const ZHashablePointer<T>& b) {
    return b > static_cast<const T*>(a);
}

template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator>(const ZHashablePointer<T>& a, Other* b) {
    return a > static_cast<const T*>(b);
}
template <class T, class Other, zarnex::detail::IfPointsTo<Other, T> = 0>
int operator>(Other* a, const ZHashablePointer<T>& b) {
    return b < static_cast<const T*>(a);
}
/// @}

template <class T>
ZARNEX_TEMPLATE_INLINE ZHashablePointer<T>::ZHashablePointer() : pointer_(nullptr) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZHashablePointer<T>::ZHashablePointer(T* pointer) : pointer_(pointer) {}

template <class T>
ZARNEX_TEMPLATE_INLINE ZHashablePointer<T>::~ZHashablePointer() {}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator==(const ZHashablePointer& other) const {
    return pointer_ == other.pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator==(const T* other) const {
    return pointer_ == other;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator!=(const ZHashablePointer& other) const {
    return pointer_ != other.pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator!=(const T* other) const {
    return pointer_ != other;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator<(const ZHashablePointer& other) const {
    return zarnex::detail::address(pointer_) < zarnex::detail::address(other.pointer_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator<(const T* other) const {
    return zarnex::detail::address(pointer_) < zarnex::detail::address(other);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator>(const ZHashablePointer& other) const {
    return zarnex::detail::address(other.pointer_) < zarnex::detail::address(pointer_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::operator>(const T* other) const {
    return zarnex::detail::address(other) < zarnex::detail::address(pointer_);
}

template <class T>
ZARNEX_TEMPLATE_INLINE ZHashablePointer<T>::operator T*() const {
    return pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZHashablePointer<T>::operator->() const {
    return pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T& ZHashablePointer<T>::operator*() const {
    return *pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZHashablePointer<T>::getPointer() {
    return pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE T* ZHashablePointer<T>::getPointer() const {
    return pointer_;
}

template <class T>
ZARNEX_TEMPLATE_INLINE int ZHashablePointer<T>::hash() const {
    const auto low = static_cast<std::uint32_t>(zarnex::detail::address(pointer_));
    return static_cast<int>(low * 1741u);
}

extern template class ZARNEX_API ZHashablePointer<ArbTrans<DPoint>>;
extern template class ZARNEX_API ZList<ZHashablePointer<ArbTrans<DPoint>>>;
