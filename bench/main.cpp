/// Measures the library against what its users would otherwise pick.

#include "Growth.h"
#include "peers.h"
#include "rows.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr const char* usage =
    "Usage: zarnex-bench [--rounds N] [--markdown FILE] [FILTER]\n"
    "       zarnex-bench --peers\n"
    "\n"
    "Measures the rows whose \"topic: name\" contains FILTER, or all. A ratio is ours/peer:\n"
    "the median over the rounds, with quartiles. Status 1 if two sides of a row disagree.\n"
    "--peers tells which peers this program was built with.\n";

constexpr void (*topics[])(bench::Suite&) = {
    bench::listRows,       bench::arrayRows,     bench::sortRows,   bench::stringRows,
    bench::encodingRows,   bench::quantityRows,  bench::threadRows, bench::pointRows,
    bench::geometryRows,   bench::transformRows, bench::randomRows, bench::identifierRows,
    bench::bigIntegerRows,
};

} // namespace

int main(int count, char** arguments) {
    int rounds = 31;
    const char* markdownName = nullptr;
    std::string filter;
    for (int i = 1; i < count; ++i) {
        const bool hasValue = i + 1 < count;
        if (std::strcmp(arguments[i], "--peers") == 0) {
            std::puts(bench::peers().c_str());
            return 0;
        } else if (std::strcmp(arguments[i], "--rounds") == 0 && hasValue) {
            rounds = std::atoi(arguments[++i]);
        } else if (std::strcmp(arguments[i], "--markdown") == 0 && hasValue) {
            markdownName = arguments[++i];
        } else if (arguments[i][0] == '-' || !filter.empty()) {
            std::fputs(usage, stderr);
            return 2;
        } else {
            filter = arguments[i];
        }
    }
    if (rounds < 1) {
        std::fputs(usage, stderr);
        return 2;
    }

    std::FILE* markdown = nullptr;
    if (markdownName != nullptr) {
        markdown = std::fopen(markdownName, "w");
        if (markdown == nullptr) {
            std::perror(markdownName);
            return 2;
        }
    }

    bench::Suite suite(filter, rounds, markdown);
    for (const auto rows : topics)
        rows(suite);
    suite.finish();
    bench::Growth growth(filter, markdown);
    bench::growthRows(growth);
    growth.finish();
    if (markdown != nullptr && std::fclose(markdown) != 0) {
        std::perror(markdownName);
        return 2;
    }
    std::printf("%d rows, %d beyond their limit, %d with sides that disagree\n", suite.count(),
                suite.beyond(), suite.wrong());
    if (suite.count() + growth.count() == 0) {
        std::fprintf(stderr, "No row contains \"%s\".\n", filter.c_str());
        return 2;
    }
    return suite.wrong() == 0 ? 0 : 1;
}
