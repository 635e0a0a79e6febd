/// Feeds a target with the files of folders, without a fuzzer: what was found once stays mended.

#include "fuzz/fuzz.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int count, char** folders) {
    int replayed = 0;
    for (int i = 1; i < count; ++i) {
        if (!std::filesystem::exists(folders[i]))
            continue; // nothing was found yet
        for (const auto& entry : std::filesystem::directory_iterator(folders[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            std::printf("%s\n", entry.path().string().c_str());
            std::fflush(stdout); // the last one is at fault if this ends here
            tryInput(
                fuzz::Input(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
            ++replayed;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
