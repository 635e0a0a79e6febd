#include <zarnex/containers/ZArray.h>

template class ZArray<float>;
