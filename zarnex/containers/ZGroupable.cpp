#include <zarnex/containers/ZGroupable.h>

#include <zarnex/containers/ZGroup.h>

template class ZList<ZGroup*>;
template class ZList<ZGroupable*>;

ZGroupable::~ZGroupable() {
    if (parent_ != nullptr)
        parent_->removeItem(this);
}

int ZGroupable::isGroup() {
    return 0;
}

ZGroup* ZGroupable::getPatriarch() const {
    ZGroup* top = parent_;
    if (top == nullptr)
        return nullptr;

    // A mark that is set again after twice as many steps each time is met again on every
    // circle. Source: Brent, "An improved Monte Carlo factorization algorithm", BIT 20 (1980).
    const ZGroup* mark = top;
    unsigned long long steps = 0;
    unsigned long long reach = 1;
    while (top->parent_ != nullptr) {
        top = top->parent_;
        if (top == mark)
            break;
        if (++steps == reach) {
            mark = top;
            steps = 0;
            reach *= 2;
        }
    }
    return top;
}

int ZGroupable::operator==(ZGroupable* other) {
    return other != nullptr && parent_ == other->parent_ && isGroup() == other->isGroup();
}

int ZGroupable::operator!=(const ZGroupable* other) {
    return *this != const_cast<ZGroupable*>(other); // isGroup() is not const
}
