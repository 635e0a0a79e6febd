#include <zarnex/units/internal/labels.h>

namespace zarnex::detail {

ZString& millimeterLabel() {
    static ZString& label = *new ZString(L"mm");
    return label;
}

ZString& inchLabel() {
    static ZString& label = *new ZString(L"in");
    return label;
}

ZString& millimeterPerSecLabel() {
    static ZString& label = *new ZString(L"mm/s");
    return label;
}

ZString& degreeLabel() {
    static ZString& label = *new ZString(L"\u00B0");
    return label;
}

} // namespace zarnex::detail
