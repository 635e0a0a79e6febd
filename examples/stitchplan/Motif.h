#pragma once

/// What a motif file says, in embroidery points of 0.1 mm around the hoop's centre, y
/// growing upward.

#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/DPoint.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace stitchplan {

/// Something in a motif that cannot be worked; `line` is 0 where no one line is at fault.
class MotifError : public std::runtime_error {
public:
    MotifError(int lineAtFault, const std::string& problem)
        : std::runtime_error(problem), line(lineAtFault) {}

    int line;
};

/// From one corner of an outline to the next.
struct Edge {
    DPoint from;
    DPoint to;
};

/// A closed outline; the edge from the last corner to the first closes it.
struct Outline {
    ZXArray<DPoint> corners;
    std::vector<int> lines; ///< of the file, one a corner
    int line = 0;           ///< that begins the outline
    int depth = 0;          ///< how many others are around it; an odd one is a hole

    bool isHole() const {
        return depth % 2 != 0;
    }

    /// The corner behind `corner`.
    int next(int corner) const {
        return corner + 1 < corners.length() ? corner + 1 : 0;
    }

    /// The edge from `corner` to the next.
    Edge edge(int corner) const {
        return {corners[corner], corners[next(corner)]};
    }
};

/// How the whole motif is repeated.
struct Repeat {
    enum class Kind { turned, mirrored, flipped };

    Kind kind = Kind::turned;
    int count = 2;        ///< copies, the first one included
    double degrees = 0.0; ///< from one copy to the next, counter-clockwise
};

struct Motif {
    std::string title;
    double hoopWidth = 0.0;
    double hoopHeight = 0.0;
    double stitchLength = 25.0;
    double rowSpacing = 4.0;
    double degrees = 0.0; ///< of the rows, counter-clockwise from the x axis
    double scale = 1.0;   ///< of the outlines
    std::vector<Outline> outlines;
    std::vector<Repeat> repeats;

    int stitchLine = 0; ///< where lengths were given; 0 for the defaults
    int spacingLine = 0;
};

/// The shortest stitch length that may be asked for: shorter ones break the thread. Rows
/// may stand nearer.
inline constexpr double shortestStitch = 3.0;

} // namespace stitchplan
