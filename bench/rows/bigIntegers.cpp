#include "../rows.h"

namespace bench {

void bigIntegerRows(Suite& suite) {
    suite.topic("big integers");
}

} // namespace bench
