#include <zarnex/containers/DLLNode.h>

DLLNode::~DLLNode() {
    prev_->next_ = next_;
    next_->prev_ = prev_;
}
