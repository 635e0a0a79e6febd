#include <zarnex/runtime/ZarnexException.h>

namespace {

constexpr char noMessage[] = "No Exception Message Set";

std::string messageOrDefault(const char* message) {
    return message == nullptr || *message == '\0' ? noMessage : message;
}

} // namespace

ZarnexException::ZarnexException() : message_(noMessage) {}

ZarnexException::ZarnexException(long code, void* source)
    : source_(source), message_(noMessage), code_(static_cast<std::int32_t>(code)) {}

ZarnexException::ZarnexException(int code, void* source)
    : ZarnexException(static_cast<long>(code), source) {}

ZarnexException::ZarnexException(const char* message, long code, void* source)
    : source_(source), message_(messageOrDefault(message)), code_(static_cast<std::int32_t>(code)) {
}

ZarnexException::ZarnexException(const char* message, void* source)
    : ZarnexException(message, -1, source) {}

ZarnexException::ZarnexException(const ZarnexException& other) : std::exception() {
    *this = other;
}

ZarnexException& ZarnexException::operator=(const ZarnexException& other) {
    if (this != &other) {
        source_ = other.sourceObject();
        code_ = static_cast<std::int32_t>(other.errCode());
        message_ = messageOrDefault(other.what());
    }
    return *this;
}

ZarnexException::~ZarnexException() = default;

const char* ZarnexException::what() const noexcept {
    return message_.c_str();
}

int ZarnexException::type() {
    return 0;
}

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wignored-qualifiers"
#endif
const long ZarnexException::errCode() const {
    return code_;
}

void* ZarnexException::sourceObject() const {
    return source_;
}
