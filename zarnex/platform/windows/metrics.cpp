#include <zarnex/platform/platform.h>

#include <windows.h>

namespace zarnex::platform {

static_assert(sizeof(NONCLIENTMETRICSW) == 504);

bool readNonClientMetrics(NONCLIENTMETRICSW& metrics) {
    metrics.cbSize = sizeof metrics;
    return SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) != 0;
}

} // namespace zarnex::platform
