#include "../rows.h"

namespace bench {

void sortRows(Suite& suite) {
    suite.topic("sorting");
}

} // namespace bench
