#include "host/NewFile.h"

#include <cstddef>

namespace host {

namespace {

constexpr std::size_t mostWaiting = 1 << 16;

} // namespace

NewFile::NewFile(const std::string& path) : made_(platform::createReplacement(path)) {}

NewFile::~NewFile() {
    if (isOpen_)
        platform::discard(made_);
}

void NewFile::write(std::string_view bytes) {
    waiting_ += bytes;
    if (waiting_.size() >= mostWaiting)
        flush();
}

void NewFile::commit() {
    flush();
    isOpen_ = false;
    platform::commit(made_);
}

void NewFile::flush() {
    platform::writeAll(made_.file, waiting_.data(), waiting_.size());
    waiting_.clear();
}

} // namespace host
