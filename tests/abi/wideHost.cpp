// A host that is compiled with the other wchar_t than the library. What has nothing to do with
// wide text works; with USES_WIDE_TEXT the host must not link, and the linker tell why.
#include <zarnex/foundation.h>

int main() {
#if defined(USES_WIDE_TEXT)
    return ZString(L"wide").length();
#else
    DPoint point(3.0, 4.0);
    point.rotate(90.0, DPoint(0.0, 0.0));
    const ZList<int> list{1, 2};
    return list.length() == 2 && ZMillimeter(2.0) == ZMillimeter(2.0) && point.x < 0.0 ? 0 : 1;
#endif
}
