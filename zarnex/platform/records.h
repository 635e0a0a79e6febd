#pragma once

/// @file
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
    std::int32_t x; ///< pixels to the right
    std::int32_t y; ///< pixels down
};

/// A font as the platform describes it.
struct tagLOGFONTW {
    std::int32_t lfHeight;          ///< of a cell, in logical units; below 0 of a character
    std::int32_t lfWidth;           ///< average, in logical units; 0 for what suits the height
    std::int32_t lfEscapement;      ///< of the line against the x axis, in tenths of a degree
    std::int32_t lfOrientation;     ///< of each character, in tenths of a degree
    std::int32_t lfWeight;          ///< 0 to 1000: 400 is normal, 700 bold; 0 for any
    unsigned char lfItalic;         ///< not 0 for italic
    unsigned char lfUnderline;      ///< not 0 for underlined
    unsigned char lfStrikeOut;      ///< not 0 for struck out
    unsigned char lfCharSet;        ///< the platform's number of a character set; 1 is the default
    unsigned char lfOutPrecision;   ///< how near the output has to come, a number of the platform
    unsigned char lfClipPrecision;  ///< how to clip characters, a number of the platform
    unsigned char lfQuality;        ///< of the rendering, a number of the platform
    unsigned char lfPitchAndFamily; ///< the pitch in bits 0 and 1, the family in bits 4 to 7
    char16_t lfFaceName[32];        ///< the name of the typeface, UTF-16 with a terminator
};

/// The name that the platform's functions use.
typedef tagLOGFONTW LOGFONTW;

/// Sizes and fonts of the parts of a window outside its client area. Sizes are in pixels.
struct tagNONCLIENTMETRICSW {
    std::uint32_t cbSize;            ///< of this record, in bytes: 504
    std::int32_t iBorderWidth;       ///< of the border of a window that can be sized
    std::int32_t iScrollWidth;       ///< of a vertical scroll bar
    std::int32_t iScrollHeight;      ///< of a horizontal scroll bar
    std::int32_t iCaptionWidth;      ///< of a button in a title bar
    std::int32_t iCaptionHeight;     ///< of a title bar
    LOGFONTW lfCaptionFont;          ///< of a title bar
    std::int32_t iSmCaptionWidth;    ///< of a button in a small title bar
    std::int32_t iSmCaptionHeight;   ///< of a small title bar
    LOGFONTW lfSmCaptionFont;        ///< of a small title bar
    std::int32_t iMenuWidth;         ///< of a button in a menu bar
    std::int32_t iMenuHeight;        ///< of a menu bar
    LOGFONTW lfMenuFont;             ///< of menus
    LOGFONTW lfStatusFont;           ///< of status bars and tooltips
    LOGFONTW lfMessageFont;          ///< of message boxes
    std::int32_t iPaddedBorderWidth; ///< between the border and what it encloses
};

/// The name that the platform's functions use.
typedef tagNONCLIENTMETRICSW NONCLIENTMETRICSW;

static_assert(sizeof(NONCLIENTMETRICSW) == 504, "the layout of the platform's record");

#if !defined(GUID_DEFINED)
/// Several libraries declare GUID; whoever comes first sets this macro.
#define GUID_DEFINED

// The reserved name is the platform's, and part of the names of functions.
#if defined(__clang__) && __clang_major__ >= 13
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
/// A globally unique identifier. Its text form is the hexadecimal digits of Data1,
/// Data2, Data3, the first two bytes of Data4 and the other six, joined by hyphens.
typedef struct _GUID {
    std::uint32_t Data1;    ///< digits 1 to 8 of the text form
    std::uint16_t Data2;    ///< digits 9 to 12
    std::uint16_t Data3;    ///< digits 13 to 16
    unsigned char Data4[8]; ///< the other 16 digits, two a byte
} GUID;
#if defined(__clang__) && __clang_major__ >= 13
#pragma clang diagnostic pop
#endif

static_assert(sizeof(GUID) == 16, "the layout of the platform's record");

#endif // GUID_DEFINED

#endif // _WIN32
