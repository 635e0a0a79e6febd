#pragma once

#include <zarnex/config.h>

#include <cstdint>
#include <exception>
#include <string>
#include <type_traits>

/// The exception that the suite's programs throw and catch: a message, an error
/// code and the object that raised it. The library itself never throws it.
///
///     throw ZarnexException("hoop not attached", 12, this);
///
/// Without memory for the message, construction and copying throw std::bad_alloc.
///
/// Copies go through the virtual accessors, so a copy of an object of a derived
/// class, taken as a ZarnexException, holds what the overrides answer.
class ZARNEX_API ZarnexException : public std::exception {
public:
    /// "No Exception Message Set", code -1, no source.
    ZarnexException();

    /// "No Exception Message Set" with a code and a source.
    /// @{
    ZarnexException(long code, void* source);
    ZarnexException(int code, void* source); // or 0 would be a message too
    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    ZarnexException(Integer code, void* source) // or others would be an int as much as a long
        : ZarnexException(static_cast<long>(code), source) {}
    /// @}

    /// An empty or null `message` becomes "No Exception Message Set". `code` is kept in 32 bits.
    /// `source` is not owned.
    ZarnexException(const char* message, long code, void* source);

    /// The same with code -1.
    ZarnexException(const char* message, void* source);

    /// Message, code and source, as the virtual members of `other` answer.
    /// @{
    ZarnexException(const ZarnexException& other);
    ZarnexException& operator=(const ZarnexException& other);
    /// @}

    /// Frees the message, not the source.
    ~ZarnexException() override;

    /// The message, valid as long as the exception lives.
    const char* what() const noexcept override;

    /// 0; for derived classes to tell their kind.
    virtual int type();

// The const is part of the signature that overriding classes repeat.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"
#endif
    /// The error code, in the range of a signed 32-bit integer; -1 when none was given.
    virtual const long errCode() const;
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

    /// The object that raised the exception; may be null or gone.
    virtual void* sourceObject() const;

private:
    void* source_ = nullptr;
    std::string message_;
    std::int32_t code_ = -1;
};
