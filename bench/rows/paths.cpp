#include "texts.h"

#include <zarnex/strings/StringUtils.h>

#if BENCH_QT
#include <QtCore/QFileInfo>
#include <QtCore/QString>
#endif

#include <array>
#include <filesystem>
#include <string_view>

namespace bench {

namespace {

template <class Text>
Pool<Text> paths() {
    return {poolSize, [](std::size_t i) {
                std::string folders = words(40, i);
                for (char& unit : folders)
                    unit = unit == ' ' ? '/' : unit;
                return widened<Text>("/home/" + folders + "/motif." + std::to_string(10 + i) +
                                     ".emb");
            }};
}

/// Drive, directory, name and extension, as the library tells them apart.
std::array<std::wstring, 4> splitByHand(std::wstring_view path) {
    const std::size_t colon = path.rfind(L':');
    const std::size_t dir = colon == path.npos ? 0 : colon + 1;
    const std::size_t separator = path.find_last_of(L"\\/");
    const std::size_t name = separator == path.npos ? dir : (std::max)(separator + 1, dir);
    const std::size_t dot = path.rfind(L'.');
    const std::size_t ext = dot == path.npos || dot < name ? path.size() : dot;
    const auto part = [path](std::size_t begin, std::size_t end) {
        return std::wstring(path.substr(begin, end - begin));
    };
    return {part(0, dir), part(dir, name), part(name, ext), part(ext, path.size())};
}

} // namespace

void pathRows(Suite& suite) {
    suite.row("path split", 1.0, "A path of 59 characters into directory, name and extension.",
              [](Row& row, const auto& measure) {
                  const auto wide = paths<std::wstring>();
                  row.ours([=] {
                      wchar_t drive[260], dir[260], name[260], ext[260];
                      StringUtils::splitPath(wide.next().c_str(), drive, 260, dir, 260, name, 260,
                                             ext, 260);
                      keep(drive);
                      return name[5] + ext[1];
                  });
                  row.peer("by hand", [=] {
                      const auto [drive, dir, name, ext] = splitByHand(wide.next());
                      keep(drive);
                      keep(dir);
                      return name[5] + ext[1];
                  });
                  row.peer("std::filesystem", [=] {
                      const std::filesystem::path path(wide.next());
                      const auto dir = path.parent_path().wstring();
                      keep(dir);
                      return path.stem().wstring()[5] + path.extension().wstring()[1];
                  });
#if BENCH_QT
                  auto utf16 = paths<std::u16string>();
                  Pool<QString> qt(poolSize, [&](std::size_t) {
                      return QString::fromStdU16String(utf16.next());
                  });
                  row.peer("Qt", [=] {
                      const QFileInfo info(qt.next());
                      const QString dir = info.path();
                      keep(dir);
                      return info.completeBaseName()[5].unicode() + info.suffix()[0].unicode();
                  });
#endif
                  measure();
              });
}

} // namespace bench
