#include "host/CommandLine.h"

namespace host {

namespace {

bool looksLikeOption(const std::string& text) {
    const char second = text.size() > 1 && text[0] == '-' ? text[1] : '\0';
    return second == '-' || (second >= 'a' && second <= 'z') || (second >= 'A' && second <= 'Z');
}

} // namespace

bool CommandLine::next() {
    if (hasValue_)
        throw UsageError(text_ + " takes no value");
    if (!optionsOver_ && next_ < given_.size() && given_[next_] == "--") {
        optionsOver_ = true;
        ++next_;
    }
    if (next_ == given_.size())
        return false;
    text_ = given_[next_++];
    isOption_ = !optionsOver_ && looksLikeOption(text_);
    if (const std::size_t sign = text_.find('='); isOption_ && sign != std::string::npos) {
        hasValue_ = true;
        value_ = text_.substr(sign + 1);
        text_.resize(sign);
    }
    return true;
}

std::string CommandLine::value(std::string_view what) {
    const bool isBehind = !hasValue_ && next_ < given_.size() && !looksLikeOption(given_[next_]);
    std::string found = isBehind ? given_[next_++] : hasValue_ ? value_ : std::string();
    hasValue_ = false;
    if (found.empty())
        throw UsageError(text_ + " needs " + std::string(what));
    return found;
}

} // namespace host
