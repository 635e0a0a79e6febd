/// Any file as a table of quantities, and any text as a quantity.

#include "fuzz/fuzz.h"

#include "host/Reading.h"
#include "host/unitNames.h"
#include "units/LineReader.h"
#include "units/rendering.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace {

// The lines of a text as a reader of files should find them.
std::vector<std::string> linesOf(std::string text) {
    if (text.compare(0, 3, "\xEF\xBB\xBF") == 0)
        text.erase(0, 3);
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string line = text.substr(0, end);
        text.erase(0, end + 1);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

void tryLine(std::string_view line, long long number, int bareUnit) {
    const host::Reading reading(line, bareUnit);
    std::string row;
    units::appendTableRow(row, number, line, reading);
    FUZZ_REQUIRE(!row.empty() && row.find('\n') == row.size() - 1);
    const std::string header = units::tableHeader();
    FUZZ_REQUIRE(std::count(row.begin(), row.end(), '\t') ==
                 std::count(header.begin(), header.end(), '\t'));
    FUZZ_REQUIRE(!units::checked(line, reading).empty());
    host::unitOfWord(line);
    if (!reading.problem.empty())
        return;
    FUZZ_REQUIRE(host::isValid(reading.quantity));
    FUZZ_REQUIRE(std::strtod(reading.numberText.c_str(), nullptr) == reading.number);
    FUZZ_REQUIRE(std::strtod(units::digitsOf(reading.number).c_str(), nullptr) == reading.number);
    const std::string all = units::listed(reading.quantity, zarnex::unitNone);
    FUZZ_REQUIRE(!all.empty());
    FUZZ_REQUIRE(!units::listed(reading.quantity, reading.unit).empty());

    // What was ignored has no say.
    const host::Reading again(reading.numberText + ' ' + reading.unitText, bareUnit);
    FUZZ_REQUIRE(again.problem.empty() && again.unit == reading.unit && again.ignored.empty());
    FUZZ_REQUIRE(units::listed(again.quantity, zarnex::unitNone) == all);
}

} // namespace

void tryInput(fuzz::Input input) {
    static const int bareUnits[] = {2, 3, 4, 5, 6, 7, 12, 14};
    static const int file = memfd_create("lines", 0);
    const int bareUnit = bareUnits[input.choice(8)];
    const std::string text = input.rest();
    FUZZ_REQUIRE(ftruncate(file, 0) == 0);
    FUZZ_REQUIRE(pwrite(file, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()));
    lseek(file, 0, SEEK_SET);

    const std::size_t most = host::mostTextBytes;
    units::LineReader reader(file, most, [] {});
    long long number = 0;
    for (const std::string& expected : linesOf(text)) {
        std::string_view line;
        FUZZ_REQUIRE(reader.next(line) && reader.lineNumber() == ++number);
        FUZZ_REQUIRE(expected.size() > most ? line.size() > most && expected.find(line) == 0
                                            : line == expected);
        tryLine(line, number, bareUnit);
    }
    std::string_view line;
    FUZZ_REQUIRE(!reader.next(line));
}
