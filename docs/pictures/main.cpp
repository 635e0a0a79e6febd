#include "pictures.h"

#include <cstdio>

// pictures FOLDER: writes every picture into it.
int main(int count, char** arguments) {
    const struct {
        const char* name;
        Svg (*draw)();
    } pictures[] = {
        {"orientation", drawOrientation},
        {"positions", drawPositions},
        {"overlap", drawOverlap},
        {"transforms", drawTransforms},
        {"units", drawUnits},
        {"typed-text", drawTypedText},
        {"list-ring", drawListRing},
        {"array-growth", drawArrayGrowth},
    };
    if (count != 2) {
        std::fputs("Usage: pictures FOLDER\n", stderr);
        return 2;
    }
    for (const auto& picture : pictures) {
        const std::string file = std::string(arguments[1]) + "/" + picture.name + ".svg";
        if (!picture.draw().write(file)) {
            std::fprintf(stderr, "Cannot write %s\n", file.c_str());
            return 1;
        }
    }
    return 0;
}
