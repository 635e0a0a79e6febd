#include <zarnex/platform/platform.h>
#include <zarnex/platform/posix/utf8.h>

#include <climits>
#include <cstring>
#include <cwchar>

namespace zarnex::platform {

namespace {

bool isUtf8(unsigned int codePage) {
    return codePage == ansiCodePage || codePage == utf8CodePage;
}

} // namespace

int bytesToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room) {
    if (!isUtf8(codePage) || text == nullptr || count == 0 || room < 0)
        return 0;
    const std::size_t length = count < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(count);
    auto* next = reinterpret_cast<const unsigned char*>(text);
    const unsigned char* const end = next + length;
    int written = 0;
    while (next != end) {
        if (written == (room > 0 ? room : INT_MAX))
            return 0;
        const char32_t character = decodeUtf8(next, end);
        if (room > 0)
            out[written] = static_cast<wchar_t>(character);
        ++written;
    }
    return written;
}

int wideToBytes(unsigned int codePage, const wchar_t* text, int count, char* out, int room) {
    if (!isUtf8(codePage) || text == nullptr || count == 0 || room < 0)
        return 0;
    const std::size_t length = count < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(count);
    int written = 0;
    for (std::size_t i = 0; i < length; ++i) {
        char bytes[4];
        const int size = encodeUtf8(static_cast<char32_t>(text[i]), bytes);
        if (size > (room > 0 ? room : INT_MAX) - written)
            return 0;
        if (room > 0) {
            std::memcpy(out + written, bytes, static_cast<std::size_t>(size));
        }
        written += size;
    }
    return written;
}

int characterBytes(const char* text) {
    // The decoder looks at a further byte only where the sequence asks for one, and
    // a terminator ends every sequence: no end is needed.
    const auto* next = reinterpret_cast<const unsigned char*>(text);
    decodeUtf8(next, next + 4);
    return static_cast<int>(next - reinterpret_cast<const unsigned char*>(text));
}

} // namespace zarnex::platform
