/// Paths taken apart and put together, bounded copies, and the texts of GUIDs.

#include "fuzz/fuzz.h"

#include <zarnex/ids/ZGUIDWrapper.h>
#include <zarnex/strings/StringUtils.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

template <class Char>
using Text = std::basic_string<Char>;

template <class Char>
struct Parts {
    Text<Char> drive, dir, name, ext;
};

// By the last of each mark, from the left part to the right.
template <class Char>
Parts<Char> split(Text<Char> path) {
    path = path.substr(0, 259);
    const auto cut = [&path](std::size_t count) {
        const Text<Char> part = path.substr(0, count);
        path.erase(0, part.size());
        return part;
    };
    const Char separators[] = {'/', '\\', 0};
    Parts<Char> parts;
    parts.drive = cut(path.rfind(Char{':'}) + 1);
    parts.dir = cut(path.find_last_of(separators) + 1);
    parts.name = cut(path.rfind(Char{'.'}));
    parts.ext = path;
    return parts;
}

template <class Char>
Text<Char> join(const Parts<Char>& parts) {
    const Char separators[] = {'/', '\\', 0};
    Text<Char> path = parts.drive;
    if (!path.empty() && path.back() != ':')
        path += Char{':'};
    path += parts.dir;
    if (!parts.dir.empty() && path.find_last_of(separators) != path.size() - 1)
        path += Char{'\\'};
    path += parts.name;
    if (!parts.ext.empty() && parts.ext.front() != '.')
        path += Char{'.'};
    return path + parts.ext;
}

template <class Char>
void tryPaths(fuzz::Input& input, const Text<Char>& path, const Parts<Char>& given) {
    const auto room = [&] { return static_cast<std::size_t>(input.between(1, 300)); };
    const Parts<Char> parts = split(path);
    std::vector<Char> out[4] = {std::vector<Char>(room()), std::vector<Char>(room()),
                                std::vector<Char>(room()), std::vector<Char>(room())};
    StringUtils::splitPath(path.c_str(), out[0].data(), out[0].size(), out[1].data(), out[1].size(),
                           out[2].data(), out[2].size(), out[3].data(), out[3].size());
    const Text<Char>* const expected[] = {&parts.drive, &parts.dir, &parts.name, &parts.ext};
    for (int i = 0; i < 4; ++i)
        FUZZ_REQUIRE(out[i].data() == expected[i]->substr(0, out[i].size() - 1));

    std::vector<Char> made(room());
    StringUtils::makePath(made.data(), made.size(), given.drive.c_str(), given.dir.c_str(),
                          given.name.c_str(), given.ext.c_str());
    const Text<Char> joined = join(given);
    const bool isWhole = joined.size() < made.size();
    FUZZ_REQUIRE(isWhole ? made.data() == joined
                         : std::char_traits<Char>::length(made.data()) < made.size());

    std::vector<Char> renamed(room() + path.size() + 1);
    std::copy(path.begin(), path.end(), renamed.begin());
    StringUtils::fixname(renamed.data(), renamed.size(), given.ext.c_str());
    const Text<Char> fixed = join(Parts<Char>{parts.drive, parts.dir, parts.name, given.ext});
    if (fixed.size() < std::min<std::size_t>(renamed.size(), 260))
        FUZZ_REQUIRE(renamed.data() == fixed);
}

template <class Char>
void tryCopies(fuzz::Input& input, const Text<Char>& text, const Text<Char>& more) {
    std::vector<Char> out(static_cast<std::size_t>(input.between(1, 300)));
    FUZZ_REQUIRE(StringUtils::copyString(out.data(), text.c_str(), out.size()) == text.size() + 1);
    const Text<Char> kept = text.substr(0, out.size() - 1);
    FUZZ_REQUIRE(out.data() == kept);
    FUZZ_REQUIRE(StringUtils::appendString(out.data(), more.c_str(), out.size()) ==
                 kept.size() + more.size() + 1);
    FUZZ_REQUIRE(out.data() == (kept + more).substr(0, out.size() - 1));
}

bool isGuid(const std::wstring& text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isHyphen = i == 8 || i == 13 || i == 18 || i == 23;
        const std::wstring allowed = isHyphen ? L"-" : L"0123456789abcdefABCDEF";
        if (allowed.find(text[i]) == std::wstring::npos)
            return false;
    }
    return text.size() == 36;
}

void tryGuid(fuzz::Input& input) {
    std::wstring text;
    for (int i = 0; i < 36; ++i)
        text += i == 8 || i == 13 || i == 18 || i == 23
                    ? L'-'
                    : L"0123456789abcdefABCDEF"[input.choice(22)];
    const std::wstring odd = input.wide(40);
    const std::size_t at = static_cast<std::size_t>(input.choice(37));
    text = text.substr(0, at) + odd + text.substr(std::min(text.size(), at + odd.size()));
    text.resize(std::min<std::size_t>(text.size(), input.choice(4) == 0 ? 35 : 60));

    const ZString given(text.c_str());
    const ZGUIDWrapper read(&given);
    std::wstring expected = L"00000000-0000-0000-0000-000000000000";
    if (isGuid(text)) {
        expected = text;
        for (wchar_t& unit : expected)
            unit = unit >= L'A' && unit <= L'F' ? static_cast<wchar_t>(unit + 32) : unit;
    }
    FUZZ_REQUIRE(expected == static_cast<const wchar_t*>(read.getString()));
    FUZZ_REQUIRE(read.isValid());
    const ZGUIDWrapper again(&read.getString());
    FUZZ_REQUIRE(again == read && again.hash() == read.hash());
    ZGUIDWrapper kept(0);
    kept.setBead1();
    const ZGUIDWrapper before(kept);
    kept.setString(&given);
    FUZZ_REQUIRE(kept == (isGuid(text) ? read : before));
    FUZZ_REQUIRE(!(read < read) && (before < read) == (read > before));
}

} // namespace

void tryInput(fuzz::Input input) {
    if (input.choice(3) == 0)
        return tryGuid(input);
    // As ASCII: some marks, and letters.
    const auto part = [&input](int most) {
        std::string text = input.text(most);
        for (char& unit : text)
            unit = static_cast<char>(unit & 0x7f);
        return text.substr(0, text.find('\0'));
    };
    const Parts<char> narrow{part(20), part(100), part(100), part(20)};
    const Parts<wchar_t> wide{input.wide(20), input.wide(100), input.wide(100), input.wide(20)};
    const std::string path = part(400);
    const std::wstring widePath = input.wide(400);
    tryPaths(input, path, narrow);
    tryPaths(input, widePath, wide);
    tryCopies(input, path, narrow.name);
    tryCopies(input, widePath, wide.name);
}
