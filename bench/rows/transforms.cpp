#include "../rows.h"

namespace bench {

void transformRows(Suite& suite) {
    suite.topic("transforms");
}

} // namespace bench
