#include <zarnex/containers/ZXArray.h>

template class ZXArray<char>;
template class ZXArray<unsigned char>;
template class ZXArray<int>;
template class ZXArray<double>;
template class ZXArray<wchar_t>;
template class ZXArray<std::pair<int, double>>;
template class ZXArray<ZXArray<std::pair<int, double>>>;
template class ZXArray<ZList<double>>;
template class ZXArray<ZList<std::pair<int, int>>>;
