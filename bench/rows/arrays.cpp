#include "../rows.h"

namespace bench {

void arrayRows(Suite& suite) {
    suite.topic("array");
}

} // namespace bench
