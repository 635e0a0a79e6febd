#include "../rows.h"
#include "texts.h"

#include <zarnex/strings/conversions.h>

#if BENCH_BOOST
#include <boost/locale/encoding_utf.hpp>
#include <boost/nowide/convert.hpp>
#endif
#if BENCH_ICU
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#endif
#if BENCH_QT
#include <QtCore/QString>
#endif

#include <codecvt>
#include <cwchar>
#include <locale.h>
#include <locale>

namespace bench {

namespace {

/// UTF-8 text of about `size` bytes, cut at a whole character.
using Make = std::string (*)(std::size_t size, std::size_t seed);

/// Mostly ASCII words, one in four with an umlaut; some Chinese; few emoji.
std::string mixed(std::size_t size, std::size_t seed) {
    static constexpr std::string_view list[] = {"Nadel ",  "Länge ",   "mm ",    "Stich ",
                                                "Größe ",  "刺绣",     "Faden ", "针距 ",
                                                "Dichte ", "Füllung ", "der ",   "Rahmen "};
    std::string text;
    std::size_t state = 2 * seed + 1;
    for (std::size_t count = 1; text.size() < size; ++count) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const std::string_view word = count % 24 == 0 ? "🧵 " : list[(state >> 33) % 12];
        if (text.size() + word.size() > size)
            break;
        text += word;
    }
    text.resize(size, '.');
    return text;
}

std::string chinese(std::size_t size, std::size_t seed) {
    static constexpr std::string_view list[] = {"刺", "绣", "针", "距", "线", "密", "度", "布"};
    std::string text;
    std::size_t state = 2 * seed + 1;
    while (text.size() + 3 <= size) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        text += list[(state >> 33) % 8];
    }
    text.resize(size, '.');
    return text;
}

bool isStart(char byte) {
    return (byte & 0xC0) != 0x80;
}

/// Well-formed UTF-8 to wide text, as one writes it in an afternoon.
std::wstring widenByHand(const std::string& text) {
    std::wstring wide;
    wide.reserve(text.size());
    const auto* next = reinterpret_cast<const unsigned char*>(text.data());
    const auto* const end = next + text.size();
    while (next != end) {
        const unsigned lead = *next++;
        const auto more = [&](unsigned value, int count) {
            for (; count > 0 && next != end && (*next & 0xC0) == 0x80; --count)
                value = value << 6 | (*next++ & 0x3Fu);
            return count == 0 ? value : 0xFFFDu;
        };
        unsigned value = lead;
        if (lead >= 0xF0)
            value = more(lead & 7, 3);
        else if (lead >= 0xE0)
            value = more(lead & 15, 2);
        else if (lead >= 0x80)
            value = more(lead & 31, 1);
        wide.push_back(wchar_t(value));
    }
    return wide;
}

std::string narrowByHand(const std::wstring& wide) {
    std::string text;
    text.reserve(wide.size() + wide.size() / 2);
    for (const wchar_t unit : wide) {
        const auto value = unsigned(unit);
        if (value < 0x80) {
            text.push_back(char(value));
        } else if (value < 0x800) {
            text.push_back(char(0xC0 | value >> 6));
            text.push_back(char(0x80 | (value & 63)));
        } else if (value < 0x10000) {
            text.push_back(char(0xE0 | value >> 12));
            text.push_back(char(0x80 | (value >> 6 & 63)));
            text.push_back(char(0x80 | (value & 63)));
        } else {
            text.push_back(char(0xF0 | value >> 18));
            text.push_back(char(0x80 | (value >> 12 & 63)));
            text.push_back(char(0x80 | (value >> 6 & 63)));
            text.push_back(char(0x80 | (value & 63)));
        }
    }
    return text;
}

/// Each thread can have a locale of its own: no other row sees this one.
class Utf8Locale {
public:
    Utf8Locale() : own_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;
    ~Utf8Locale() {
        freelocale(own_);
    }

    template <class Work>
    auto during(Work work) const {
        const locale_t before = uselocale(own_);
        const auto result = work();
        uselocale(before);
        return result;
    }

private:
    locale_t own_;
};

constexpr const char* unitWidth =
    "Wide units have four bytes here, Qt's and ICU's two: twice the memory to read or write. "
    "And lengths are never stored: the text is measured up to its terminator, and a long one "
    "is sized before its conversion, so that the result takes one allocation of the size that "
    "the growth rule gives. On 64 bytes the conversion itself is a third of the time, the "
    "array the rest. The loop by hand does less: overlong forms and surrogates pass it.";

using Facet = std::wstring_convert<std::codecvt_utf8<wchar_t>>;

void toWideRow(Suite& suite, const std::string& name, std::size_t size, Make make) {
    suite.row("UTF-8 to wide, " + name, 1.0,
              "Into a new string. Qt's and ICU's units have two bytes.",
              [=](Row& row, const auto& measure) {
                  row.why(unitWidth);
                  const std::size_t count = size > 1000 ? 4 : poolSize;
                  Pool<std::string> texts(count, [=](std::size_t i) { return make(size, i); });
                  Pool<ZMultiByteString> ours(count, [=](std::size_t i) {
                      return ZMultiByteString(make(size, i).c_str());
                  });
                  row.ours([=] {
                      const ZWideString wide = utf8ToWide(ours.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
                  row.peer("by hand", [=] {
                      const std::wstring wide = widenByHand(texts.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
                  row.peer("std::codecvt_utf8", [=, facet = std::make_shared<Facet>()] {
                      const std::wstring wide = facet->from_bytes(texts.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
#if BENCH_BOOST
                  row.peer("Boost.Locale", [=] {
                      const auto wide = boost::locale::conv::utf_to_utf<wchar_t>(texts.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
                  row.peer("Boost.Nowide", [=] {
                      const auto wide = boost::nowide::widen(texts.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
#endif
#if BENCH_QT
                  row.peer("Qt", [=] {
                      const std::string& text = texts.next();
                      const QString wide = QString::fromUtf8(text.data(), qsizetype(text.size()));
                      keep(wide);
                      return wide[0] != 0;
                  });
                  row.beside("Qt, on to std::wstring", [=] {
                      const std::string& text = texts.next();
                      const std::wstring wide =
                          QString::fromUtf8(text.data(), qsizetype(text.size())).toStdWString();
                      keep(wide);
                      return wide[0] != 0;
                  });
#endif
#if BENCH_ICU
                  row.peer("ICU", [=] {
                      const auto wide = icu::UnicodeString::fromUTF8(texts.next());
                      keep(wide);
                      return wide[0] != 0;
                  });
                  std::vector<UChar> utf16(size + 1);
                  row.beside("ICU, into a buffer", [=, &utf16] {
                      const std::string& text = texts.next();
                      UErrorCode error = U_ZERO_ERROR;
                      int written = 0;
                      u_strFromUTF8(utf16.data(), int(utf16.size()), &written, text.data(),
                                    int(text.size()), &error);
                      keep(utf16);
                      return utf16[0] != 0;
                  });
#endif
                  row.beside("std::mbsrtowcs", [=, own = std::make_shared<Utf8Locale>()] {
                      const char* text = texts.next().c_str();
                      std::wstring wide(size, L'\0');
                      own->during([&] {
                          std::mbstate_t state{};
                          return std::mbsrtowcs(wide.data(), &text, size, &state);
                      });
                      keep(wide);
                      return wide[0] != 0;
                  });
                  measure();
              });
}

void toUtf8Row(Suite& suite, const std::string& name, std::size_t size, Make make) {
    suite.row(
        "wide to UTF-8, " + name, 1.0, "Into a new string. Qt's and ICU's units have two bytes.",
        [=](Row& row, const auto& measure) {
            const std::size_t count = size > 1000 ? 4 : poolSize;
            Pool<std::wstring> wides(count,
                                     [=](std::size_t i) { return widenByHand(make(size, i)); });
            Pool<ZWideString> ours(count, [=](std::size_t i) {
                return ZWideString(widenByHand(make(size, i)).c_str());
            });
            row.ours([=] {
                const ZMultiByteString text = wideToUtf8(ours.next());
                keep(text);
                return isStart(text[0]);
            });
            row.peer("by hand", [=] {
                const std::string text = narrowByHand(wides.next());
                keep(text);
                return isStart(text[0]);
            });
            row.peer("std::codecvt_utf8", [=, facet = std::make_shared<Facet>()] {
                const std::string text = facet->to_bytes(wides.next());
                keep(text);
                return isStart(text[0]);
            });
#if BENCH_BOOST
            row.peer("Boost.Locale", [=] {
                const auto text = boost::locale::conv::utf_to_utf<char>(wides.next());
                keep(text);
                return isStart(text[0]);
            });
            row.peer("Boost.Nowide", [=] {
                const auto text = boost::nowide::narrow(wides.next());
                keep(text);
                return isStart(text[0]);
            });
#endif
#if BENCH_QT
            Pool<QString> qt(count,
                             [=](std::size_t i) { return QString::fromStdString(make(size, i)); });
            row.peer("Qt", [=] {
                const QByteArray text = qt.next().toUtf8();
                keep(text);
                return isStart(text[0]);
            });
            row.beside("Qt, from std::wstring", [=] {
                const QByteArray text = QString::fromStdWString(wides.next()).toUtf8();
                keep(text);
                return isStart(text[0]);
            });
#endif
#if BENCH_ICU
            Pool<icu::UnicodeString> icu(
                count, [=](std::size_t i) { return icu::UnicodeString::fromUTF8(make(size, i)); });
            row.peer("ICU", [=] {
                std::string text;
                icu.next().toUTF8String(text);
                keep(text);
                return isStart(text[0]);
            });
            std::vector<char> utf8(size + 1);
            row.beside("ICU, into a buffer", [=, &utf8] {
                const icu::UnicodeString& wide = icu.next();
                UErrorCode error = U_ZERO_ERROR;
                int written = 0;
                u_strToUTF8(utf8.data(), int(utf8.size()), &written, wide.getBuffer(),
                            wide.length(), &error);
                keep(utf8);
                return isStart(utf8[0]);
            });
#endif
            row.beside("std::wcsrtombs", [=, own = std::make_shared<Utf8Locale>()] {
                const wchar_t* wide = wides.next().c_str();
                std::string text(size, '\0');
                own->during([&] {
                    std::mbstate_t state{};
                    return std::wcsrtombs(text.data(), &wide, size, &state);
                });
                keep(text);
                return isStart(text[0]);
            });
            measure();
        });
}

} // namespace

void encodingRows(Suite& suite) {
    suite.topic("encodings");
    const struct {
        const char* name;
        std::size_t size;
        Make make;
    } kinds[] = {
        {"64 bytes of ASCII", 64, words},         {"64 bytes, mixed", 64, mixed},
        {"64 KiB of ASCII", 64 << 10, words},     {"64 KiB, mixed", 64 << 10, mixed},
        {"64 KiB of Chinese", 64 << 10, chinese},
    };
    for (const auto& kind : kinds) {
        toWideRow(suite, kind.name, kind.size, kind.make);
        toUtf8Row(suite, kind.name, kind.size, kind.make);
    }
}

} // namespace bench
