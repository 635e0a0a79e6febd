#include "../rows.h"

namespace bench {

void pointRows(Suite& suite) {
    suite.topic("points");
}

} // namespace bench
