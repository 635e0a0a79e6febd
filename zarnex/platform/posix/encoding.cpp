#include <zarnex/platform/platform.h>
#include <zarnex/platform/posix/codePages.h>
#include <zarnex/platform/utf8.h>

namespace zarnex::platform {

namespace {

bool isUtf8(unsigned int codePage) {
    return codePage == ansiCodePage || codePage == utf8CodePage;
}

} // namespace

int bytesToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room) {
    return isUtf8(codePage) ? utf8ToWide(text, count, out, room)
                            : codePageToWide(codePage, text, count, out, room);
}

std::size_t likelyWideUnits(unsigned int codePage, const char* text, std::size_t count) {
    return isUtf8(codePage) ? utf8WideUnits(text, count) : count;
}

int wideToBytes(unsigned int codePage, const wchar_t* text, int count, char* out, int room) {
    return isUtf8(codePage) ? wideToUtf8(text, count, out, room)
                            : wideToCodePage(codePage, text, count, out, room);
}

int characterBytes(const char* text) {
    return utf8CharacterBytes(text);
}

} // namespace zarnex::platform
