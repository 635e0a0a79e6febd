#include <zarnex/transforms/ZMatrix.h>

template class ZMatrix<double>;
