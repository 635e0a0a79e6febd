// Arrays, lists, groups and sorting.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <optional>
#include <utility>
#include <vector>

namespace {

using Ints = ZXArray<int>;

/// 0, 1 and so on; all that is added holds 7.
Ints counted(int length) {
    Ints array;
    array.setEmpty(7);
    for (int i = 0; i < length; ++i)
        array.add(i);
    return array;
}

// What operations read: made before the heap fails.
const Ints full = counted(32); // what it has allocated
const Ints forty = counted(40);

/// A list whose ring runs through `length` elements in both directions.
template <class T>
bool isRing(const ZList<T>& list, long length) {
    long forward = 0, backward = 0;
    for (auto at = list.begin(); at != list.end(); ++at)
        ++forward;
    for (auto at = list.rbegin(); at != list.rend(); ++at)
        ++backward;
    return list.length() == length && forward == length && backward == length;
}

/// `edit` makes a list of 3, 1, 2 a ring of `done` elements or, where it throws, of `left`.
template <class List = ZList<int>, class Edit>
auto listed(long left, long done, Edit edit) {
    return [=](Trial& trial) {
        List list;
        for (const int value : {3, 1, 2})
            list.add(value);
        trial.attempt([&] { edit(list); });
        trial.expect(isRing(list, trial.threw() ? left : done));
    };
}

class Item : public ZGroupable {};

class ByValue : public QSort::Callback {
public:
    int compare(const void* a, const void* b) override {
        return *static_cast<const int*>(a) - *static_cast<const int*>(b);
    }
};

} // namespace

Group arrayOperations() {
    return {
        "`ZXArray`",
        {
            {"ZXArray(n, step)", goesOn,
             [](Trial& t) {
                 std::optional<Ints> array;
                 t.attempt([&] { array.emplace(40, 8); });
                 t.expect(array && array->length() == (t.failed() ? 0 : 40));
                 (*array)[50] = 5;
                 t.expect(array->length() == 51);
             }},
            {"ZXArray(values, n)", goesOn,
             editedOrNot(full, [](Ints& a) { a = Ints(static_cast<const int*>(forty), 3); })},
            {"ZXArray(ZXArray)", goesOn, editedOrNot(full, [](Ints& a) { a = Ints(forty); })},
            {"ZXArray = ZXArray", goesOn, editedOrNot(full, [](Ints& a) { a = forty; })},
            {"ZXArray add", endsAlloc, edited(full, [](Ints& a) { a.add(9); })},
            {"ZXArray add, an element of its own", endsAlloc,
             edited(full, [](Ints& a) { a.add(a[31]); })},
            {"ZXArray[] beyond the end", endsAlloc, edited(full, [](Ints& a) { a[99] = 9; })},
            {"ZXArray set beyond the end", endsAlloc, edited(full, [](Ints& a) { a.set(40, 9); })},
            {"ZXArray ins", endsAlloc, edited(full, [](Ints& a) { a.ins(0, -1); })},
            {"ZXArray ins beyond the end", endsAlloc, edited(full, [](Ints& a) { a.ins(70, 9); })},
            {"ZXArray reserve", endsAlloc, edited(full, [](Ints& a) { a.reserve(1000); })},
            {"ZXArray setSize", goesOn, editedOrNot(full, [](Ints& a) { a.setSize(100); })},
            {"ZXArray resize", goesOn, editedOrNot(full, [](Ints& a) { a.resize(100); })},
            {"ZXArray resize downward", goesOn, edited(full, [](Ints& a) { a.resize(8); })},
            {"ZXArray setAllocSize", goesOn,
             editedOrNot(full, [](Ints& a) { a.setAllocSize(10); })},
            {"ZXArray compact", goesOn, edited(forty, [](Ints& a) { a.compact(); })},
            {"ZXArray<ZString> grown and copied", endsAlloc,
             [](Trial& t) {
                 ZXArray<ZString> texts;
                 texts.add(ZString(L"a"));
                 t.attempt([&] {
                     texts.add(ZString(L"b"));
                     texts[40] = L"c";
                     const ZXArray<ZString> copy(texts);
                     t.expect(copy.length() == 0 ? t.failed() : copy[40].isEqual(L"c"));
                 });
                 t.expect(texts.length() == 41 && texts[0].isEqual(L"a") && texts[1].isEqual(L"b"));
             }},
            {"ZXArray<ZList> copied", endsAlloc | throwsBad,
             [](Trial& t) {
                 ZXArray<ZList<double>> lists;
                 lists.add(ZList<double>{1.0, 2.0});
                 lists.add(ZList<double>{3.0});
                 ZXArray<ZList<double>> copy;
                 t.attempt([&] { copy = lists; });
                 t.expect(copy.length() == 2 || (t.failed() && copy.length() == 0));
                 for (int i = 0; i < copy.length(); ++i)
                     t.expect(isRing(copy[i], copy[i].length()));
                 t.expect(isRing(lists[0], 2) && isRing(lists[1], 1));
             }},
        },
    };
}

Group listOperations() {
    return {
        "`ZList`, `ZSortList`, `DLList`, `QSort`",
        {
            {"ZList add", throwsBad, listed(3, 4, [](auto& l) { l.add(4); })},
            {"ZList insert", throwsBad, listed(3, 4, [](auto& l) { l.insert(0, 1); })},
            {"ZList{...}", throwsBad,
             listed(3, 2,
                    [](auto& l) {
                        l = ZList<int>{1, 2};
                    })},
            {"ZList copied", throwsBad, listed(3, 3, [](auto& l) { l = ZList<int>(l); })},
            {"ZList move", throwsBad, // taken out and not put back
             listed(2, 3, [](auto& l) { l.move(0, 2); })},
            {"ZSortList add", throwsBad, listed<ZSortList<int>>(3, 4, [](auto& l) { l.add(2); })},
            {"ZSortList copied", throwsBad,
             listed<ZSortList<int>>(3, 3, [](auto& l) { l = ZSortList<int>(l); })},
            {"ZSortList move", throwsBad, // the element is out, as it is with memory
             listed<ZSortList<int>>(2, 2, [](auto& l) { l.move(0, 1); })},
            {"ZList =", throwsBad,
             [](Trial& t) {
                 const ZList<int> source{1, 2, 3};
                 ZList<int> list{4};
                 t.attempt([&] { list = source; });
                 t.expect(isRing(list, list.length()));
                 t.expectDone(list == source);
             }},
            {"ZList<ZString> add", endsAlloc | throwsBad,
             [](Trial& t) {
                 ZList<ZString> list;
                 const ZString text(L"abc");
                 t.attempt([&] { list.add(text); });
                 t.expect(isRing(list, t.threw() ? 0 : 1));
             }},
            {"ZList[] of an empty list", throwsBad,
             [](Trial& t) {
                 ZList<DPoint> list;
                 t.attempt([&] { list[0] = DPoint(1.0, 2.0); });
                 t.expect(isRing(list, 0));
             }},
            {"ZList joined, injected, removed, handed over", asksNothing,
             listed(2, 2,
                    [](auto& l) {
                        ZList<int> other;
                        other.join(l);
                        l.inject(other, 0);
                        l.remove(1);
                        ZList<int> moved(std::move(l));
                        l = std::move(moved);
                    })},
            {"DLList insert, join, remove", asksNothing,
             [](Trial& t) {
                 class Node : public DLLNode {
                 } nodes[2];
                 DLList list, other;
                 t.attempt([&] {
                     list.insert(nodes[0]);
                     other.insert(nodes[1], 0);
                     list.join(other);
                     t.expect(list.remove() == &nodes[1] && list.remove() == &nodes[0]);
                 });
                 t.expect(list.isEmpty() && other.isEmpty());
             }},
            {"QSort of 2000", goesOn,
             [](Trial& t) {
                 std::vector<int> values;
                 for (int i = 0; i < 2000; ++i)
                     values.push_back(i * 7919 % 2003);
                 ByValue byValue;
                 t.attempt([&] { QSort::sort(values.data(), 2000, sizeof(int), byValue); });
                 for (std::size_t i = 1; i < values.size(); ++i)
                     t.expect(values[i - 1] <= values[i]);
             }},
        },
    };
}

Group treeOperations() {
    return {
        "`ZGroup`",
        {
            {"ZGroup(n)", goesOn,
             [](Trial& t) {
                 Item item;
                 std::optional<ZGroup> group;
                 t.attempt([&] { group.emplace(5); });
                 t.expect(group && group->addItem(&item) == 0 && group->size() == 1);
             }},
            {"ZGroup addItem", goesOn,
             [](Trial& t) {
                 Item items[2];
                 ZGroup group(1);
                 group.addItem(&items[0]);
                 int status = 0;
                 t.attempt([&] { status = group.addItem(&items[1]); });
                 t.expect(status == (t.failed() ? -1 : 0) && group.size() == 2 + status);
                 t.expect(group.addItem(&items[1]) == (t.failed() ? 0 : -1) && group.size() == 2);
             }},
            {"ZGroup getItemList", throwsBad,
             [](Trial& t) {
                 Item items[3];
                 ZGroup group(3);
                 for (Item& item : items)
                     group.addItem(&item);
                 long length = 3;
                 t.attempt([&] { length = group.getItemList().length(); });
                 t.expect(length == 3 && group.size() == 3);
             }},
            {"ZGroup traverse", throwsBad,
             [](Trial& t) {
                 Item item;
                 ZGroup outer(1), middle(1), inner(1);
                 outer.addItem(&middle);
                 middle.addItem(&inner);
                 inner.addItem(&item);
                 static int visits;
                 t.attempt([&] { outer.traverse([](ZGroupable*) { ++visits; }); });
                 t.expectDone(visits == 1);
                 t.expect(outer.size() == 1 && item.getPatriarch() == &outer);
             }},
            {"ZGroup removeItem, emptyGroup", asksNothing,
             [](Trial& t) {
                 Item items[2];
                 ZGroup group(2);
                 group.addItem(&items[0]);
                 group.addItem(&items[1]);
                 t.attempt([&] { t.expect(group.removeItem(&items[0]) == 0); });
                 t.attempt([&] { group.emptyGroup(); });
                 t.expect(group.size() == 0);
             }},
        },
    };
}
