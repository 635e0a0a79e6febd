#include <zarnex/transforms/ArbTrans.h>

template class ArbTrans<DPoint>;
