#include <zarnex/geometry/ZVector.h>

template class ZVector<short>;
