#include "../rows.h"
#include "texts.h"

#include <zarnex/strings/ZString.h>

#if BENCH_BOOST
#include <boost/algorithm/string/replace.hpp>
#include <boost/container/string.hpp>
#endif
#if BENCH_FMT
#include <fmt/xchar.h>
#endif
#if BENCH_ICU
#include <unicode/unistr.h>
#endif
#if BENCH_QT
#include <QtCore/QString>
#endif

#include <cwchar>

namespace bench {

namespace {

template <class Text>
Pool<Text> pooled(std::size_t length) {
    return {poolSize,
            [length](std::size_t i) { return widened<Text>(words(length - 1, i) + '!'); }};
}

/// Null-terminated text in a vector: what is left of a string without a class of its own.
using Vector = std::vector<wchar_t>;

Vector vectorOf(const wchar_t* text) {
    return Vector(text, text + std::wcslen(text) + 1);
}

/// `fitsInline`: in the objects of Boost and ICU, which then need no heap.
void makeRow(Suite& suite, const std::string& name, std::size_t length, bool fitsInline) {
    suite.row(name, 1.0, "A text is made of plain characters, looked at and freed.",
              [=](Row& row, const auto& measure) {
                  auto wide = pooled<std::wstring>(length);
                  auto utf16 = pooled<std::u16string>(length);
                  const auto last = int(length) - 1;
                  row.why("The heap is asked without exceptions, which is a call more: 2 of 19 ns. "
                          "Storage is rounded up to steps of 32 characters: at 40, 0.6 of 21 ns.");
                  row.ours([=] {
                      const ZString text(wide.next().c_str());
                      keep(text);
                      return text[last];
                  });
                  row.peer("std::wstring", [=] {
                      const std::wstring text(wide.next().c_str());
                      keep(text);
                      return text[std::size_t(last)];
                  });
                  row.peer("std::vector", [=] {
                      const Vector text = vectorOf(wide.next().c_str());
                      keep(text);
                      return text[std::size_t(last)];
                  });
#if BENCH_BOOST
                  const auto boost = [=] {
                      const boost::container::wstring text(wide.next().c_str());
                      keep(text);
                      return text[std::size_t(last)];
                  };
                  if (fitsInline)
                      row.beside("Boost", boost);
                  else
                      row.peer("Boost", boost);
#endif
#if BENCH_QT
                  row.peer("Qt", [=] {
                      const QString text(reinterpret_cast<const QChar*>(utf16.next().c_str()));
                      keep(text);
                      return text[last].unicode();
                  });
#endif
#if BENCH_ICU
                  const auto icu = [=] {
                      const icu::UnicodeString text(utf16.next().c_str());
                      keep(text);
                      return text[last];
                  };
                  if (fitsInline)
                      row.beside("ICU", icu);
                  else
                      row.peer("ICU", icu);
#endif
                  (void)fitsInline;
                  measure();
              });
}

void appendRow(Suite& suite) {
    suite.row("16 pieces appended", 1.0, "Pieces of 4 to 11 characters, one after the other.",
              [](Row& row, const auto& measure) {
                  constexpr std::size_t count = 16;
                  row.why(
                      "The length is never stored, so each += measures the text so far: 88 of 295 "
                      "ns. The same steps with the length known took 207 ns, a vector 212.");
                  std::vector<std::wstring> pieces;
                  std::vector<std::u16string> utf16;
                  for (std::size_t i = 0; i < count; ++i) {
                      pieces.push_back(widened<std::wstring>(words(4 + i % 8, i)));
                      utf16.push_back(widened<std::u16string>(words(4 + i % 8, i)));
                  }
                  row.ours([=] {
                      ZString text;
                      for (const std::wstring& piece : pieces)
                          text += piece.c_str();
                      return text.length();
                  });
                  row.peer("std::wstring", [=] {
                      std::wstring text;
                      for (const std::wstring& piece : pieces)
                          text += piece.c_str();
                      return text.length();
                  });
                  row.peer("std::vector", [=] {
                      Vector text;
                      for (const std::wstring& piece : pieces) {
                          const wchar_t* const added = piece.c_str();
                          text.insert(text.end(), added, added + std::wcslen(added));
                      }
                      return text.size();
                  });
#if BENCH_BOOST
                  row.peer("Boost", [=] {
                      boost::container::wstring text;
                      for (const std::wstring& piece : pieces)
                          text += piece.c_str();
                      return text.length();
                  });
#endif
#if BENCH_QT
                  row.peer("Qt", [=] {
                      QString text;
                      for (const std::u16string& piece : utf16)
                          text += QStringView(piece.c_str());
                      return text.length();
                  });
#endif
#if BENCH_ICU
                  row.peer("ICU", [=] {
                      icu::UnicodeString text;
                      for (const std::u16string& piece : utf16)
                          text.append(piece.c_str(), -1);
                      return text.length();
                  });
#endif
                  measure();
              });
}

/// Replaces every `wanted` in one pass into a new text.
template <class Text>
std::size_t replaceByHand(Text& text, const Text& wanted, const Text& other) {
    Text result;
    result.reserve(text.size() + text.size() / 4);
    std::size_t done = 0;
    for (std::size_t at = text.find(wanted); at != Text::npos; at = text.find(wanted, done)) {
        result.append(text, done, at - done);
        result += other;
        done = at + wanted.size();
    }
    result.append(text, done, Text::npos);
    text.swap(result);
    return text.size();
}

void replaceRow(Suite& suite) {
    suite.row("10 replaced in 290", 1.0,
              "Ten occurrences, 29 characters apart, of a word by a longer one.",
              [](Row& row, const auto& measure) {
                  std::string given;
                  for (std::size_t i = 0; i < 10; ++i)
                      given += words(26, i) + "{n}";
                  const auto wide = widened<std::wstring>(given);
                  const auto utf16 = widened<std::u16string>(given);
                  row.ours([=] { return ZString(wide.c_str()); },
                           [](ZString& text) {
                               text.findAndReplace(L"{n}", L"needle");
                               return text.length();
                           });
                  row.peer(
                      "std::wstring", [=] { return wide; },
                      [](std::wstring& text) {
                          return replaceByHand<std::wstring>(text, L"{n}", L"needle");
                      });
#if BENCH_BOOST
                  row.peer(
                      "Boost replace_all", [=] { return wide; },
                      [](std::wstring& text) {
                          boost::algorithm::replace_all(text, L"{n}", L"needle");
                          return text.length();
                      });
#endif
#if BENCH_QT
                  row.peer(
                      "Qt", [=] { return qString(utf16); },
                      [](QString& text) {
                          text.replace(QLatin1String("{n}"), QLatin1String("needle"));
                          return text.length();
                      });
#endif
#if BENCH_ICU
                  row.peer(
                      "ICU", [=] { return icu::UnicodeString(utf16.c_str()); },
                      [](icu::UnicodeString& text) {
                          text.findAndReplace(u"{n}", u"needle");
                          return text.length();
                      });
#endif
                  measure();
              });
}

void formatRows(Suite& suite) {
    suite.row("\"%4.2lf mm\" formatted", 1.0, "A length in millimetres, into a new string.",
              [](Row& row, const auto& measure) {
                  Pool<double> values(poolSize,
                                      [](std::size_t i) { return 10.0 + double(i) * 0.7853; });
                  row.ours([=] {
                      ZString text;
                      text.set(L"%4.2lf mm", values.next());
                      keep(text);
                      return text[7];
                  });
                  row.peer("std::swprintf", [=] {
                      wchar_t buffer[64];
                      const int count =
                          std::swprintf(buffer, std::size(buffer), L"%4.2lf mm", values.next());
                      const std::wstring text(buffer, std::size_t(count));
                      keep(text);
                      return text[7];
                  });
#if BENCH_FMT
                  row.peer("fmt", [=] {
                      const std::wstring text = fmt::format(L"{:4.2f} mm", values.next());
                      keep(text);
                      return text[7];
                  });
#endif
#if BENCH_QT
                  row.peer("Qt", [=] {
                      const QString text = QString::asprintf("%4.2lf mm", values.next());
                      keep(text);
                      return text[7].unicode();
                  });
#endif
                  measure();
              });
    suite.row(
        "three numbers formatted", 1.0, "\"%d: %8.3f, %8.3f\", into a new string.",
        [](Row& row, const auto& measure) {
            Pool<double> values(poolSize, [](std::size_t i) { return 99.0 - double(i) * 0.37853; });
            row.ours([=] {
                ZString text;
                const double value = values.next();
                text.set(L"%d: %8.3f, %8.3f", int(value), value, -value);
                keep(text);
                return text[12];
            });
            row.peer("std::swprintf", [=] {
                const double value = values.next();
                wchar_t buffer[64];
                const int count = std::swprintf(buffer, std::size(buffer), L"%d: %8.3f, %8.3f",
                                                int(value), value, -value);
                const std::wstring text(buffer, std::size_t(count));
                keep(text);
                return text[12];
            });
#if BENCH_FMT
            row.peer("fmt", [=] {
                const double value = values.next();
                const std::wstring text =
                    fmt::format(L"{}: {:8.3f}, {:8.3f}", int(value), value, -value);
                keep(text);
                return text[12];
            });
#endif
#if BENCH_QT
            row.peer("Qt", [=] {
                const double value = values.next();
                const QString text =
                    QString::asprintf("%d: %8.3f, %8.3f", int(value), value, -value);
                keep(text);
                return text[12].unicode();
            });
#endif
            measure();
        });
}

} // namespace

void stringRows(Suite& suite) {
    suite.topic("ZString");
    makeRow(suite, "made of 8 characters", 8, true);
    makeRow(suite, "made of 40 characters", 40, false);
    appendRow(suite);
    searchRows(suite);
    replaceRow(suite);
    formatRows(suite);
    textGrowthRows(suite);
    pathRows(suite);
}

} // namespace bench
