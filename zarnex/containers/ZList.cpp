#include <zarnex/containers/ZList.h>

template class ZList<unsigned char>;
template class ZList<short>;
template class ZList<int>;
template class ZList<double>;
template class ZList<std::pair<int, unsigned char>>;
template class ZList<std::pair<int, int>>;
