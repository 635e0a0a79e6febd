#include <zarnex/strings/StringUtils.h>

#include <zarnex/strings/internal/text.h>

namespace {

using zarnex::detail::copyUnits;
using zarnex::detail::textLength;
using zarnex::detail::textOrEmpty;

constexpr std::size_t pathRoom = 260;

template <class Char>
bool isSeparator(Char unit) {
    return unit == Char{'\\'} || unit == Char{'/'};
}

// The parts of a path in the order in which they stand there. Each ends where
// the next one starts.
struct PathParts {
    std::size_t dir = 0;
    std::size_t name = 0;
    std::size_t ext = 0;
    std::size_t end = 0;
};

template <class Char>
PathParts partsOf(const Char* path) {
    PathParts parts;
    parts.end = textLength(path, pathRoom - 1);
    parts.ext = parts.end;
    for (std::size_t i = 0; i < parts.end; ++i) {
        if (path[i] == Char{'.'}) {
            parts.ext = i;
        } else if (isSeparator(path[i])) {
            parts.name = i + 1;
            parts.ext = parts.end;
        } else if (path[i] == Char{':'}) {
            parts.dir = parts.name = i + 1;
            parts.ext = parts.end;
        }
    }
    return parts;
}

template <class Char>
struct PartOut {
    Char* out;
    std::size_t room;

    void copy(const Char* path, std::size_t begin, std::size_t end) const {
        if (out == nullptr || room == 0)
            return;
        copyUnits(out, path + begin, end - begin, room);
        out[room - 1] = Char{};
    }
};

template <class Char>
void split(const Char* path, PartOut<Char> drive, PartOut<Char> dir, PartOut<Char> name,
           PartOut<Char> ext) {
    path = textOrEmpty(path);
    const PathParts parts = partsOf(path);
    Char copy[pathRoom]; // an output may be the path's own buffer
    copyUnits(copy, path, parts.end, pathRoom);
    drive.copy(copy, 0, parts.dir);
    dir.copy(copy, parts.dir, parts.name);
    name.copy(copy, parts.name, parts.ext);
    ext.copy(copy, parts.ext, parts.end);
}

template <class Char>
class PathWriter {
public:
    PathWriter(Char* out, std::size_t room) : out_(out), room_(room) {
        out_[0] = Char{};
    }

    void append(const Char* text, std::size_t count) {
        copyUnits(out_ + length_, text, count, room_ - length_);
        length_ += textLength(out_ + length_);
    }
    void append(const Char* text) {
        append(text, textLength(text));
    }
    void append(Char unit) {
        append(&unit, 1);
    }
    Char last() const {
        return out_[length_ - 1];
    }
    bool isEmpty() const {
        return length_ == 0;
    }

private:
    Char* out_;
    std::size_t room_;
    std::size_t length_ = 0;
};

template <class Char>
void make(Char* out, std::size_t room, const Char* drive, const Char* dir, const Char* name,
          const Char* ext) {
    if (out == nullptr || room == 0)
        return;
    drive = textOrEmpty(drive);
    dir = textOrEmpty(dir);
    name = textOrEmpty(name);
    ext = textOrEmpty(ext);

    PathWriter<Char> path(out, room);
    if (*drive != Char{}) {
        path.append(drive);
        if (path.isEmpty() || path.last() != Char{':'})
            path.append(Char{':'});
    }
    if (*dir != Char{}) {
        path.append(dir);
        if (path.isEmpty() || !isSeparator(path.last()))
            path.append(Char{'\\'});
    }
    path.append(name);
    if (*ext != Char{}) {
        if (*ext != Char{'.'})
            path.append(Char{'.'});
        path.append(ext);
    }
}

template <class Char>
void fix(Char* path, std::size_t room, const Char* ext) {
    if (path == nullptr)
        return;
    Char drive[pathRoom];
    Char dir[pathRoom];
    Char name[pathRoom];
    split<Char>(path, {drive, pathRoom}, {dir, pathRoom}, {name, pathRoom}, {nullptr, 0});
    make<Char>(path, room, drive, dir, name, ext);
}

} // namespace

void StringUtils::splitPath(const char* path, char* drive, std::size_t driveRoom, char* dir,
                            std::size_t dirRoom, char* name, std::size_t nameRoom, char* ext,
                            std::size_t extRoom) {
    split<char>(path, {drive, driveRoom}, {dir, dirRoom}, {name, nameRoom}, {ext, extRoom});
}

void StringUtils::splitPath(const wchar_t* path, wchar_t* drive, std::size_t driveRoom,
                            wchar_t* dir, std::size_t dirRoom, wchar_t* name, std::size_t nameRoom,
                            wchar_t* ext, std::size_t extRoom) {
    split<wchar_t>(path, {drive, driveRoom}, {dir, dirRoom}, {name, nameRoom}, {ext, extRoom});
}

void StringUtils::makePath(char* out, std::size_t room, const char* drive, const char* dir,
                           const char* name, const char* ext) {
    make(out, room, drive, dir, name, ext);
}

void StringUtils::makePath(wchar_t* out, std::size_t room, const wchar_t* drive, const wchar_t* dir,
                           const wchar_t* name, const wchar_t* ext) {
    make(out, room, drive, dir, name, ext);
}

void StringUtils::fixname(char* path, std::size_t room, const char* ext) {
    fix(path, room, ext);
}

void StringUtils::fixname(wchar_t* path, std::size_t room, const wchar_t* ext) {
    fix(path, room, ext);
}
