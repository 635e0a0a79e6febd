#include "host/Output.h"

#include "host/platform.h"

#include <cstddef>
#include <stdexcept>
#include <system_error>

namespace host {

namespace {

constexpr std::size_t mostAtOnce = 4096;

} // namespace

void Output::add(std::string_view lines) {
    if (waiting_.size() + lines.size() > mostAtOnce)
        flush();
    waiting_ += lines;
}

void Output::flush() {
    try {
        platform::writeAll(platform::standardOutput, waiting_.data(), waiting_.size());
    } catch (const std::system_error& error) {
        throw std::runtime_error("cannot write the output: " + error.code().message());
    }
    waiting_.clear();
}

} // namespace host
