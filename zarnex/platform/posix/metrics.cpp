#include <zarnex/platform/platform.h>

namespace zarnex::platform {

bool readNonClientMetrics(NONCLIENTMETRICSW& metrics) {
    metrics.cbSize = sizeof metrics;
    return false;
}

} // namespace zarnex::platform
