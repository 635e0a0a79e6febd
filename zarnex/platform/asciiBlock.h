#pragma once

/// Sixteen characters at once between bytes and wide units, as far as they are ASCII.
///
///     Blocks::copyAscii(text, length, out)
///
/// copies the ASCII characters that the block at `text` begins with, and returns how many.
/// Where a wide unit of the block has its highest bit set it may return 0 instead. `length` is
/// that of all the text left, at least a block. Those units of the block at `out` that the text
/// is certain to fill may be written before they are final.

#include <algorithm>
#include <cstddef>

#if defined(__SSE2__)
#include <bit>
#include <emmintrin.h>
#endif

namespace zarnex::platform {

inline constexpr std::ptrdiff_t asciiBlockSize = 16;

/// A character takes at most so many bytes of UTF-8.
inline constexpr std::ptrdiff_t mostUtf8Bytes = 4;

/// One by one.
struct PlainBlocks {
    template <class In, class Out>
    static std::ptrdiff_t copyAscii(const In* text, std::ptrdiff_t, Out* out) {
        std::ptrdiff_t count = 0;
        for (; count < asciiBlockSize && text[count] >= 0 && text[count] < 0x80; ++count)
            out[count] = static_cast<Out>(text[count]);
        return count;
    }
};

#if defined(__SSE2__)

/// By vector instructions that every processor of this kind has.
struct VectorBlocks {
    static std::ptrdiff_t copyAscii(const unsigned char* text, std::ptrdiff_t length,
                                    wchar_t* out) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
        const auto marks = static_cast<unsigned>(_mm_movemask_epi8(bytes));
        if (marks == 0) {
            widen(bytes, out);
            return asciiBlockSize; // a constant, so that the next block need not wait for a count
        }
        const std::ptrdiff_t count = std::countr_zero(marks);
        if (count + (length - count) / mostUtf8Bytes >= asciiBlockSize)
            widen(bytes, out);
        else
            std::copy_n(text, count, out);
        return count;
    }

    // Every unit gives a byte or more: the block is certain to be filled.
    static std::ptrdiff_t copyAscii(const wchar_t* text, std::ptrdiff_t, char* out) {
        const auto* const units = reinterpret_cast<const __m128i*>(text);
        const auto part = [units](int i) { return _mm_loadu_si128(units + i); };
        __m128i bytes; // 0x80 and above for units of as much, but 0 for those with the highest bit
        unsigned highest;
        if constexpr (sizeof(wchar_t) == 2) {
            bytes = _mm_packus_epi16(part(0), part(1));
            highest =
                static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(part(0), part(1)))) & 0xAAAA;
        } else {
            bytes = _mm_packus_epi16(_mm_packs_epi32(part(0), part(1)),
                                     _mm_packs_epi32(part(2), part(3)));
            const __m128i all =
                _mm_or_si128(_mm_or_si128(part(0), part(1)), _mm_or_si128(part(2), part(3)));
            highest = static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(all)));
        }
        const auto marks = static_cast<unsigned>(_mm_movemask_epi8(bytes));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
        if ((marks | highest) == 0)
            return asciiBlockSize;
        return highest != 0 ? 0 : std::countr_zero(marks);
    }

private:
    static void widen(__m128i bytes, wchar_t* out) {
        const __m128i zero = _mm_setzero_si128();
        const __m128i halves[] = {_mm_unpacklo_epi8(bytes, zero), _mm_unpackhi_epi8(bytes, zero)};
        auto* const next = reinterpret_cast<__m128i*>(out);
        for (std::ptrdiff_t i = 0; i < 2; ++i) {
            if constexpr (sizeof(wchar_t) == 2) {
                _mm_storeu_si128(next + i, halves[i]);
            } else {
                _mm_storeu_si128(next + 2 * i, _mm_unpacklo_epi16(halves[i], zero));
                _mm_storeu_si128(next + 2 * i + 1, _mm_unpackhi_epi16(halves[i], zero));
            }
        }
    }
};

using Blocks = VectorBlocks;

#else

using Blocks = PlainBlocks;

#endif

} // namespace zarnex::platform
