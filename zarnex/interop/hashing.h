#pragma once

/// @file
/// std::hash, for the unordered containers of the standard library.
///
/// There is one for each class whose equality allows it: what `==` finds equal hashes alike.
///
///     std::unordered_map<ZString, int> needles;
///     needles[L"Hoop"] = 4;
///     needles.count(L"HOOP");     // 1, as L"Hoop" == L"HOOP"
///
/// - ZString, by ZString::hash(): without regard to case, by the current locale. A table lasts
///   as long as the locale; under another one its keys are not found.
/// - ZWideString and ZMultiByteString: exact, as their equality.
/// - ZGUIDWrapper: all invalid ones are equal, and hash alike.
/// - IPoint, IVector, ZCoord, ZVector, ZTPoint and GPoint, whose equality is exact.
/// - ZHashInt and ZHashablePointer.
///
/// There is none for DPoint and DVector, whose equality allows a tolerance, nor for the quantities,
/// some of which do: that is not transitive, so that only a constant would agree with it. Take what
/// is exact for a key, such as an IPoint of thousandths.
///
/// Values are for one run of one program: unlike those of the members hash() and the functors in
/// hashFunctions.h, they may change with the compiler and the library.

#include <zarnex/config.h>
#include <zarnex/geometry/GPoint.h>
#include <zarnex/geometry/IPoint.h>
#include <zarnex/geometry/IVector.h>
#include <zarnex/geometry/ZCoord.h>
#include <zarnex/geometry/ZTPoint.h>
#include <zarnex/geometry/ZVector.h>
#include <zarnex/ids/ZGUIDWrapper.h>
#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/ZWideString.h>
#include <zarnex/strings/hashFunctions.h>
#include <zarnex/transforms/ZHashablePointer.h>

#include <cstddef>
#include <string_view> // declares std::hash, at far less cost than <functional>

namespace zarnex::detail {

/// The hash of a pair of numbers, of (x, y) another than of (y, x).
/// Source: the finaliser of SplitMix64 in Steele, Lea and Flood, "Fast Splittable Pseudorandom
/// Number Generators", OOPSLA 2014.
template <class Number>
std::size_t hashOfPair(Number x, Number y) {
    std::size_t bits = std::hash<Number>()(x);
    bits = bits * 0x9E3779B97F4A7C15u + std::hash<Number>()(y);
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9u;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBu;
    return bits ^ (bits >> 31);
}

template <class Point>
struct PairHash {
    std::size_t operator()(const Point& p) const {
        return hashOfPair(p.x, p.y);
    }
};

} // namespace zarnex::detail

/// The hash of a text without regard to case.
template <>
struct std::hash<ZString> {
    /// ZString::hash(), which the current locale decides.
    std::size_t operator()(const ZString& text) const {
        return static_cast<std::size_t>(text.hash());
    }
};

/// The hash of a text, by its units.
template <>
struct std::hash<ZWideString> {
    /// The hash of the units.
    std::size_t operator()(const ZWideString& text) const {
        return std::hash<std::wstring_view>()(static_cast<const wchar_t*>(text));
    }
};

/// The hash of a text, by its bytes.
template <>
struct std::hash<ZMultiByteString> {
    /// The hash of the bytes.
    std::size_t operator()(const ZMultiByteString& text) const {
        return std::hash<std::string_view>()(static_cast<const char*>(text));
    }
};

/// The hash of an identifier.
template <>
struct std::hash<ZGUIDWrapper> {
    /// The hash of the GUID; 0 for every invalid object.
    std::size_t operator()(const ZGUIDWrapper& id) const {
        return id.isValid() ? static_cast<std::size_t>(id.hash()) : 0; // whatever its text is
    }
};

/// The hash of a point or a vector, by both coordinates.
/// @{
template <>
struct std::hash<IPoint> : zarnex::detail::PairHash<IPoint> {};
template <>
struct std::hash<IVector> : zarnex::detail::PairHash<IVector> {};
template <class T>
struct std::hash<ZCoord<T>> : zarnex::detail::PairHash<ZCoord<T>> {};
template <class T>
struct std::hash<ZVector<T>> : zarnex::detail::PairHash<ZVector<T>> {};
template <class T>
struct std::hash<ZTPoint<T>> : zarnex::detail::PairHash<ZTPoint<T>> {};
template <>
struct std::hash<GPoint> : zarnex::detail::PairHash<GPoint> {};
/// @}

/// The hash of an integer as a key.
template <>
struct std::hash<ZHashInt> {
    /// The hash of the value.
    std::size_t operator()(const ZHashInt& key) const {
        return std::hash<int>()(key.getInt());
    }
};

/// The hash of a pointer.
template <class T>
struct std::hash<ZHashablePointer<T>> {
    /// The hash of the address.
    std::size_t operator()(const ZHashablePointer<T>& pointer) const {
        return std::hash<T*>()(pointer);
    }
};
