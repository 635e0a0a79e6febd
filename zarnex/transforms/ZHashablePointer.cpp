#include <zarnex/transforms/ZHashablePointer.h>

template class ZHashablePointer<ArbTrans<DPoint>>;
template class ZList<ZHashablePointer<ArbTrans<DPoint>>>;
