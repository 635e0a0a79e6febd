#include <zarnex/platform/posix/codePages.h>

#include <zarnex/platform/conversionArguments.h>

#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <optional>

#include <iconv.h>

namespace zarnex::platform {

namespace {

// Where the output goes: the caller's room, or with room 0 a scratch block over and over.
template <class Char>
class Output {
public:
    Output(Char* out, int room) : counts_(room == 0), begin_(counts_ ? scratch_ : out) {
        room_ = sizeof(Char) * (counts_ ? scratchRoom : static_cast<std::size_t>(room));
        rewind();
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    // What iconv wants.
    char** next() {
        return &next_;
    }
    std::size_t* left() {
        return &left_;
    }

    // Makes room for more if that can be done.
    bool makeRoom() {
        if (counts_) {
            counted_ += used();
            rewind();
        }
        return counts_;
    }

    bool put(Char unit) {
        if (left_ < sizeof unit && !makeRoom())
            return false;
        std::memcpy(next_, &unit, sizeof unit);
        next_ += sizeof unit;
        left_ -= sizeof unit;
        return true;
    }

    // The units in all; 0 for more than an int holds.
    int total() const {
        const std::size_t units = counted_ + used();
        return units > INT_MAX ? 0 : static_cast<int>(units);
    }

private:
    void rewind() {
        next_ = reinterpret_cast<char*>(begin_);
        left_ = room_;
    }
    std::size_t used() const {
        return (room_ - left_) / sizeof(Char);
    }

    static constexpr std::size_t scratchRoom = 256;
    Char scratch_[scratchRoom];
    bool counts_;
    Char* begin_;
    char* next_;
    std::size_t room_; // in bytes, as left_
    std::size_t left_;
    std::size_t counted_ = 0;
};

class Descriptor {
public:
    enum Direction { toWide, fromWide };

    Descriptor(Direction direction, unsigned int codePage) {
        char name[16];
        std::snprintf(name, sizeof name, "CP%u", codePage);
        handle_ = direction == toWide ? iconv_open("WCHAR_T", name) : iconv_open(name, "WCHAR_T");
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (isOpen())
            iconv_close(handle_);
    }

    bool isOpen() const {
        return handle_ != reinterpret_cast<iconv_t>(-1);
    }

    // Converts `size` bytes at `text`; 0, or the error. With `text` null writes what is
    // held back for a following character to join, and returns to the initial state.
    template <class Char>
    int convert(const char*& text, std::size_t& size, Output<Char>& output) {
        char* next = const_cast<char*>(text); // iconv does not write to it
        const auto step = [&] {
            const std::size_t result = iconv(handle_, text == nullptr ? nullptr : &next, &size,
                                             output.next(), output.left());
            return result == static_cast<std::size_t>(-1) ? errno : 0;
        };
        int error = step();
        while (error == E2BIG && output.makeRoom())
            error = step();
        text = next;
        return error;
    }

    template <class Char>
    bool finish(Output<Char>& output) {
        const char* none = nullptr;
        std::size_t size = 0;
        return convert(none, size, output) == 0;
    }

    // What becomes of one byte: 0, EILSEQ for no character, EINVAL for a lead byte.
    int tryByte(char byte) {
        wchar_t ignored[4];
        Output<wchar_t> output(ignored, 4);
        const char* text = &byte;
        std::size_t size = 1;
        const int error = convert(text, size, output);
        finish(output);
        return error;
    }

private:
    iconv_t handle_;
};

bool isControl(unsigned long unit) {
    return unit >= 0x80 && unit <= 0x9F;
}

// Converts all of it; `replace` writes something for what is refused at the front and
// moves past it.
template <class Char, class Replace>
int convertAll(Descriptor& descriptor, const void* input, std::size_t size, Output<Char>& output,
               Replace replace) {
    const char* text = static_cast<const char*>(input);
    for (;;) {
        const int error = descriptor.convert(text, size, output);
        if (error == 0)
            return descriptor.finish(output) ? output.total() : 0;
        const bool isRefused = error == EILSEQ || error == EINVAL;
        if (!isRefused || !descriptor.finish(output) || !replace(text, size))
            return 0;
    }
}

} // namespace

int codePageToWide(unsigned int codePage, const char* text, int count, wchar_t* out, int room) {
    if (!canConvert(text, count, out, room))
        return 0;
    Descriptor descriptor(Descriptor::toWide, codePage);
    if (!descriptor.isOpen())
        return 0;
    Output<wchar_t> output(out, room);
    const auto replace = [&](const char*& next, std::size_t& left) {
        const auto byte = static_cast<unsigned char>(*next);
        const bool leads = descriptor.tryByte(*next) == EINVAL;
        const std::size_t taken = leads && left > 1 && next[1] != '\0' ? 2 : 1;
        next += taken;
        left -= taken;
        return output.put(!leads && isControl(byte) ? static_cast<wchar_t>(byte) : L'\uFFFD');
    };
    return convertAll(descriptor, text, unitCount(text, count), output, replace);
}

int wideToCodePage(unsigned int codePage, const wchar_t* text, int count, char* out, int room) {
    if (!canConvert(text, count, out, room))
        return 0;
    Descriptor descriptor(Descriptor::fromWide, codePage);
    std::optional<Descriptor> back; // opened when first needed
    if (!descriptor.isOpen())
        return 0;
    Output<char> output(out, room);
    const auto replace = [&](const char*& next, std::size_t& left) {
        wchar_t unit;
        std::memcpy(&unit, next, sizeof unit);
        next += sizeof unit;
        left -= sizeof unit;
        if (isControl(static_cast<unsigned long>(unit))) {
            if (!back)
                back.emplace(Descriptor::toWide, codePage);
            const auto byte = static_cast<char>(unit);
            if (back->isOpen() && back->tryByte(byte) == EILSEQ)
                return output.put(byte);
        }
        // By iconv, for a code page that has its own place for it.
        const wchar_t mark = L'?';
        const char* bytes = reinterpret_cast<const char*>(&mark);
        std::size_t size = sizeof mark;
        return descriptor.convert(bytes, size, output) == 0;
    };
    return convertAll(descriptor, text, unitCount(text, count) * sizeof(wchar_t), output, replace);
}

} // namespace zarnex::platform
