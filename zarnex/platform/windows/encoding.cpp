#include <zarnex/platform/platform.h>
#include <zarnex/platform/utf8.h>

#include <windows.h>

namespace zarnex::platform {

namespace {

bool isUtf8(unsigned int codePage) {
    return codePage == utf8CodePage || (codePage == ansiCodePage && GetACP() == utf8CodePage);
}

} // namespace

int bytesToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room) {
    if (isUtf8(codePage))
        return utf8ToWide(text, count, out, room);
    return MultiByteToWideChar(codePage, 0, text, count, out, room);
}

std::size_t likelyWideUnits(unsigned int codePage, const char* text, std::size_t count) {
    return isUtf8(codePage) ? utf8WideUnits(text, count) : count;
}

int wideToBytes(unsigned int codePage, const wchar_t* text, int count, char* out, int room) {
    if (isUtf8(codePage))
        return wideToUtf8(text, count, out, room);
    return WideCharToMultiByte(codePage, 0, text, count, out, room, nullptr, nullptr);
}

int characterBytes(const char* text) {
    if (isUtf8(ansiCodePage))
        return utf8CharacterBytes(text);
    const bool leads = IsDBCSLeadByte(static_cast<BYTE>(*text)) != 0;
    return leads && text[1] != '\0' ? 2 : 1;
}

} // namespace zarnex::platform
