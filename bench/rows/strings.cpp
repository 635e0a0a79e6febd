#include "../rows.h"

namespace bench {

void stringRows(Suite& suite) {
    suite.topic("ZString");
}

} // namespace bench
