/// Texts of 64 Ki characters and of a million: what grows faster than the text would show here.

#include "texts.h"

#include <zarnex/strings/ZString.h>

#if BENCH_FMT
#include <fmt/xchar.h>
#endif
#if BENCH_QT
#include <QtCore/QString>
#endif

namespace bench {

namespace {

struct Size {
    const char* name;
    std::size_t units;
};

constexpr const char* growth =
    " Shown for its growth: the peers, which do not count, know lengths that the library measures.";

constexpr Size sizes[] = {{"64 Ki characters", 64 << 10}, {"1 Mi characters", 1 << 20}};

void replaceAll(Suite& suite, const Size& size) {
    suite.row(std::string("replace all in ") + size.name, 1.0,
              std::string("Every tenth character, by two others.") + growth,
              [=](Row& row, const auto& measure) {
                  std::string given;
                  while (given.size() < size.units)
                      given += "123456789,";
                  given.resize(size.units);
                  const auto wide = widened<std::wstring>(given);
                  const auto utf16 = widened<std::u16string>(given);
                  row.ours([=] { return ZString(wide.c_str()); },
                           [](ZString& text) {
                               text.findAndReplace(L",", L"; ");
                               return text.length();
                           });
                  row.beside(
                      "std::wstring", [=] { return wide; },
                      [](std::wstring& text) {
                          std::wstring result;
                          result.reserve(text.size() + text.size() / 8);
                          std::size_t done = 0;
                          for (std::size_t at = text.find(L','); at != std::wstring::npos;
                               at = text.find(L',', done)) {
                              result.append(text, done, at - done);
                              result += L"; ";
                              done = at + 1;
                          }
                          result.append(text, done);
                          text.swap(result);
                          return text.size();
                      });
#if BENCH_QT
                  row.beside(
                      "Qt", [=] { return qString(utf16); },
                      [](QString& text) {
                          text.replace(QLatin1String(","), QLatin1String("; "));
                          return text.length();
                      });
#endif
                  measure();
              });
}

void format(Suite& suite, const Size& size) {
    suite.row(std::string("format ") + size.name, 1.0,
              std::string("\"%d: %s\" with a long text, into a new string.") + growth,
              [=](Row& row, const auto& measure) {
                  const auto wide = widened<std::wstring>(words(size.units, 1));
                  row.ours([=] {
                      ZString text;
                      text.set(L"%d: %s", 42, wide.c_str());
                      return text[int(size.units)];
                  });
                  row.beside("std::swprintf", [=] {
                      std::wstring text(size.units + 16, L'\0');
                      const int count =
                          std::swprintf(text.data(), text.size(), L"%d: %ls", 42, wide.c_str());
                      text.resize(std::size_t(count));
                      return text[size.units];
                  });
#if BENCH_FMT
                  row.beside("fmt", [=] {
                      const std::wstring text = fmt::format(L"{}: {}", 42, wide.c_str());
                      return text[size.units];
                  });
#endif
#if BENCH_QT
                  const auto qt = qString(widened<std::u16string>(words(size.units, 1)));
                  row.beside("Qt", [=] {
                      const QString text =
                          QString(QLatin1String("%1: %2")).arg(QString::number(42), qt);
                      return text[qsizetype(size.units)].unicode();
                  });
#endif
                  measure();
              });
}

void trimAndSlice(Suite& suite, const Size& size) {
    suite.row(std::string("trim and slice ") + size.name, 1.0,
              std::string("Blanks at both ends removed, then the middle half taken.") + growth,
              [=](Row& row, const auto& measure) {
                  const std::string given = "  \t" + words(size.units, 1) + "x\r\n ";
                  const auto wide = widened<std::wstring>(given);
                  const auto utf16 = widened<std::u16string>(given);
                  const std::size_t quarter = size.units / 4;
                  row.ours([=] { return ZString(wide.c_str()); },
                           [=](ZString& text) {
                               text.trimLeft();
                               text.trimRight();
                               const ZString middle =
                                   text.subString(int(quarter), int(2 * quarter));
                               return middle[int(quarter)];
                           });
                  row.beside(
                      "std::wstring", [=] { return wide; },
                      [=](std::wstring& text) {
                          const wchar_t blanks[] = L" \t\r\n";
                          text.erase(0, text.find_first_not_of(blanks));
                          text.erase(text.find_last_not_of(blanks) + 1);
                          const std::wstring middle = text.substr(quarter, 2 * quarter);
                          return middle[quarter];
                      });
#if BENCH_QT
                  row.beside(
                      "Qt", [=] { return qString(utf16); },
                      [=](QString& text) {
                          text = text.trimmed();
                          const QString middle =
                              text.mid(qsizetype(quarter), qsizetype(2 * quarter));
                          return middle[qsizetype(quarter)].unicode();
                      });
#endif
                  measure();
              });
}

} // namespace

void textGrowthRows(Suite& suite) {
    for (const Size& size : sizes) {
        replaceAll(suite, size);
        format(suite, size);
        trimAndSlice(suite, size);
    }
}

} // namespace bench
