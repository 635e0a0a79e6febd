#include "../rows.h"

namespace bench {

void geometryRows(Suite& suite) {
    suite.topic("geometry");
}

} // namespace bench
