#include <zarnex/containers/ZSortList.h>

template class ZSortList<int>;
template class ZSortList<double>;
