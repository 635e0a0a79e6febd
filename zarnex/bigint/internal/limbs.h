#pragma once

/// Comparison, sums, differences and shifts of numbers of several limbs.
///
/// `out` may be an operand itself wherever nothing else is said. Counts of 0 are fine.

#include <zarnex/bigint/internal/limb.h>

namespace zarnex::detail {

/// `count` without the limbs at the top that are 0.
Size significant(const Limb* a, Size count);

/// The position of the highest bit plus 1, in `count` limbs whose top one is not 0;
/// 0 for no limbs.
long long bitLength(const Limb* a, Size count);

/// The number of zero bits above the highest bit of a limb that is not 0.
int leadingZeros(Limb limb);

/// Below, at or above 0 as `a` is below, at or above `b`, both of `count` limbs.
int compare(const Limb* a, const Limb* b, Size count);

/// out = a + b, all of `count` limbs. Returns the carry.
unsigned char add(Limb* out, const Limb* a, const Limb* b, Size count);

/// out = a + carry. Returns the carry.
unsigned char propagateCarry(Limb* out, const Limb* a, Size count, unsigned char carry);

/// out = a - b, all of `count` limbs. Returns the borrow.
unsigned char subtract(Limb* out, const Limb* a, const Limb* b, Size count);

/// out = a - borrow. Returns the borrow.
unsigned char propagateBorrow(Limb* out, const Limb* a, Size count, unsigned char borrow);

/// out = a * 2^bits for 0 <= bits < 64. Returns what left at the top. `out` may start
/// above `a` in the same array.
Limb shiftUp(Limb* out, const Limb* a, Size count, int bits);

/// out = a / 2^bits for 0 <= bits < 64. `out` may start below `a` in the same array.
void shiftDown(Limb* out, const Limb* a, Size count, int bits);

} // namespace zarnex::detail
