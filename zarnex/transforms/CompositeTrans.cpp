#include <zarnex/transforms/CompositeTrans.h>

template class CompositeTrans<DPoint>;
