#include "units/LineReader.h"

#include "host/platform.h"
#include "host/trimming.h"

#include <utility>

namespace units {

using namespace host;

namespace {

constexpr std::size_t chunkSize = 1 << 16;

} // namespace

LineReader::LineReader(int file, std::size_t mostBytes, std::function<void()> beforeWaiting)
    : file_(file), mostKept_(byteOrderMark.size() + mostBytes + sizeof "\r"),
      beforeWaiting_(std::move(beforeWaiting)), chunk_(chunkSize) {}

bool LineReader::fill() {
    if (!atEnd_) {
        beforeWaiting_();
        rest_ = {chunk_.data(), platform::readSome(file_, chunk_.data(), chunk_.size())};
        atEnd_ = rest_.empty();
    }
    return !atEnd_;
}

bool LineReader::next(std::string_view& line) {
    constexpr std::size_t none = std::string_view::npos;
    if (rest_.empty() && !fill())
        return false;
    broken_.clear();
    std::size_t feed = none;
    do {
        feed = rest_.find('\n');
        line = rest_.substr(0, feed);
        rest_.remove_prefix(feed == none ? rest_.size() : feed + 1);
        if (feed == none || !broken_.empty()) {
            broken_ += line.substr(0, mostKept_ - broken_.size());
            line = broken_;
        }
    } while (feed == none && fill());

    if (++lineNumber_ == 1) {
        line = withoutByteOrderMark(line);
        if (line.empty() && feed == none)
            return false; // the file is a mark and nothing else
    }
    line = withoutCarriageReturn(line);
    return true;
}

} // namespace units
