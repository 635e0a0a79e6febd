#include <zarnex/transforms/ReverseTrans.h>

template class ReverseTrans<DPoint>;
