#include "../rows.h"

namespace bench {

void quantityRows(Suite& suite) {
    suite.topic("quantities");
}

} // namespace bench
