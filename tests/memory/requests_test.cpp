// What arrays, strings and lists ask of the heap: hosts that replace the operators new and delete
// see each request and each release of theirs.

#include "tests/memory/failingHeap.h"

#include <zarnex/containers/ZList.h>
#include <zarnex/containers/ZSortList.h>
#include <zarnex/containers/ZXArray.h>
#include <zarnex/strings/ZMultiByteString.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/ZWideString.h>
#include <zarnex/strings/conversions.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <ostream>
#include <utility>
#include <vector>

namespace {

enum Form { plain, noThrow, array, noThrowArray };

struct Request {
    Form form;
    std::size_t bytes;

    bool operator==(const Request&) const = default;
};

void PrintTo(const Request& request, std::ostream* out) {
    static const char* const forms[] = {"new", "new(nothrow)", "new[]", "new(nothrow)[]"};
    *out << request.bytes << " bytes by " << forms[request.form];
}

/// What an operation has asked for; without memory of its own.
struct Asked {
    static constexpr int most = 64;
    struct {
        Request request;
        void* block; // null once it was released
    } records[most];
    int count = 0;
    int wrongReleases = 0; // of unknown blocks, and in another form than asked for
    bool isOn = false;
} asked;

void* ask(Form form, std::size_t bytes) {
    void* const block = std::malloc(bytes);
    if (asked.isOn && asked.count < Asked::most)
        asked.records[asked.count++] = {{form, bytes}, block};
    return block;
}

void* orThrow(void* block) {
    return block != nullptr ? block : throw std::bad_alloc();
}

void release(void* block, bool isArray) {
    if (asked.isOn && block != nullptr) {
        bool isRight = false;
        for (int i = 0; i < asked.count; ++i) {
            auto& record = asked.records[i];
            if (record.block != block)
                continue;
            isRight = isArray == (record.request.form >= array);
            record.block = nullptr;
        }
        asked.wrongReleases += !isRight;
    }
    std::free(block);
}

} // namespace

void* operator new(std::size_t bytes) {
    return orThrow(ask(plain, bytes));
}
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return ask(noThrow, bytes);
}
void* operator new[](std::size_t bytes) {
    return orThrow(ask(array, bytes));
}
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return ask(noThrowArray, bytes);
}
void operator delete(void* block) noexcept {
    release(block, false);
}
void operator delete(void* block, std::size_t) noexcept {
    release(block, false);
}
void operator delete[](void* block) noexcept {
    release(block, true);
}
void operator delete[](void* block, std::size_t) noexcept {
    release(block, true);
}

namespace {

using Ints = ZXArray<int>;

// What operations read: made before they are watched.
const ZString wideText(L"ab");
const ZMultiByteString narrowText("ab");

// Once its storage was moved away, a text still has its step.
template <class Text>
void growAndGrowAgain(Text text) {
    text.resize(64);
    const Text taken(std::move(text));
    text.resize(64);
}

std::vector<Request> repeated(int times, const std::vector<Request>& requests) {
    std::vector<Request> all;
    for (; times > 0; --times)
        all.insert(all.end(), requests.begin(), requests.end());
    return all;
}

TEST(Requests, ArraysAndStringsAskOnceForEachGrowthAndListsForEachElement) {
    constexpr Request node{plain, sizeof(ZListNode<int>)};
    constexpr std::size_t unit = sizeof(wchar_t);
    const auto lists = [](std::size_t slots) { // behind their number, as they are destroyed
        return Request{noThrowArray, sizeof(std::size_t) + slots * sizeof(ZList<double>)};
    };
    const struct {
        const char* name;
        void (*operation)();
        std::vector<Request> requests;
    } rows[] = {
        {"an empty array", [] { Ints array; }, {}},
        {"doubling from 32 slots",
         [] {
             Ints array;
             for (int i = 0; i < 65; ++i)
                 array.add(i);
         },
         {{noThrow, 128}, {noThrow, 256}, {noThrow, 512}}},
        {"whole steps, straight to where they are needed",
         [] {
             ZXArray<double> array(5, 10);
             array[9] = 1.0;
             array.ins(34, 2.0);
         },
         {{noThrow, 40}, {noThrow, 80}, {noThrow, 320}}},
        {"room that is asked for, cut, filled and given back",
         [] {
             Ints array;
             array.reserve(1000);
             array.setAllocSize(10);
             array.setSize(5);
             array.add(1);
             array.ins(0, 2);
             array.del(1);
             array.compact();
             array.resize(3);
             array.reset();
         },
         {{noThrow, 4096}, {noThrow, 40}, {noThrow, 24}, {noThrow, 12}}},
        {"copies; no new room where there is as much",
         [] {
             const wchar_t text[] = L"abc";
             const ZXArray<wchar_t> array(text, 4);
             ZXArray<wchar_t> copy(array);
             copy = array;
         },
         {{noThrow, 32 * sizeof(wchar_t)}, {noThrow, 32 * sizeof(wchar_t)}}},
        {"arrays handed over",
         [] {
             Ints array(5, 1);
             Ints other(std::move(array));
             array.swap(other);
             other = std::move(array);
         },
         {{noThrow, 20}}},
        {"elements with destructors",
         [] {
             ZXArray<ZList<double>> array;
             array[32];
             array.compact();
         },
         {lists(64), lists(33)}},
        {"an element, a node",
         [] {
             ZList<int> list{1, 2};
             list.add(3);
             list.insert(4, 1);
             ZSortList<int> sorted;
             sorted.add(5);
         },
         {node, node, node, node, node}},
        {"lists copied",
         [] {
             const ZList<int> list{1, 2};
             ZList<int> copy(list);
             copy = list;
         },
         {node, node, node, node, node, node}},
        {"texts by steps of 32, however they are made",
         [] {
             growAndGrowAgain(ZString());
             growAndGrowAgain(ZString(L"a"));
             growAndGrowAgain(ZString(L"a", 1));
             growAndGrowAgain(ZString("a"));
             growAndGrowAgain(ZString("a", 1));
             growAndGrowAgain(wideText.subString(1, 1));
             growAndGrowAgain(utf8ToStr(narrowText));
             growAndGrowAgain(ZWideString(L"a"));
             growAndGrowAgain(ZWideString(L"a", 1));
             growAndGrowAgain(ZWideString("a"));
             growAndGrowAgain(ZWideString("a", 1));
         },
         repeated(11, {{noThrow, 32 * unit}, {noThrow, 96 * unit}, {noThrow, 96 * unit}})},
        {"texts of bytes alike",
         [] {
             growAndGrowAgain(ZMultiByteString());
             growAndGrowAgain(ZMultiByteString("a"));
             growAndGrowAgain(ZMultiByteString("a", 1));
             growAndGrowAgain(strToUtf8(wideText));
         },
         repeated(4, {{noThrow, 32}, {noThrow, 96}, {noThrow, 96}})},
        {"texts that are sized, exactly, and by the step of the one that is copied",
         [] {
             ZString text(L"abc");
             const ZString sized(40, 5);
             ZString copy(sized);
             copy.resize(51);
             text = sized;
             text.resize(64);
             ZString(L"0123456789012345678901234567890").findAndReplace(L"9", L"-");
         },
         {{noThrow, 32 * unit},
          {noThrow, 41 * unit},
          {noThrow, 41 * unit},
          {noThrow, 55 * unit},
          {noThrow, 64 * unit},
          {noThrow, 96 * unit},
          {noThrow, 32 * unit},
          {noThrow, 32 * unit}}},
        {"lists joined, handed over, emptied",
         [] {
             ZList<int> list{1, 2};
             ZList<int> other(std::move(list));
             list.join(other);
             other.inject(list, 0);
             other.remove(1);
             other.empty();
         },
         {node, node}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        asked = {};
        failing::arm(0, failing::Mode::one);
        asked.isOn = true;
        row.operation();
        asked.isOn = false;
        failing::disarm();

        std::vector<Request> requests;
        int kept = 0;
        for (int i = 0; i < asked.count; ++i) {
            requests.push_back(asked.records[i].request);
            kept += asked.records[i].block != nullptr;
        }
        EXPECT_EQ(requests, row.requests);
        EXPECT_EQ(kept, 0);
        EXPECT_EQ(asked.wrongReleases, 0);
        EXPECT_EQ(failing::requests(), asked.count); // the operators' own, and nobody else's
    }
}

} // namespace
