#include <zarnex/containers/Stack.h>

Stack::~Stack() = default;
