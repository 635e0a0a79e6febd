#include "../rows.h"

namespace bench {

void randomRows(Suite& suite) {
    suite.topic("random numbers");
}

} // namespace bench
