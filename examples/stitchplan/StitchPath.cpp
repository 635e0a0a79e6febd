#include "stitchplan/StitchPath.h"

#include <cmath>
#include <string>

namespace stitchplan {

TooManyNeedles::TooManyNeedles()
    : std::runtime_error("this makes more than " + std::to_string(StitchPath::mostNeedles) +
                         " stitches") {}

void StitchPath::sewTo(const DPoint& needle) {
    if (isCut_)
        begins_.add(needles_.length());
    else if (needle == lastNeedle())
        return;
    if (needles() >= mostNeedles)
        throw TooManyNeedles();
    needles_.add(needle);
    isCut_ = false;
}

void StitchPath::sewStraightTo(const DPoint& end, double longest) {
    const DPoint start = lastNeedle();
    const DVector way = end - start;
    // A little more than `longest` is no reason for one more stitch.
    const double count = std::ceil(way.length() / longest - 1e-6);
    for (double i = 1.0; i < count; ++i)
        sewTo(start + way * (i / count));
    sewTo(end);
}

void StitchPath::cutThread() {
    isCut_ = true;
}

void StitchPath::append(const StitchPath& other, const Z2DTrans& by) {
    if (other.needles() > mostNeedles - needles())
        throw TooManyNeedles();
    needles_.reserve(needles() + other.needles());
    for (int thread = 0; thread < other.threads(); ++thread) {
        cutThread();
        for (int i = other.threadBegin(thread); i < other.threadBegin(thread + 1); ++i)
            sewTo(by * other.needle(i));
    }
}

bool StitchPath::isCut() const {
    return isCut_;
}

const DPoint& StitchPath::lastNeedle() const {
    return needle(needles() - 1);
}

int StitchPath::needles() const {
    return needles_.length();
}

int StitchPath::stitches() const {
    return needles() - threads();
}

const DPoint& StitchPath::needle(int i) const {
    return needles_[i];
}

int StitchPath::threads() const {
    return begins_.length();
}

int StitchPath::threadBegin(int i) const {
    return i < threads() ? begins_[i] : needles();
}

double StitchPath::length() const {
    double sum = 0.0;
    for (int thread = 0; thread < threads(); ++thread)
        for (int i = threadBegin(thread) + 1; i < threadBegin(thread + 1); ++i)
            sum += (needle(i) - needle(i - 1)).length();
    return sum;
}

} // namespace stitchplan
