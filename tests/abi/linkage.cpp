// A host that takes every member of every exported array and list from the shared library.

#include <zarnex/foundation.h>

#include <cstdio>
#include <utility>

namespace {

// Reaches the protected members, which derived classes of hosts use.
template <class T>
class Derived : public ZXArray<T> {
public:
    int grow() {
        this->growArray(5, 1); // doubling starts at 32
        return this->getGrowSize(this->allocLength());
    }
};

// 0 if the members, taken together, did what their names say. What each does by itself is
// for the tests of the class; here they must be found and be the right ones.
template <class T>
int use(const ZXArray<T>& given) {
    const T value{};
    ZXArray<T> array(1, 4);
    array.setEmpty(value);
    array.setAll(array.getEmpty());
    array.set(0, value);
    array.get(1) = array.add(value);
    array[2] = array(2) = array.add();
    array.ins(0) = array.ins(0, value) = array.insert(value, 0);
    array.del(0);
    array.remove(0);

    const ZXArray<T> copy(array);
    int faults = copy.length() != array.length() || copy != array || !(copy == array);
    faults += copy.find(copy.get(0), 0) != 0;
    faults += copy.find(copy[0], 1) < 0 || !(copy(0) == value);
    faults += static_cast<const T*>(copy) == nullptr || static_cast<T*>(array) == nullptr;
    faults += copy.allocBytes() != copy.allocLength() * static_cast<int>(sizeof(T));
    faults += copy.isEmptySet() != 1 || copy.getStep() != 4;

    array.clear();
    array.setSize(9);
    array.reserve(20);
    array.compact();
    array.setAllocSize(7);
    array.resize(6);
    faults += array.length() != 6 || array.setStep(2) != 2;

    ZXArray<T> moved(std::move(array));
    ZXArray<T> assigned(&value, 1);
    assigned.swap(moved);
    faults += assigned.length() != 6 || moved.length() != 1;
    assigned = moved;
    assigned = ZXArray<T>();
    assigned.reset();
    faults += assigned.length() != 0 || given.length() != 0;
    return faults + (Derived<T>().grow() != 32);
}

template <class T>
int use(const ZList<T>& given) {
    const T value{};
    ZList<T> list{value, value};
    T* const first = &list[0];
    T* const added = &list.add(value);
    list.insert(value, 1);
    int faults = list.length() != 4 || &list(3) != added || &list[0] != first;
    faults += list.move(0, 3) != 1;

    ZList<T> other(list);
    faults += other != list || !(other == list) || other.find(value) != 0;
    list.join(other);
    list.inject(other, 0);
    list += other;
    list.remove(0);
    list.removeByIndex(0);
    auto position = list.it(1);
    list.remove(position);
    list.remove(list.it(0));
    faults += list.length() != 4 || other.length() != 0;

    int seen = 0;
    const auto isLast = [](T, void* left) { return --*static_cast<int*>(left) == 0 ? 1 : 0; };
    const auto count = [](T, void* sum) { ++*static_cast<int*>(sum); };
    list.forEach(count, &seen);
    for (auto at = list.rbegin(); at != list.rend(); ++at)
        ++seen;
    const ZList<T>& constant = list;
    for (auto at = constant.begin(); at != constant.end(); ++at)
        ++seen;
    int left = 2;
    faults += seen != 12 || list.firstThat(isLast, &left) != &list[1];

    ZList<T> moved(std::move(list));
    other = moved;
    other = std::move(moved);
    faults += other.length() != 4;
    other.empty();
    return faults + (other.length() != 0) + (given.length() != 0) + (&other[0] != &given[0]);
}

} // namespace

int main() {
    int faults = 0;
    int containers = 0;
#include "containers.inc" // a line for each: faults += use(ZXArray<int>()), ++containers;
    std::printf("%d containers, %d faults\n", containers, faults);
    return faults != 0 || containers == 0;
}
