#include "../rows.h"

namespace bench {

void encodingRows(Suite& suite) {
    suite.topic("encodings");
}

} // namespace bench
