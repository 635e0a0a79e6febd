#pragma once

/// The bytes of an input, read as numbers, texts and choices.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>

namespace fuzz {

/// Reads from the front. Behind the last byte everything is 0 or empty, so every input means
/// something.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

    bool atEnd() const {
        return next_ == end_;
    }

    int byte() {
        return atEnd() ? 0 : *next_++;
    }

    /// One of 0 ... count - 1, for a `count` up to 256.
    int choice(int count) {
        return byte() % count;
    }

    /// One of least ... most, which are fewer than 65536.
    int between(int least, int most) {
        const int high = most - least < 256 ? 0 : byte();
        return least + (high * 256 + byte()) % (most - least + 1);
    }

    /// An integer that is small or next to an edge more often than not.
    template <class Number>
    Number integer() {
        using Limits = std::numeric_limits<Number>;
        const int kind = byte();
        if (kind < 128)
            return static_cast<Number>(kind - 32);
        if (kind < 160)
            return static_cast<Number>((Limits::max)() - static_cast<Number>(kind - 128));
        if (kind < 192)
            return static_cast<Number>((Limits::min)() + static_cast<Number>(kind - 160));
        return raw<Number>();
    }

    /// Any double: a small decimal, an edge of the type, or its bits as they come.
    double real() {
        static const double edges[] = {0.0,          -0.0,
                                       1.0,          -1.0,
                                       0.5,          1e-5,
                                       1e-9,         1e-11,
                                       1e-14,        1e-300,
                                       1e300,        5e-324,
                                       1e154,        1e9,
                                       2147483648.0, 32768.0,
                                       1e16,         1.7976931348623157e308,
                                       INFINITY,     -INFINITY,
                                       NAN,          0.49999999999999994};
        const int kind = byte();
        if (kind < 128)
            return (kind - 64) / 4.0;
        if (kind < 192)
            return edges[static_cast<std::size_t>(kind) % std::size(edges)];
        if (kind < 224)
            return raw<std::int32_t>() / 1000.0;
        return raw<double>();
    }

    /// Up to `most` bytes behind their count. They may be 0.
    std::string bytes(int most) {
        std::string text(static_cast<std::size_t>(between(0, most)), '\0');
        for (char& unit : text)
            unit = static_cast<char>(byte());
        return text;
    }

    /// The same without zeros.
    std::string text(int most) {
        std::string text = bytes(most);
        return text.substr(0, text.find('\0'));
    }

    /// Wide text, out of few characters that mean something to text and paths, or of any
    /// bytes: those from 0x80 on stand for what tends to be odd.
    std::wstring wide(int most) {
        static const wchar_t few[] = L"aAbBaAbB \t\r\n./\\:-0xyz%";
        static const wchar_t odd[] = {0xdf,  0xe9,   0xff,   0x100,  0x130,  0x131,  0x1c5,  0x2009,
                                      0x3c2, 0x212a, 0x20ac, 0xd800, 0xdfff, 0xfeff, 0xffff, 0x7f};
        const bool takesFew = choice(4) != 0;
        std::wstring wide;
        for (const char unit : text(most)) {
            const unsigned value = static_cast<unsigned char>(unit);
            if (takesFew)
                wide += few[value % (std::size(few) - 1)];
            else
                wide += value < 0x80 ? static_cast<wchar_t>(value) : odd[value % std::size(odd)];
        }
        return wide;
    }

    /// What is left.
    std::string rest() {
        const std::string rest(reinterpret_cast<const char*>(next_),
                               static_cast<std::size_t>(end_ - next_));
        next_ = end_;
        return rest;
    }

private:
    template <class Number>
    Number raw() {
        unsigned char bytes[sizeof(Number)];
        for (unsigned char& each : bytes)
            each = static_cast<unsigned char>(byte());
        Number number;
        std::memcpy(&number, bytes, sizeof number);
        return number;
    }

    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

} // namespace fuzz
