#include "texts.h"

#include <zarnex/strings/ZString.h>

#if BENCH_BOOST
#include <boost/algorithm/string/predicate.hpp>
#include <boost/container/string.hpp>
#endif
#if BENCH_ICU
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#endif
#if BENCH_QT
#include <QtCore/QHash>
#include <QtCore/QString>
#endif

#include <algorithm>
#include <cctype>
#include <cwchar>
#include <cwctype>
#include <functional>

namespace bench {

namespace {

void findRow(Suite& suite, const char* name, const char* what, int ignoreCase) {
    suite.row(name, 1.0, what, [=](Row& row, const auto& measure) {
        const auto make = [](std::size_t i) { return words(980, i) + "threadcut"; };
        const std::wstring wanted = ignoreCase != 0 ? L"ThreadCut" : L"threadcut";
        const std::u16string wanted16(wanted.begin(), wanted.end());
        Pool<ZString> ours(poolSize, [&](std::size_t i) {
            return ZString(widened<std::wstring>(make(i)).c_str());
        });
        Pool<std::wstring> wide(poolSize,
                                [&](std::size_t i) { return widened<std::wstring>(make(i)); });
        row.ours([=] { return ours.next().findString(wanted.c_str(), 0, ignoreCase); });
        if (ignoreCase == 0) {
            row.peer("std::wstring", [=] { return wide.next().find(wanted.c_str()); });
            row.peer("wcsstr", [=] {
                const wchar_t* const text = wide.next().c_str();
                return std::wcsstr(text, wanted.c_str()) - text;
            });
        } else {
            row.peer("by hand", [=] {
                const std::wstring& text = wide.next();
                const auto same = [](wchar_t a, wchar_t b) {
                    return a == b || std::towlower(std::wint_t(a)) == std::towlower(std::wint_t(b));
                };
                return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), same) -
                       text.begin();
            });
        }
#if BENCH_BOOST
        if (ignoreCase == 0) {
            Pool<boost::container::wstring> boost(poolSize, [&](std::size_t i) {
                return widened<boost::container::wstring>(make(i));
            });
            row.peer("Boost", [=] { return boost.next().find(wanted.c_str()); });
        }
#endif
#if BENCH_QT
        Pool<QString> qt(poolSize,
                         [&](std::size_t i) { return qString(widened<std::u16string>(make(i))); });
        row.peer("Qt", [=] {
            return qt.next().indexOf(QStringView(wanted16), 0,
                                     ignoreCase != 0 ? Qt::CaseInsensitive : Qt::CaseSensitive);
        });
#endif
#if BENCH_ICU
        if (ignoreCase == 0) {
            Pool<icu::UnicodeString> icu(poolSize, [&](std::size_t i) {
                return icu::UnicodeString(widened<std::u16string>(make(i)).c_str());
            });
            row.peer("ICU",
                     [=] { return icu.next().indexOf(wanted16.data(), int(wanted16.size()), 0); });
        }
#endif
        measure();
    });
}

/// The text with every second letter in the other case.
std::string recased(std::string text) {
    for (std::size_t i = 0; i < text.size(); i += 2)
        text[i] = static_cast<char>(std::toupper(text[i]));
    return text;
}

bool equalByHand(const std::wstring& a, const std::wstring& b, wint_t (*lower)(wint_t)) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && lower(std::wint_t(a[i])) != lower(std::wint_t(b[i])))
            return false;
    }
    return true;
}

wint_t lowerAscii(wint_t unit) {
    return unit - L'A' < 26 ? unit + 32 : unit;
}

void equalRow(Suite& suite) {
    suite.row(
        "equality ignoring case", 1.0, "Two equal texts of 40 characters in mixed case.",
        [](Row& row, const auto& measure) {
            const auto one = [](std::size_t i) { return words(40, i); };
            const auto two = [](std::size_t i) { return recased(words(40, i)); };
            const auto wide = [](const std::string& text) { return widened<std::wstring>(text); };
            Pool<std::pair<ZString, ZString>> ours(poolSize, [&](std::size_t i) {
                return std::pair(ZString(wide(one(i)).c_str()), ZString(wide(two(i)).c_str()));
            });
            Pool<std::pair<std::wstring, std::wstring>> std(
                poolSize, [&](std::size_t i) { return std::pair(wide(one(i)), wide(two(i))); });
            row.ours([=] {
                const auto& [a, b] = ours.next();
                return a == b;
            });
            row.peer("wcscasecmp", [=] {
                const auto& [a, b] = std.next();
                return wcscasecmp(a.c_str(), b.c_str()) == 0;
            });
            row.peer("by hand", [=] {
                const auto& [a, b] = std.next();
                return equalByHand(a, b, std::towlower);
            });
            row.beside("by hand, A to Z alone", [=] {
                const auto& [a, b] = std.next();
                return equalByHand(a, b, lowerAscii);
            });
#if BENCH_BOOST
            row.beside("Boost iequals", [=] {
                const auto& [a, b] = std.next();
                return boost::algorithm::iequals(a, b);
            });
#endif
#if BENCH_QT
            Pool<std::pair<QString, QString>> qt(poolSize, [&](std::size_t i) {
                return std::pair(qString(widened<std::u16string>(one(i))),
                                 qString(widened<std::u16string>(two(i))));
            });
            row.peer("Qt", [=] {
                const auto& [a, b] = qt.next();
                return a.compare(b, Qt::CaseInsensitive) == 0;
            });
#endif
#if BENCH_ICU
            using Icu = icu::UnicodeString;
            Pool<std::pair<Icu, Icu>> icu(poolSize, [&](std::size_t i) {
                return std::pair(Icu(widened<std::u16string>(one(i)).c_str()),
                                 Icu(widened<std::u16string>(two(i)).c_str()));
            });
            row.beside("ICU", [=] {
                const auto& [a, b] = icu.next();
                return a.caseCompare(b, U_FOLD_CASE_DEFAULT) == 0;
            });
#endif
            measure();
        });
}

/// The hash of the System V object format, of a lower-cased copy.
int hashByHand(const std::wstring& text) {
    std::wstring lower(text);
    for (wchar_t& unit : lower)
        unit = wchar_t(std::towlower(std::wint_t(unit)));
    unsigned hash = 0;
    for (const wchar_t unit : lower) {
        hash = (hash << 4) + unsigned(unit);
        const unsigned high = hash & 0xF0000000u;
        if (high != 0)
            hash ^= high >> 24;
        hash &= ~high;
    }
    return int(hash);
}

void hashRow(Suite& suite) {
    suite.row(
        "hash", 1.0, "Of the lower-cased text, 40 characters.", [](Row& row, const auto& measure) {
            const auto make = [](std::size_t i) { return recased(words(40, i)); };
            Pool<ZString> ours(poolSize, [&](std::size_t i) {
                return ZString(widened<std::wstring>(make(i)).c_str());
            });
            Pool<std::wstring> wide(poolSize,
                                    [&](std::size_t i) { return widened<std::wstring>(make(i)); });
            row.ours([=] {
                keep(ours.next().hash());
                return 0;
            });
            row.peer("by hand", [=] {
                keep(hashByHand(wide.next()));
                return 0;
            });
            row.beside("std::hash, case kept", [=] {
                keep(std::hash<std::wstring>()(wide.next()));
                return 0;
            });
#if BENCH_QT
            Pool<QString> qt(
                poolSize, [&](std::size_t i) { return qString(widened<std::u16string>(make(i))); });
            row.beside("Qt", [=] {
                keep(qHash(qt.next().toLower()));
                return 0;
            });
#endif
            measure();
        });
}

} // namespace

void searchRows(Suite& suite) {
    findRow(suite, "find in 1000", "A word near the end that begins as other words do.", 0);
    findRow(suite, "find in 1000 ignoring case",
            "A word near the end that begins as other words do, in another case.", 1);
    equalRow(suite);
    hashRow(suite);
}

} // namespace bench
