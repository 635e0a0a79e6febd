#pragma once

#include <zarnex/config.h>

/// One text for interfaces that want it wide and for those that want 8-bit text in the
/// system code page.
///
/// Holds the form that it was made from and makes the other one when it is first asked
/// for, so both pointers stay valid as long as the object. Null and counts below 1 give
/// neither form. Nothing throws; a form for which there is no memory is null. Asking for a
/// form changes the object: two threads must not share it.
///
///     ZGenericString label("width");
///     drawText(label);               // drawText(const wchar_t*): converted here, once
///     logText(label);                // logText(const char*)
class ZARNEX_API ZARNEX_WIDE ZGenericString {
public:
    /// Holds a copy of `text`.
    /// @{
    ZGenericString(const ZString& text);
    ZGenericString(const char* text);
    /// @}

    /// As much of `text` as fits `n` bytes with a terminator.
    ZGenericString(const char* text, int n);

    /// Holds a copy of `text`.
    ZGenericString(const wchar_t* text);

    /// As much of `text` as fits `n` units with a terminator.
    ///
    /// Kept as is: here and for bytes `n` counts the terminator in; in the other string
    /// classes it does not.
    ZGenericString(const wchar_t* text, int n);

    /// Copies the forms that `other` holds.
    ZGenericString(const ZGenericString& other);

    /// Frees both forms: what the conversions returned is no longer valid.
    virtual ~ZGenericString();

    /// The text in the one form or the other, always the same buffer. Null if there is
    /// none; empty if it cannot be converted.
    /// @{
    operator wchar_t*();
    operator char*();
    /// @}

protected:
    /// Frees both forms and sets them to null.
    void freeBuffers();

private:
    // Not for hosts, whose pointers into the object it would leave dangling.
    ZGenericString& operator=(ZGenericString& other);

    void copyForms(const ZGenericString& other);

    wchar_t* wide_ = nullptr;
    char* bytes_ = nullptr;
};
