#include "../rows.h"

namespace bench {

void identifierRows(Suite& suite) {
    suite.topic("identifiers");
}

} // namespace bench
