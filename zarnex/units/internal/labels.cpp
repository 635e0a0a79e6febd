#include <zarnex/units/internal/labels.h>

#include <zarnex/runtime/internal/Immortal.h>

namespace zarnex::detail {

ZString& millimeterLabel() {
    static const Immortal<ZString> label(L"mm");
    return *label;
}

ZString& inchLabel() {
    static const Immortal<ZString> label(L"in");
    return *label;
}

ZString& millimeterPerSecLabel() {
    static const Immortal<ZString> label(L"mm/s");
    return *label;
}

ZString& degreeLabel() {
    static const Immortal<ZString> label(L"\u00B0");
    return *label;
}

} // namespace zarnex::detail
