#pragma once

/// Numbers for the tests of large integers.

#include <zarnex/bigint/SigUInt.h>

#include <ostream>
#include <string>
#include <vector>

/// The hexadecimal digits of a number.
inline std::string hex(const SigUInt& number) {
    const ZString digits = number.getHex();
    std::string text;
    for (int i = 0; i < digits.length(); ++i)
        text += static_cast<char>(digits[i]);
    return text;
}

/// What failed checks print of a number.
inline void PrintTo(const SigUInt& number, std::ostream* out) {
    *out << "0x" << hex(number);
}

/// The number with these hexadecimal digits, by its bytes.
inline SigUInt fromHex(std::string digits) {
    if (digits.size() % 2 != 0)
        digits.insert(0, 1, '0');
    std::vector<unsigned char> bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return SigUInt(bytes.data(), static_cast<int>(bytes.size()));
}
