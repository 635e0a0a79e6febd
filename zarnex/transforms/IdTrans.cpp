#include <zarnex/transforms/IdTrans.h>

template class IdTrans<DPoint>;
