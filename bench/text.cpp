#include "text.h"

namespace bench {

std::string time(double nanoseconds) {
    const char* unit = "ns";
    for (const char* larger : {"\xC2\xB5s", "ms", "s"}) {
        if (nanoseconds < 999.5)
            break;
        nanoseconds /= 1000.0;
        unit = larger;
    }
    const int decimals = nanoseconds < 9.995 ? 2 : nanoseconds < 99.95 ? 1 : 0;
    return text("%.*f %s", decimals, nanoseconds, unit);
}

} // namespace bench
