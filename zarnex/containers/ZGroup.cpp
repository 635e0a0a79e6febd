#include <zarnex/containers/ZGroup.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

constexpr int growth = 32; // members

std::size_t bytes(int members) {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the members are kept as pointers
    return static_cast<std::size_t>(members) * sizeof(ZGroupable*);
}

} // namespace

ZGroup::ZGroup(int n) : items_(nullptr), capacity_(n == 0 ? 1 : n) {
    if (capacity_ > 0)
        items_ = static_cast<ZGroupable**>(std::malloc(bytes(capacity_)));
    if (items_ == nullptr)
        capacity_ = 0;
}

ZGroup::~ZGroup() {
    emptyGroup();
    std::free(items_);
}

int ZGroup::isGroup() {
    return 1;
}

int ZGroup::removeItem(ZGroupable* item) {
    const int index = itemToIndex(item);
    if (index < 0)
        return -1;
    item->lostParent();
    --count_;
    items_[index] = items_[count_];
    items_[count_] = nullptr;
    return 0;
}

int ZGroup::itemToIndex(ZGroupable* item) {
    if (item == nullptr || item->parent_ != this)
        return -1;
    ZGroupable** const end = items_ + count_;
    ZGroupable** const found = std::find(items_, end, item);
    return found != end ? static_cast<int>(found - items_) : -1;
}

void ZGroup::emptyGroup() {
    for (int i = 0; i < count_; ++i) {
        items_[i]->lostParent();
        items_[i] = nullptr;
    }
    count_ = 0;
}

void ZGroup::apply(void (*visit)(ZGroupable*)) {
    if (visit == nullptr)
        return;
    for (int i = 0; i < count_; ++i)
        visit(items_[i]);
}

void ZGroup::traverse(void (*visit)(ZGroupable*)) {
    if (visit == nullptr)
        return;
    // A path of its own instead of recursion: however deep groups nest, it fits.
    struct Place {
        ZGroup* group;
        int next;
    };
    std::vector<Place> path{{this, 0}};
    while (!path.empty()) {
        Place& place = path.back();
        ZGroupable* const item = place.group->indexToItem(place.next);
        if (item == nullptr) {
            path.pop_back();
            continue;
        }
        ++place.next;
        ZGroup* const inner = item->isGroup() != 0 ? dynamic_cast<ZGroup*>(item) : nullptr;
        if (inner == nullptr)
            visit(item);
        else if (inner != this) // each group has one parent: a circle closes here or nowhere
            path.push_back({inner, 0});
    }
}

ZList<ZGroupable*> ZGroup::getItemList() {
    ZList<ZGroupable*> list;
    for (int i = 0; i < count_; ++i)
        list.add(items_[i]);
    return list;
}

int ZGroup::operator!=(const ZGroup* other) const {
    return other == nullptr ||
           !std::equal(items_, items_ + count_, other->items_, other->items_ + other->count_);
}

int ZGroup::grow() {
    if (capacity_ > (std::numeric_limits<int>::max)() - growth)
        return 0;
    void* const grown = std::realloc(items_, bytes(capacity_ + growth));
    if (grown == nullptr)
        return 0;
    items_ = static_cast<ZGroupable**>(grown);
    capacity_ += growth;
    return 1;
}
