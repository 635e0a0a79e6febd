#pragma once

#include <zarnex/containers/ZXArray.h>
#include <zarnex/geometry/DPoint.h>
#include <zarnex/transforms/Z2DTrans.h>

#include <stdexcept>

namespace stitchplan {

/// A path that would grow beyond StitchPath::mostNeedles.
class TooManyNeedles : public std::runtime_error {
public:
    TooManyNeedles();
};

/// Where the needle goes in, in the order of sewing and in points.
///
/// A path is a row of threads, each from one cut to the next.
class StitchPath {
public:
    static constexpr int mostNeedles = 10000000;

    /// Sews on to `needle`; the first time after a cut, begins a thread there. A stitch
    /// of no length is left out. Throws TooManyNeedles.
    void sewTo(const DPoint& needle);

    /// Sews in a straight line, in stitches of equal length and no longer than `longest`.
    void sewStraightTo(const DPoint& end, double longest);

    void cutThread();

    /// Appends the threads of `other` as `by` maps them.
    void append(const StitchPath& other, const Z2DTrans& by);

    bool isCut() const;               ///< nothing sewn since the last cut
    const DPoint& lastNeedle() const; ///< not for an empty path

    int needles() const;
    int stitches() const; ///< the ways from needle to needle
    const DPoint& needle(int i) const;

    int threads() const;
    int threadBegin(int i) const; ///< the first needle of a thread; for threads(), needles()

    /// The length of all stitches, in points.
    double length() const;

private:
    ZXArray<DPoint> needles_;
    ZXArray<int> begins_;
    bool isCut_ = true;
};

} // namespace stitchplan
