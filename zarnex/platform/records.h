#pragma once

/// The plain records that the interface takes from the platform.
///
/// On Windows they are the system's own. All but GUID are only declared here, so
/// that this header neither needs the system's headers nor quarrels with them; GUID
/// has a small header to itself. On Linux they are defined with the same layout.

#if defined(_WIN32)

#include <guiddef.h>

struct tagPOINT;
struct tagNONCLIENTMETRICSW;
typedef tagNONCLIENTMETRICSW NONCLIENTMETRICSW;

#else

#include <cstdint>

/// A pixel position: two signed 32-bit integers.
struct tagPOINT {
    std::int32_t x;
    std::int32_t y;
};

/// A font as the platform describes it. Text is UTF-16 in 32 units.
struct tagLOGFONTW {
    std::int32_t lfHeight;
    std::int32_t lfWidth;
    std::int32_t lfEscapement;
    std::int32_t lfOrientation;
    std::int32_t lfWeight;
    unsigned char lfItalic;
    unsigned char lfUnderline;
    unsigned char lfStrikeOut;
    unsigned char lfCharSet;
    unsigned char lfOutPrecision;
    unsigned char lfClipPrecision;
    unsigned char lfQuality;
    unsigned char lfPitchAndFamily;
    char16_t lfFaceName[32];
};
typedef tagLOGFONTW LOGFONTW;

/// Sizes and fonts of the parts of a window outside its client area.
struct tagNONCLIENTMETRICSW {
    std::uint32_t cbSize;
    std::int32_t iBorderWidth;
    std::int32_t iScrollWidth;
    std::int32_t iScrollHeight;
    std::int32_t iCaptionWidth;
    std::int32_t iCaptionHeight;
    LOGFONTW lfCaptionFont;
    std::int32_t iSmCaptionWidth;
    std::int32_t iSmCaptionHeight;
    LOGFONTW lfSmCaptionFont;
    std::int32_t iMenuWidth;
    std::int32_t iMenuHeight;
    LOGFONTW lfMenuFont;
    LOGFONTW lfStatusFont;
    LOGFONTW lfMessageFont;
    std::int32_t iPaddedBorderWidth;
};
typedef tagNONCLIENTMETRICSW NONCLIENTMETRICSW;

static_assert(sizeof(NONCLIENTMETRICSW) == 504, "the layout of the platform's record");

// Several libraries declare this record; whoever comes first sets the macro.
#if !defined(GUID_DEFINED)
#define GUID_DEFINED

// The reserved name is the platform's, and part of the names of functions.
#if defined(__clang__) && __clang_major__ >= 13
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
/// A globally unique identifier. Its text form is the hexadecimal digits of Data1,
/// Data2, Data3, the first two bytes of Data4 and the other six, joined by hyphens.
typedef struct _GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    unsigned char Data4[8];
} GUID;
#if defined(__clang__) && __clang_major__ >= 13
#pragma clang diagnostic pop
#endif

static_assert(sizeof(GUID) == 16, "the layout of the platform's record");

#endif // GUID_DEFINED

#endif // _WIN32

namespace zarnex {

/// Room for the platform's recursive lock: a critical section on Windows, a
/// recursive mutex on Linux. The platform sources assert that it fits.
struct PlatformLock {
    alignas(8) unsigned char bytes[40];
};

} // namespace zarnex
