#pragma once

namespace zarnex::detail {

/// The number of the latest number token of the process; the scanner lock guards it.
extern double scannedNumber;

/// Sets scannedNumber from the text of a number token; a lone sign leaves it alone.
void storeScannedNumber(const char* text, const char* end);

} // namespace zarnex::detail
