#pragma once

/// What the tests of several folders share.

#include <zarnex/strings/ZString.h>

#include <gtest/gtest.h>

#include <clocale>
#include <ostream>
#include <string>

/// Shows a string as text when a check fails; its own output is numbers.
inline void PrintTo(const ZString& text, std::ostream* out) {
    *out << '"';
    for (const wchar_t* unit = text; *unit != L'\0'; ++unit) {
        if (*unit >= 32 && *unit < 127)
            *out << static_cast<char>(*unit);
        else
            *out << "\\x" << std::hex << static_cast<unsigned long>(*unit) << std::dec;
    }
    *out << '"';
}

/// The text of a string as the standard library's type, for exact comparison.
inline std::wstring wide(const ZString& text) {
    return std::wstring(static_cast<const wchar_t*>(text));
}

/// Sets a locale with a decimal comma for the life of the object.
class CommaLocale {
public:
    CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)) {
        for (const char* name : {"de_DE.UTF-8", "German_Germany.1252"})
            isSet_ = isSet_ || std::setlocale(LC_ALL, name) != nullptr;
    }
    ~CommaLocale() {
        std::setlocale(LC_ALL, before_.c_str());
    }

    bool isSet() const {
        return isSet_;
    }

private:
    std::string before_;
    bool isSet_ = false;
};
