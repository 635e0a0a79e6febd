// What docs/quantities.md says of typed texts: every row of its tables, read by the library.

#include "tests/support.h"

#include <zarnex/foundation.h>

#include <charconv>
#include <fstream>
#include <map>
#include <vector>

namespace {

using Row = std::map<std::string, std::string>; // a cell by its heading

std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells;
    for (std::size_t begin = 1; begin < line.size();) {
        const std::size_t end = line.find('|', begin);
        std::string cell = line.substr(begin, end - begin);
        const std::size_t first = cell.find_first_not_of(' ');
        cell = first == std::string::npos
                   ? ""
                   : cell.substr(first, cell.find_last_not_of(' ') + 1 - first);
        cells.push_back(cell);
        begin = end == std::string::npos ? end : end + 1;
    }
    return cells;
}

/// The rows of all tables that have a column "Text", each with its line for the trace.
std::vector<Row> documentedRows() {
    std::vector<Row> rows;
    std::ifstream file(ZARNEX_QUANTITIES_PAGE);
    EXPECT_TRUE(file) << ZARNEX_QUANTITIES_PAGE;
    std::vector<std::string> headings;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] != '|') {
            headings.clear();
        } else if (headings.empty()) {
            headings = cellsOf(line);
        } else if (line.compare(0, 4, "|---") != 0 && headings[0] == "Text") {
            const std::vector<std::string> cells = cellsOf(line);
            EXPECT_EQ(cells.size(), headings.size()) << line;
            Row row{{"line", line}};
            for (std::size_t i = 0; i < (std::min)(cells.size(), headings.size()); ++i)
                row[headings[i]] = cells[i];
            rows.push_back(row);
        }
    }
    return rows;
}

/// The text of a cell: what its backquotes hold, with the escapes read.
ZString textOf(const std::string& cell) {
    if (cell == "(empty)")
        return {};
    const std::string marks(cell.rfind("``", 0) == 0 ? 2 : 1, '`');
    const std::size_t size = cell.size() - 2 * marks.size();
    if (cell.size() <= 2 * marks.size() || cell.rfind(marks, 0) != 0 ||
        cell.substr(marks.size() + size) != marks) {
        ADD_FAILURE() << "not in backquotes: " << cell;
        return {};
    }
    ZString text;
    const ZString bare = mbsToStr(ZMultiByteString(cell.substr(marks.size(), size).c_str()), 65001);
    for (const wchar_t* at = bare.operator const wchar_t*(); *at != L'\0'; ++at) {
        if (*at != L'\\') {
            text += *at;
            continue;
        }
        switch (*++at) {
        case L't':
            text += L'\t';
            break;
        case L'n':
            text += L'\n';
            break;
        case L'r':
            text += L'\r';
            break;
        case L'u':
            text += static_cast<wchar_t>(std::stoi(std::wstring(at + 1, 4), nullptr, 16));
            at += 4;
            break;
        default:
            ADD_FAILURE() << "unknown escape in " << cell;
            return text;
        }
    }
    return text;
}

template <class Quantity>
void check(Row& row) {
    const int noUnit = 1;
    Quantity quantity(7.0);
    const auto preferred = row.find("Preferred");
    quantity.setStringWithUnits(textOf(row["Text"]),
                                preferred == row.end() ? noUnit : std::stoi(preferred->second));

    const std::string& digits = row["Value"];
    double value = 0.0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    EXPECT_EQ(read.ptr, digits.data() + digits.size()) << "no number: " << digits;
    EXPECT_EQ(double(quantity), value);
    EXPECT_EQ(quantity.isValid() ? "yes" : "no", row["Valid"]);
    EXPECT_EQ(wide(quantity.operator ZString()), wide(textOf(row["Display"])));
}

TEST(QuantityGrammar, IsAsDocumented) {
    const std::map<std::string, void (*)(Row&)> classes = {
        {"`ZMillimeter`", check<ZMillimeter>},
        {"`ZCentimeter`", check<ZCentimeter>},
        {"`ZInch`", check<ZInch>},
        {"`ZEmbPoint`", check<ZEmbPoint>},
        {"`ZSpi`", check<ZSpi>},
        {"`ZSquareCentimeter`", check<ZSquareCentimeter>},
        {"`ZMillimeterPerSec`", check<ZMillimeterPerSec>},
        {"`ZCentimeterPerSec`", check<ZCentimeterPerSec>},
        {"`ZNumber`", check<ZNumber>},
        {"`ZRealNumber`", check<ZRealNumber>},
        {"`ZHalfNumber`", check<ZHalfNumber>},
        {"`ZPercent`", check<ZPercent>},
        {"`ZDegree`", check<ZDegree>},
    };
    std::vector<Row> rows = documentedRows();
    std::map<std::string, int> rowsOfClass;
    for (Row& row : rows) {
        SCOPED_TRACE(row["line"]);
        const auto found = classes.find(row["Class"]);
        ASSERT_NE(found, classes.end());
        found->second(row);
        ++rowsOfClass[row["Class"]];
    }
    EXPECT_GE(rows.size(), 150u) << "tables of " << ZARNEX_QUANTITIES_PAGE << " are missing";
    EXPECT_EQ(rowsOfClass.size(), classes.size()) << "a class has no row";
    RecordProperty("rows", static_cast<int>(rows.size()));
}

} // namespace
