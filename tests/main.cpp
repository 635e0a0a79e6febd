// The main program of all tests: runs them under the process locale that ZARNEX_TEST_LOCALE
// names, else under "C".

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);

    const char* const wanted = std::getenv("ZARNEX_TEST_LOCALE");
    const char* const found = std::setlocale(LC_ALL, wanted != nullptr ? wanted : "C");
    if (found == nullptr) {
        std::fprintf(stderr, "There is no locale %s (ZARNEX_TEST_LOCALE)\n", wanted);
        return 1;
    }

    const std::string before = found;
    const int status = RUN_ALL_TESTS();
    if (std::setlocale(LC_ALL, nullptr) != before) {
        std::fprintf(stderr, "A test has left another locale than %s\n", before.c_str());
        return 1;
    }
    return status;
}
