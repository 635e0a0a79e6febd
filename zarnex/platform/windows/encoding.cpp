#include <zarnex/platform/platform.h>

#include <windows.h>

namespace zarnex::platform {

int bytesToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room) {
    return MultiByteToWideChar(codePage, 0, text, count, out, room);
}

int wideToBytes(unsigned int codePage, const wchar_t* text, int count, char* out, int room) {
    return WideCharToMultiByte(codePage, 0, text, count, out, room, nullptr, nullptr);
}

int characterBytes(const char* text) {
    const bool leads = IsDBCSLeadByte(static_cast<BYTE>(*text)) != 0;
    return leads && text[1] != '\0' ? 2 : 1;
}

} // namespace zarnex::platform
