#pragma once

/// Searching wide text for a part, exactly or without regard to case.

#include <zarnex/platform/textUnits.h>
#include <zarnex/strings/internal/textOrder.h>

#include <algorithm>
#include <cstddef>
#include <cwchar>

namespace zarnex::detail {

using platform::WideUnit;

/// Tells where a unit can stand that equals a given one.
class ExactSieve {
public:
    explicit ExactSieve(wchar_t unit) : unit_(unit) {}

    WideUnit passes(wchar_t unit) const {
        return unit == unit_;
    }

private:
    wchar_t unit_;
};

/// The same without regard to case. Of ASCII, only the two forms of a letter can be equal
/// in some locale; a unit beyond can equal any.
class CaselessSieve {
public:
    explicit CaselessSieve(wchar_t unit)
        : lower_(lowerAscii(unit)), upper_(upperAscii(unit)), all_(!isAscii(unit)) {}

    WideUnit passes(wchar_t unit) const {
        return WideUnit((unit == lower_) | (unit == upper_) | !isAscii(unit) | all_);
    }

private:
    wchar_t lower_;
    wchar_t upper_;
    bool all_;
};

/// The first place in [text, end) where the `count` units at `wanted` stand, or null.
/// `count` is above 0; `isMatch` compares that many.
///
/// A block of places is sifted at once for those where the first and the last unit can
/// stand, by a loop of fixed length, which compilers turn into vectors.
template <class Sieve, class IsMatch>
const wchar_t* search(const wchar_t* text, const wchar_t* end, const wchar_t* wanted,
                      std::size_t count, IsMatch isMatch) {
    constexpr std::ptrdiff_t block = 16;
    const std::ptrdiff_t reach = static_cast<std::ptrdiff_t>(count) - 1;
    if (end - text <= reach)
        return nullptr;
    const Sieve first(*wanted);
    const Sieve last(wanted[reach]);
    for (const wchar_t* const stop = end - reach; text != stop;) {
        const wchar_t* blockEnd = stop;
        if (stop - text >= block) {
            blockEnd = text + block;
            WideUnit any = 0;
            for (std::ptrdiff_t i = 0; i < block; ++i)
                any = WideUnit(any | (first.passes(text[i]) & last.passes(text[i + reach])));
            if (any == 0) {
                text = blockEnd;
                continue;
            }
        }
        for (; text != blockEnd; ++text) {
            if (first.passes(*text) != 0 && last.passes(text[reach]) != 0 && isMatch(text))
                return text;
        }
    }
    return nullptr;
}

inline const wchar_t* findUnits(const wchar_t* text, const wchar_t* end, const wchar_t* wanted,
                                std::size_t count) {
    return search<ExactSieve>(text, end, wanted, count, [=](const wchar_t* place) {
        return std::wmemcmp(place, wanted, count) == 0;
    });
}

inline const wchar_t* findCaseless(const wchar_t* text, const wchar_t* end, const wchar_t* wanted,
                                   std::size_t count) {
    return search<CaselessSieve>(text, end, wanted, count, [=](const wchar_t* place) {
        return caselessOrder(place, wanted, count) == 0;
    });
}

} // namespace zarnex::detail
