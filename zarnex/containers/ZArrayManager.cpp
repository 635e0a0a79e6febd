#include <zarnex/containers/ZArrayManager.h>

ZArrayManager::ZArrayManager(unsigned long) {}
ZArrayManager::ZArrayManager(const ZArrayManager&) = default;
ZArrayManager& ZArrayManager::operator=(const ZArrayManager&) = default;
ZArrayManager::~ZArrayManager() = default;

void ZArrayManager::growHeap() {}

int ZArrayManager::printStatus(std::ostream&) {
    return 0;
}
