#include <zarnex/platform/platform.h>

namespace zarnex::platform {

bool readNonClientMetrics(NONCLIENTMETRICSW&) {
    return false;
}

} // namespace zarnex::platform
