#pragma once

/// What the tests of several folders share.

#include <zarnex/strings/ZString.h>

#include <gtest/gtest.h>

#include <clocale>
#include <ostream>
#include <sstream>
#include <string>

/// A text as bytes, for messages of failed checks.
inline std::string shown(const wchar_t* text) {
    std::ostringstream out;
    for (; text != nullptr && *text != L'\0'; ++text) {
        if (*text >= 32 && *text < 127)
            out << static_cast<char>(*text);
        else
            out << "\\x" << std::hex << static_cast<unsigned long>(*text) << std::dec;
    }
    return out.str();
}

/// What failed checks print of a string; its own output is numbers.
inline void PrintTo(const ZString& text, std::ostream* out) {
    *out << '"' << shown(text) << '"';
}

/// The text of a string as the standard library's type, for exact comparison.
inline std::wstring wide(const ZString& text) {
    return std::wstring(static_cast<const wchar_t*>(text));
}

/// Whether the process has the locale that it starts with, which knows the case of A to Z alone.
inline bool isDefaultLocale() {
    return std::string(std::setlocale(LC_ALL, nullptr)) == "C";
}

/// Puts the locale of the process back at the end of its life.
class KeptLocale {
public:
    KeptLocale() : before_(std::setlocale(LC_ALL, nullptr)) {}
    ~KeptLocale() {
        std::setlocale(LC_ALL, before_.c_str());
    }
    KeptLocale(const KeptLocale&) = delete;
    KeptLocale& operator=(const KeptLocale&) = delete;

private:
    std::string before_;
};

/// What `call` returns under the default locale: for oracles that depend on it.
template <class Call>
auto inDefaultLocale(Call call) {
    const KeptLocale kept;
    std::setlocale(LC_ALL, "C");
    return call();
}

/// Sets a locale with a decimal comma for the life of the object.
class CommaLocale : KeptLocale {
public:
    CommaLocale() {
        for (const char* name : {"de_DE.UTF-8", "German_Germany.1252"})
            isSet_ = isSet_ || std::setlocale(LC_ALL, name) != nullptr;
    }

    bool isSet() const {
        return isSet_;
    }

private:
    bool isSet_ = false;
};
