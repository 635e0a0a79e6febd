#include <zarnex/foundation.h>

#include <cstdio>

static_assert(__cplusplus == 201703L, "hosts may still be C++17");

int main() {
    MiniLock lock;
    const MiniGuard guard(lock);

    ZXArray<ZString> names;
    names.add(ZString(L"hoop"));
    names[2] = L"needle"; // length 3

    try {
        throw ZarnexException("thread broke", 12, &names);
    } catch (const std::exception& caught) {
        ZString line;
        line.set(L"%d names, the last is %s: ", names.length(), names[2].getWide());
        std::printf("%s%s\n", line.getAnsi(), caught.what());
    }
    return 0;
}
