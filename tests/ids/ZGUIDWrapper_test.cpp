#include <zarnex/foundation.h>

#include "../support.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#if !defined(_WIN32)
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

static_assert(sizeof(GUID) == 16 && offsetof(GUID, Data2) == 4 && offsetof(GUID, Data3) == 6 &&
              offsetof(GUID, Data4) == 8);
static_assert(
    std::is_same_v<decltype(std::declval<const ZGUIDWrapper&>().getString()), const ZString&>);

const wchar_t bead1Text[] = L"85bd2cf9-607f-437e-90f0-7664182b90fa";
const GUID bead1 = {0x85bd2cf9, 0x607f, 0x437e, {0x90, 0xf0, 0x76, 0x64, 0x18, 0x2b, 0x90, 0xfa}};
const wchar_t nilText[] = L"00000000-0000-0000-0000-000000000000";

// Reaches the protected members, which derived classes of hosts use.
class Opened : public ZGUIDWrapper {
public:
    using ZGUIDWrapper::isEqual;
    using ZGUIDWrapper::updateString;
    using ZGUIDWrapper::ZGUIDWrapper;
};

ZGUIDWrapper fromText(const std::wstring& text) {
    const ZString given(text.c_str());
    return ZGUIDWrapper(&given);
}

GUID guidOf(const ZGUIDWrapper& id) {
    GUID guid;
    std::memcpy(&guid, static_cast<const void*>(&id), sizeof guid); // the first member
    return guid;
}

TEST(ZGUIDWrapper, MembersFollowTheGivenOrder) {
    const ZGUIDWrapper id(bead1);
    const auto* const start = reinterpret_cast<const unsigned char*>(&id);
    EXPECT_EQ(std::memcmp(start, &bead1, sizeof bead1), 0);
    int valid = 0;
    std::memcpy(&valid, start + 16, sizeof valid);
    EXPECT_EQ(valid, 1);
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(&id.getString()), start + 24);
    EXPECT_EQ(sizeof id, 24 + sizeof(ZString));
}

TEST(ZGUIDWrapper, BuiltInShapesHaveFixedIdentifiers) {
    using Id = ZGUIDWrapper;
    const struct {
        void (Id::*set)();
        int (Id::*is)() const;
        const wchar_t* text;
    } rows[] = {
        {&Id::setBlank, &Id::isBlank, L"10de0300-4c25-4dd9-9fa4-2fa1c5950e11"},
        {&Id::setBead1, &Id::isBead1, L"85bd2cf9-607f-437e-90f0-7664182b90fa"},
        {&Id::setBead2, &Id::isBead2, L"f49c932e-287c-43fd-afe2-f9b4cd39eebb"},
        {&Id::setSequin1, &Id::isSequin1, L"f00f717b-6d41-4078-9a43-a43ee00c3fd5"},
        {&Id::setSequin2, &Id::isSequin2, L"30a5db35-1caa-40b4-a0d3-d1827f3d859f"},
        {&Id::setSequin1_2, &Id::isSequin1_2, L"b6e02b09-5de8-4868-b0dd-4d07469ea45f"},
        {&Id::setSequin2_1, &Id::isSequin2_1, L"1dd96a50-a33e-4359-be3a-ae43c89a12d4"},
        {&Id::setRound, &Id::isRound, L"692c86b7-caa2-4e07-bb2c-97ed8862f1bb"},
        {&Id::setCircle, &Id::isCircle, L"41117793-7348-476a-bb08-d4f0e60a8d4a"},
        {&Id::setCircleShape, &Id::isCircleShape, L"d282705d-cae3-4e36-945a-9990c0065c55"},
    };
    Id id(0);
    for (const auto& row : rows) {
        SCOPED_TRACE(shown(row.text));
        (id.*row.set)();
        EXPECT_EQ(id.isValid(), 1);
        EXPECT_EQ(wide(id.getString()), row.text);
        EXPECT_EQ(id, fromText(row.text));
        for (const auto& other : rows)
            EXPECT_EQ((id.*other.is)(), &row == &other);
        id.setValid(0);
        EXPECT_EQ((id.*row.is)(), 0);
        EXPECT_EQ(wide(id.getString()), L"");
    }
}

TEST(ZGUIDWrapper, ReadsTheTextFormAndNothingElse) {
    const struct {
        const wchar_t* text;
        const wchar_t* result; // null: the GUID stays
    } rows[] = {
        {bead1Text, bead1Text},
        {L"85BD2CF9-607F-437E-90F0-7664182B90FA", bead1Text},
        {L"85bD2CF9-607f-437E-90f0-7664182b90Fa", bead1Text},
        {L"01234567-89ab-cdef-0123-456789ABCDEF", L"01234567-89ab-cdef-0123-456789abcdef"},
        {L"ffffffff-ffff-ffff-ffff-ffffffffffff", L"ffffffff-ffff-ffff-ffff-ffffffffffff"},
        {nilText, nilText},
        {L"", nullptr},
        {L"85bd2cf9", nullptr},
        {L"85bd2cf9-607f-437e-90f0-7664182b90f", nullptr},
        {L"85bd2cf9-607f-437e-90f0-7664182b90fa0", nullptr},
        {L"85bd2cf9-607f-437e-90f0-7664182b90fa ", nullptr},
        {L" 85bd2cf9-607f-437e-90f0-7664182b90fa", nullptr},
        {L"85bd2cf9-607f-437e-90f0-7664182b90fa\n", nullptr},
        {L"{85bd2cf9-607f-437e-90f0-7664182b90fa}", nullptr},
        {L"{5bd2cf9-607f-437e-90f0-7664182b90f}", nullptr},
        {L"85bd2cf9607f437e90f07664182b90fa", nullptr},
        {L"85bd2cf9607f437e90f07664182b90fa0000", nullptr},
        {L"85bd2cf-9607f-437e-90f0-7664182b90fa", nullptr},
        {L"85bd2cf9-607f-437e-90f07-664182b90fa", nullptr},
        {L"0x5bd2cf-607f-437e-90f0-7664182b90fa", nullptr},
        {L"+5bd2cf9-607f-437e-90f0-7664182b90fa", nullptr},
        {L"85bd2cf9-607f-437e-90f0-7664182b-0fa", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(shown(row.text));
        const ZString text(row.text);
        ZGUIDWrapper id;
        id.setCircle();
        const std::wstring before = wide(id.getString());
        id.setString(&text);
        EXPECT_EQ(wide(id.getString()), row.result != nullptr ? row.result : before);
        const ZGUIDWrapper made(&text);
        EXPECT_EQ(wide(made.getString()), row.result != nullptr ? row.result : nilText);
    }
}

TEST(ZGUIDWrapper, EachPlaceTakesExactlyWhatBelongsThere) {
    // What stands around the digits, blanks, digits of other scripts, units whose low
    // 8 bits are digits, halves of surrogate pairs.
    const std::wstring strange = L"/:@G`gxX-_.,+ \t\n\u0130\u0141\u0161\u0660\u09e6\uff11\uff21"
                                 L"\u2010\uff0d\x00ad\u202d\uffff"
                                 L"\xd835\xdfd8";
    const std::wstring valid = L"0123456789abcdefABCDEF";
    for (std::size_t place = 0; place < 36; ++place) {
        const bool isHyphen = bead1Text[place] == L'-';
        for (const wchar_t unit : valid + strange) {
            std::wstring text = bead1Text;
            text[place] = unit;
            SCOPED_TRACE(shown(text.c_str()));
            const bool fits = isHyphen ? unit == L'-' : valid.find(unit) != std::wstring::npos;
            if (fits && !isHyphen)
                text[place] = unit >= L'A' && unit <= L'F' ? unit - L'A' + L'a' : unit;
            EXPECT_EQ(wide(fromText(text).getString()), fits ? text : nilText);
        }
    }
}

TEST(ZGUIDWrapper, TextAndGuidGoRoundTrip) {
    std::mt19937 random(71);
    for (int i = 0; i < 2000; ++i) {
        unsigned char bytes[16];
        for (unsigned char& byte : bytes)
            byte = static_cast<unsigned char>(random());
        GUID guid;
        std::memcpy(&guid, bytes, sizeof guid);
        const ZGUIDWrapper id(guid);
        wchar_t expected[40];
        std::swprintf(expected, 40, L"%08lx-%04x-%04x-%02x%02x-%02x%02x%02x%02x%02x%02x",
                      static_cast<unsigned long>(guid.Data1), guid.Data2, guid.Data3, bytes[8],
                      bytes[9], bytes[10], bytes[11], bytes[12], bytes[13], bytes[14], bytes[15]);
        ASSERT_EQ(wide(id.getString()), expected);
        const GUID read = guidOf(fromText(expected));
        ASSERT_EQ(std::memcmp(&read, &guid, sizeof read), 0);
    }
}

TEST(ZGUIDWrapper, SetStringKeepsTheFlag) {
    const ZString text(bead1Text);
    ZGUIDWrapper id(0);
    id.setString(&text);
    EXPECT_EQ(id.isValid(), 0);
    EXPECT_EQ(wide(id.getString()), L"");
    EXPECT_EQ(id.isBead1(), 0);
    id.setValid(1);
    EXPECT_EQ(wide(id.getString()), bead1Text);
    EXPECT_EQ(id.isBead1(), 1);
    id.setString(&id.getString()); // its own text
    EXPECT_EQ(id.isBead1(), 1);
}

TEST(ZGUIDWrapper, NullAndUnsetGiveTheNilGuid) {
    ZGUIDWrapper unset(0);
    EXPECT_EQ(wide(unset.getString()), L"");
    unset.setValid(7);
    EXPECT_EQ(unset.isValid(), 7); // the flag as it was set
    EXPECT_EQ(wide(unset.getString()), nilText);
    const ZGUIDWrapper null(nullptr);
    EXPECT_EQ(null.isValid(), 1);
    EXPECT_EQ(null, unset);
    unset.setRound();
    unset.setString(nullptr);
    EXPECT_EQ(unset.isRound(), 1);
}

TEST(ZGUIDWrapper, NaturalArgumentsCompile) {
    for (const ZGUIDWrapper& none : {ZGUIDWrapper(0), ZGUIDWrapper(0L), ZGUIDWrapper(0u),
                                     ZGUIDWrapper(std::size_t{0}), ZGUIDWrapper(false)}) {
        EXPECT_EQ(none.isValid(), 0);
        EXPECT_EQ(wide(none.getString()), L"");
    }
    EXPECT_EQ(ZGUIDWrapper(2L).isValid(), 2);
    EXPECT_EQ(ZGUIDWrapper(true).isValid(), 1);
    GUID guid = bead1;
    EXPECT_EQ(ZGUIDWrapper(guid).isBead1(), 1);
    guid.Data1 = 0;
    EXPECT_EQ(ZGUIDWrapper(guid).isBead1(), 0);
}

TEST(ZGUIDWrapper, CopyingAnInvalidOneTakesTheFlagAlone) {
    ZGUIDWrapper invalid(bead1);
    invalid.setValid(0);
    ZGUIDWrapper target;
    target.setCircle();
    target = invalid;
    EXPECT_EQ(target.isValid(), 0);
    EXPECT_EQ(target.isCircle(), 0);
    EXPECT_EQ(wide(target.getString()), L"41117793-7348-476a-bb08-d4f0e60a8d4a");
    EXPECT_EQ(target, invalid);
    ZGUIDWrapper copy(target);
    EXPECT_EQ(wide(copy.getString()), L"");
    copy.setValid(1);
    EXPECT_EQ(wide(copy.getString()), nilText);
    target.setValid(1);
    EXPECT_EQ(target.isCircle(), 1);

    ZGUIDWrapper& self = target;
    self.setValid(0);
    self = target;
    EXPECT_EQ(self.isValid(), 0);
    target.setValid(1);
    invalid = target;
    EXPECT_EQ(invalid.isCircle(), 1);
    EXPECT_EQ(wide(invalid.getString()), wide(target.getString()));
    EXPECT_EQ(ZGUIDWrapper(invalid).isCircle(), 1);
}

TEST(ZGUIDWrapper, EqualityAsksEveryBitOfValidOnes) {
    const Opened base(bead1);
    EXPECT_TRUE(base == ZGUIDWrapper(bead1));
    for (std::size_t bit = 0; bit < 128; ++bit) {
        GUID changed = bead1;
        reinterpret_cast<unsigned char*>(&changed)[bit / 8] ^=
            static_cast<unsigned char>(1u << bit % 8);
        EXPECT_TRUE(base != ZGUIDWrapper(changed)) << bit;
        EXPECT_FALSE(base.isEqual(changed)) << bit;
    }
    Opened invalid(bead1);
    invalid.setValid(0);
    EXPECT_EQ(invalid.isEqual(bead1), 1);
    EXPECT_TRUE(base != invalid && invalid != base && invalid == ZGUIDWrapper(0));
    EXPECT_TRUE(ZGUIDWrapper(0) == ZGUIDWrapper(0));
}

TEST(ZGUIDWrapper, OrderAsksWhetherAnyFieldIsLess) {
    GUID low = {1, 5, 5, {5, 5, 5, 5, 5, 5, 5, 5}};
    GUID high = {2, 0, 5, {5, 5, 5, 5, 5, 5, 5, 5}};
    EXPECT_TRUE(ZGUIDWrapper(low) < high && ZGUIDWrapper(high) < low);
    EXPECT_TRUE(ZGUIDWrapper(low) > high && ZGUIDWrapper(high) > low);

    // Each field alone, with values that differ in sign if taken as signed.
    const GUID base = {0x7fffffff, 0x7fff, 0x7fff, {127, 127, 127, 127, 127, 127, 127, 127}};
    std::array<GUID, 11> greater;
    greater.fill(base);
    greater[0].Data1 = 0x80000000;
    greater[1].Data2 = 0x8000;
    greater[2].Data3 = 0x8000;
    for (std::size_t i = 0; i < 8; ++i)
        greater[3 + i].Data4[i] = 0x80;
    for (std::size_t i = 0; i < greater.size(); ++i) {
        SCOPED_TRACE(i);
        const ZGUIDWrapper a(base), b(greater[i]);
        EXPECT_TRUE(a < b && b > a);
        EXPECT_FALSE(b < a || a > b);
        EXPECT_FALSE(b < b || b > b);
        const ZGUIDWrapper next(greater[(i + 1) % greater.size()]);
        EXPECT_TRUE(b < next && next < b && b > next && next > b);
    }
    const ZGUIDWrapper none(0), valid(base);
    EXPECT_TRUE(none < valid && valid > none);
    EXPECT_FALSE(none > valid || valid < none || none < none || none > none);
}

TEST(ZGUIDWrapper, HashIsThatOfTheTextWhateverMadeIt) {
    ZGUIDWrapper set(0);
    set.setBead1();
    const ZGUIDWrapper copy(set);
    Opened late(0);
    const ZString upper(L"85BD2CF9-607F-437E-90F0-7664182B90FA");
    late.setString(&upper);
    late.setValid(1);
    late.updateString();
    for (const int hash : {set.hash(), copy.hash(), late.hash(), ZGUIDWrapper(bead1).hash()})
        EXPECT_EQ(hash, ZString(bead1Text).hash());
    EXPECT_NE(set.hash(), ZGUIDWrapper().hash());
    EXPECT_EQ(ZGUIDWrapper(0).hash(), ZString().hash());
}

// ---- New identifiers

// Equal for equal GUIDs only, and cheap to sort.
using Key = std::array<unsigned char, 16>;

Key newKey() {
    const GUID guid = guidOf(ZGUIDWrapper());
    Key key;
    std::memcpy(key.data(), &guid, sizeof guid);
    return key;
}

bool hasRepeats(std::vector<Key>& keys) {
    std::sort(keys.begin(), keys.end());
    return std::adjacent_find(keys.begin(), keys.end()) != keys.end();
}

TEST(NewIdentifiers, NeverRepeatAndCarryVersionAndVariant) {
    constexpr std::size_t count = 500000;
    std::vector<Key> keys(2 * count);
    std::thread other([&keys] { std::generate_n(keys.begin(), count, newKey); });
    std::generate_n(keys.begin() + count, count, newKey);
    other.join();
    Key always, ever{};
    always.fill(0xff);
    for (const Key& key : keys) {
        for (std::size_t i = 0; i < key.size(); ++i) {
            always[i] &= key[i];
            ever[i] |= key[i];
        }
    }
    GUID set, clear;
    std::memcpy(&set, always.data(), sizeof set);
    std::memcpy(&clear, ever.data(), sizeof clear);
    const ZGUIDWrapper ones(set), zeros(clear);
    // All other bits take both values.
    EXPECT_EQ(wide(ones.getString()), L"00000000-0000-4000-8000-000000000000");
    EXPECT_EQ(wide(zeros.getString()), L"ffffffff-ffff-4fff-bfff-ffffffffffff");
    EXPECT_FALSE(hasRepeats(keys));
}

#if !defined(_WIN32)
TEST(NewIdentifiers, DifferBetweenAProcessAndItsChildren) {
    // Of a parent, a child and a grandchild; a batch of any size is half used at the forks.
    constexpr std::size_t count = 50;
    std::vector<Key> keys(100);
    std::generate(keys.begin(), keys.end(), newKey);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        const pid_t grandchild = fork();
        Key made[count];
        std::generate_n(made, count, newKey);
        const bool isWritten = write(ends[1], made, sizeof made) == sizeof made;
        if (grandchild > 0)
            waitpid(grandchild, nullptr, 0);
        _exit(isWritten ? 0 : 1);
    }
    ASSERT_GT(child, 0);
    std::generate_n(std::back_inserter(keys), count, newKey);
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    Key made[2 * count];
    close(ends[1]);
    ASSERT_EQ(read(ends[0], made, sizeof made), static_cast<ssize_t>(sizeof made));
    close(ends[0]);
    keys.insert(keys.end(), std::begin(made), std::end(made));
    EXPECT_FALSE(hasRepeats(keys));
}
#endif

TEST(NamedIdentifiers, ListsHoldPairsOfNameAndIdentifier) {
    ZList<std::pair<ZString, ZGUIDWrapper>> shapes;
    shapes.add({L"Bead", bead1});
    shapes.add({L"None", 0});
    EXPECT_EQ(shapes.find({L"bead", bead1}), 0); // names ignore case
    EXPECT_EQ(shapes.find({L"Bead", 0}), -1);
    const ZList<std::pair<ZString, ZGUIDWrapper>> copy(shapes);
    EXPECT_TRUE(copy == shapes);
    shapes[0].second.setRound();
    EXPECT_TRUE(copy != shapes);
    EXPECT_EQ(copy[0].second.isBead1(), 1);
}

} // namespace
