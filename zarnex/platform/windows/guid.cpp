#include <zarnex/platform/platform.h>

#include <cstring>
#include <rpc.h>

namespace zarnex::platform {

bool createGuid(GUID& guid) {
    const RPC_STATUS status = UuidCreate(&guid);
    // The second is a success too: unique by this machine, without a network address.
    if (status == RPC_S_OK || status == RPC_S_UUID_LOCAL_ONLY)
        return true;
    guid = GUID{};
    return false;
}

bool guidToText(const GUID& guid, wchar_t (&text)[guidTextSize]) {
    GUID given = guid; // not every edition of the header takes a const one
    RPC_WSTR made = nullptr;
    if (UuidToStringW(&given, &made) != RPC_S_OK)
        return false;
    std::memcpy(text, made, sizeof text);
    RpcStringFreeW(&made);
    return true;
}

bool guidFromText(const wchar_t* text, GUID& guid) {
    // The system takes a pointer that is not const, but only reads.
    const auto given = reinterpret_cast<RPC_WSTR>(const_cast<wchar_t*>(text));
    GUID read;
    if (UuidFromStringW(given, &read) != RPC_S_OK)
        return false;
    guid = read;
    return true;
}

} // namespace zarnex::platform
