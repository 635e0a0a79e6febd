/// Feeds a target without a fuzzer: with the files of folders, so that what was found once stays
/// mended, and with inputs that are made here, the same ones in every run and on every platform.

#include "fuzz/fuzz.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

namespace {

constexpr int inputsMade = 2000;
constexpr unsigned seed = 1;
constexpr std::size_t longest = 300; // bytes, or some more

using Bytes = std::vector<char>;

std::vector<Bytes> inputsIn(char** folders, int count) {
    std::vector<std::filesystem::path> paths;
    for (int i = 0; i < count; ++i)
        if (std::filesystem::exists(folders[i])) // else nothing was found yet
            for (const auto& entry : std::filesystem::directory_iterator(folders[i]))
                if (entry.file_size() > 0)
                    paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> inputs;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return inputs;
}

/// Any bytes between pieces of the known inputs.
Bytes makeInput(std::mt19937& random, const std::vector<Bytes>& known) {
    const auto below = [&random](std::size_t count) { return random() % count; };
    Bytes input;
    for (const std::size_t length = below(longest); input.size() < length;) {
        const Bytes& source = known[below(known.size())];
        const auto piece = source.begin() + static_cast<std::ptrdiff_t>(below(source.size()));
        if (below(2) == 0) {
            const std::size_t left = static_cast<std::size_t>(source.end() - piece);
            input.insert(input.end(), piece, piece + static_cast<std::ptrdiff_t>(1 + below(left)));
        } else {
            for (std::size_t left = 1 + below(24); left > 0; --left)
                input.push_back(static_cast<char>(random()));
        }
    }
    return input;
}

} // namespace

/// replay-TARGET FILE FOLDER...: each input is in the file while it is tried, so that one at
/// fault can be kept.
int main(int count, char** arguments) {
    if (count < 3)
        return 1;
    const std::vector<Bytes> known = inputsIn(arguments + 2, count - 2);
    if (known.empty())
        return 1;
    std::vector<Bytes> inputs = known;
    std::mt19937 random(seed);
    for (int i = 0; i < inputsMade; ++i)
        inputs.push_back(makeInput(random, known));

    std::printf(
        "%zu inputs of the tree, and %d made with the seed %u; one at fault is left in %s\n",
        known.size(), inputsMade, seed, arguments[1]);
    std::fflush(stdout);
    for (const Bytes& input : inputs) {
        std::ofstream(arguments[1], std::ios::binary).write(input.data(), std::ssize(input));
        tryInput(fuzz::Input(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()));
    }
    std::filesystem::remove(arguments[1]);
    return 0;
}
