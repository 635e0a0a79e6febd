#include <zarnex/geometry/ZTPoint.h>

template class ZTPoint<double>;
