#include <zarnex/transforms/Z2DMatrix.h>

template class Z2DMatrix<double>;
