#include <zarnex/geometry/ZCoord.h>

template class ZCoord<short>;
