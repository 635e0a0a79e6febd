#include <zarnex/foundation.h>

#include "../support.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#if !defined(_WIN32)
#include <cerrno>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

using Id = ZGUIDWrapper;

const GUID bead1 = {0x85bd2cf9, 0x607f, 0x437e, {0x90, 0xf0, 0x76, 0x64, 0x18, 0x2b, 0x90, 0xfa}};
const std::wstring bead1Text = L"85bd2cf9-607f-437e-90f0-7664182b90fa";
const std::wstring nilText = L"00000000-0000-0000-0000-000000000000";

std::wstring textOf(const Id& id) {
    return wide(id.getString());
}

Id fromText(const std::wstring& text) {
    const ZString given(text.c_str());
    return Id(&given);
}

using Key = std::array<unsigned char, 16>; // a GUID that can be sorted

Key keyOf(const Id& id) {
    Key key;
    std::memcpy(key.data(), static_cast<const void*>(&id), key.size()); // the first member
    return key;
}

TEST(ZGUIDWrapper, BuiltInShapesHaveFixedIdentifiers) {
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
    EXPECT_EQ(textOf(Id(bead1)), bead1Text);
    Id id(0);
    for (const auto& row : rows) {
        SCOPED_TRACE(shown(row.text));
        (id.*row.set)();
        EXPECT_EQ(textOf(id), row.text);
        EXPECT_TRUE(id == fromText(row.text));
        EXPECT_EQ(id.hash(), ZString(row.text).hash());
        for (const auto& other : rows)
            EXPECT_EQ((id.*other.is)(), &row == &other);
        id.setValid(0);
        EXPECT_EQ((id.*row.is)(), 0);
        EXPECT_EQ(textOf(id), L"");
    }
}

TEST(ZGUIDWrapper, OtherTextLeavesTheGuidAlone) {
    for (const wchar_t* refused :
         {L"", L"85bd2cf9-607f-437e-90f0-7664182b90f", L"85bd2cf9-607f-437e-90f0-7664182b90fa ",
          L"{5bd2cf9-607f-437e-90f0-7664182b90f}", L"85bd2cf9607f437e90f07664182b90fa",
          L"85bd2cf-9607f-437e-90f0-7664182b90fa", L"85bd2cf9-607f-437e-90f0-7664182b90\u0141a"}) {
        SCOPED_TRACE(shown(refused));
        const ZString text(refused);
        Id id;
        id.setCircle();
        id.setString(&text);
        EXPECT_EQ(id.isCircle(), 1);
        EXPECT_EQ(textOf(Id(&text)), nilText); // valid all the same
    }
}

TEST(ZGUIDWrapper, SetStringKeepsTheFlag) {
    const ZString text(bead1Text.c_str());
    Id id(0);
    id.setString(&text);
    EXPECT_EQ(textOf(id), L"");
    id.setValid(7);
    EXPECT_EQ(id.isValid(), 7); // the flag as it was set
    id.setString(nullptr);
    id.setString(&id.getString());
    EXPECT_EQ(textOf(id), bead1Text);
}

TEST(ZGUIDWrapper, NaturalArgumentsCompile) {
    for (Id none : {Id(0), Id(0L), Id(0u), Id(std::size_t{0}), Id(false)}) {
        EXPECT_EQ(none.isValid(), 0);
        EXPECT_EQ(textOf(none), L"");
        none.setValid(1);
        EXPECT_TRUE(none == Id(nullptr));
        EXPECT_EQ(textOf(none), nilText);
    }
    GUID guid = bead1;
    EXPECT_EQ(Id(guid).isBead1(), 1);
}

TEST(ZGUIDWrapper, CopyingAnInvalidOneTakesTheFlagAlone) {
    Id invalid(bead1);
    invalid.setValid(0);
    Id target;
    target.setCircle();
    const std::wstring before = textOf(target);
    target = invalid;
    EXPECT_EQ(target.isValid(), 0);
    EXPECT_EQ(textOf(target), before);
    Id copy(target);
    EXPECT_EQ(textOf(copy), L"");
    copy.setValid(1);
    EXPECT_EQ(textOf(copy), nilText);
    target.setValid(1);
    EXPECT_EQ(target.isCircle(), 1);
    invalid = target;
    for (const Id& taken : {invalid, Id(invalid)})
        EXPECT_TRUE(taken.isCircle() && textOf(taken) == before);
}

TEST(ZGUIDWrapper, ComparesFieldByField) {
    // Each field alone, with values whose order would be another if they had signs.
    const GUID low = {0x7fffffff, 0x7fff, 0x7fff, {127, 127, 127, 127, 127, 127, 127, 127}};
    std::vector<GUID> rows(11, low);
    rows[0].Data1 = 0x80000000;
    rows[1].Data2 = 0x8000;
    rows[2].Data3 = 0x8000;
    for (std::size_t i = 0; i < 8; ++i)
        rows[3 + i].Data4[i] = 0x80;
    const Id a(low), none(0);
    EXPECT_EQ(none.getString().allocLength(), 1); // nothing behind the empty text
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        const Id b(rows[i]), next(rows[(i + 1) % rows.size()]);
        EXPECT_TRUE(b == Id(rows[i]) && a != b && none != b && b != none);
        EXPECT_TRUE(a < b && b > a && none < b && b > none);
        EXPECT_FALSE(b < a || a > b || b < b || b > b || none > b || b < none);
        EXPECT_TRUE(b < next && next < b && b > next && next > b); // no order
    }
    Id invalid(low);
    invalid.setValid(0);
    EXPECT_TRUE(none == invalid && invalid == none);
    EXPECT_FALSE(none < invalid || none > invalid || none != invalid);
}

// ---- New identifiers

void addNew(std::vector<Key>& keys, std::size_t count) {
    std::generate_n(std::back_inserter(keys), count, [] { return keyOf(Id()); });
}

void expectNoRepeats(std::vector<Key> keys) {
    std::sort(keys.begin(), keys.end());
    EXPECT_TRUE(std::adjacent_find(keys.begin(), keys.end()) == keys.end());
}

// The numbers stand with their least significant byte first.
bool haveVersionAndVariant(const std::vector<Key>& keys) {
    return std::all_of(keys.begin(), keys.end(),
                       [](const Key& key) { return key[7] >> 4 == 4 && key[8] >> 6 == 2; });
}

TEST(NewIdentifiers, NeverRepeatAndCarryVersionAndVariant) {
    std::vector<Key> keys, others;
    std::thread other(addNew, std::ref(others), 500000);
    addNew(keys, 500000);
    other.join();
    keys.insert(keys.end(), others.begin(), others.end());
    EXPECT_TRUE(haveVersionAndVariant(keys));
    expectNoRepeats(keys);
}

#if !defined(_WIN32)
TEST(NewIdentifiers, DifferBetweenAProcessAndItsChildren) {
    std::vector<Key> keys;
    addNew(keys, 100); // so that what is fetched ahead is there when the children start
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        const pid_t grandchild = fork();
        keys.clear();
        addNew(keys, 50);
        const bool isWritten = write(ends[1], keys.data(), 50 * sizeof(Key)) == 50 * sizeof(Key);
        _exit(isWritten && (grandchild == 0 || waitpid(grandchild, nullptr, 0) > 0) ? 0 : 1);
    }
    addNew(keys, 50);
    int status = -1;
    EXPECT_TRUE(waitpid(child, &status, 0) == child && status == 0);
    close(ends[1]);
    keys.resize(250);
    EXPECT_EQ(read(ends[0], &keys[150], 100 * sizeof(Key)), 100 * sizeof(Key));
    close(ends[0]);
    expectNoRepeats(keys);
}

// From here on the process has no getrandom(), as in some sandboxes and on old kernels.
bool refuseGetrandom() {
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_getrandom, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(rules), rules};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

TEST(NewIdentifiers, ComeFromTheDeviceWhereTheCallIsRefused) {
    constexpr int notToBeHad = 77;
    const pid_t child = fork();
    if (child == 0) {
        if (!refuseGetrandom())
            _exit(notToBeHad);
        std::vector<Key> keys;
        addNew(keys, 100);
        expectNoRepeats(keys);
        _exit(haveVersionAndVariant(keys) && !testing::Test::HasFailure() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    if (WIFEXITED(status) && WEXITSTATUS(status) == notToBeHad)
        GTEST_SKIP() << "no filter of system calls here";
    EXPECT_EQ(status, 0);
}
#endif

TEST(NamedIdentifiers, ListsFindPairsOfNameAndIdentifier) {
    const ZList<std::pair<ZString, Id>> shapes{{L"None", 0}, {L"Bead", bead1}};
    EXPECT_EQ(shapes.find({L"bead", bead1}), 1); // names ignore case
    EXPECT_EQ(shapes.find({L"Bead", 0}), -1);
}

} // namespace
