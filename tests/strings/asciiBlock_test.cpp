#include <zarnex/platform/asciiBlock.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>
#include <vector>

using namespace zarnex::platform;

namespace {

// Whether a wide unit of the first block has its highest bit set.
template <class In>
bool hasHighestBit(const std::vector<In>& text) {
    constexpr auto highestBit = static_cast<In>(1u << (8 * sizeof(In) - 1));
    return sizeof(In) > 1 && std::any_of(text.begin(), text.begin() + asciiBlockSize,
                                         [](In unit) { return (unit & highestBit) != 0; });
}

// Texts of a block and more: the ASCII in front of it is copied, and nothing written that the
// rest of the text does not fill, however little of it each character takes.
template <class AsciiBlocks, class In, class Out>
void expectCopies(std::initializer_list<In> others, std::ptrdiff_t mostUnits) {
    std::mt19937 engine(17);
    constexpr Out untouched = 0x55;
    for (int turn = 0; turn < 4000; ++turn) {
        const auto length = asciiBlockSize + static_cast<std::ptrdiff_t>(engine() % 70);
        std::vector<In> text(static_cast<std::size_t>(length));
        std::ptrdiff_t ascii = length;
        for (std::ptrdiff_t i = length - 1; i >= 0; --i) {
            const bool isOther = engine() % 24 == 0;
            text[static_cast<std::size_t>(i)] = isOther ? others.begin()[engine() % others.size()]
                                                        : static_cast<In>(engine() % 128);
            if (isOther)
                ascii = i;
        }
        const std::ptrdiff_t expected = (std::min)(ascii, asciiBlockSize);
        const std::ptrdiff_t filled = expected + (length - expected) / mostUnits;

        Out out[asciiBlockSize];
        std::fill_n(out, asciiBlockSize, untouched);
        const std::ptrdiff_t count = AsciiBlocks::copyAscii(text.data(), length, out);
        if (!hasHighestBit(text) || count != 0) {
            ASSERT_EQ(count, expected);
        }
        for (std::ptrdiff_t i = 0; i < count; ++i)
            ASSERT_EQ(out[i], static_cast<Out>(text[static_cast<std::size_t>(i)]));
        for (std::ptrdiff_t i = (std::min)(filled, asciiBlockSize); i < asciiBlockSize; ++i)
            ASSERT_EQ(out[i], untouched);
    }
}

template <class AsciiBlocks>
void expectCopiesBothWays() {
    expectCopies<AsciiBlocks, unsigned char, wchar_t>({0x80, 0xC3, 0xFF}, mostUtf8Bytes);
    constexpr auto last = static_cast<wchar_t>(-1);
    constexpr auto highestBit = static_cast<wchar_t>(1u << (8 * sizeof(wchar_t) - 1));
    expectCopies<AsciiBlocks, wchar_t, char>({L'\x80', L'\x100', L'\x8000', last, highestBit}, 1);
}

TEST(AsciiBlocks, CopyWhatStandsInFrontOneByOne) {
    expectCopiesBothWays<PlainBlocks>();
}

TEST(AsciiBlocks, CopyWhatStandsInFrontByTheFastestWay) {
    expectCopiesBothWays<Blocks>();
}

} // namespace
