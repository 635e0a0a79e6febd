#include <zarnex/strings/FontUtils.h>

#include <zarnex/platform/platform.h>

#include <cstdint>

long FontUtils::getSystemFont(NONCLIENTMETRICSW& metrics) {
    constexpr auto failure = static_cast<std::int32_t>(0x80004005u);
    return zarnex::platform::readNonClientMetrics(metrics) ? 0 : failure;
}

FontUtils& FontUtils::operator=(const FontUtils&) {
    return *this;
}
