#include "../rows.h"
#include "plane.h"

#include <zarnex/transforms/CompositeTrans.h>

#include <cmath>
#include <list>
#include <memory>
#include <vector>

namespace bench {

namespace {

// Members of a chain, for the library's base class and for one written by hand.

struct PlainStep {
    virtual ~PlainStep() = default;
    virtual Plain transform(const Plain& p) = 0;
    virtual Plain reverseTransform(const Plain& p) = 0;
};

template <class Base, class P>
class Shift : public Base {
public:
    Shift(double x, double y) : x_(x), y_(y) {}
    P transform(const P& p) override {
        return P{p.x + x_, p.y + y_};
    }
    P reverseTransform(const P& p) override {
        return P{p.x - x_, p.y - y_};
    }

private:
    double x_;
    double y_;
};

template <class Base, class P>
class Turn : public Base {
public:
    explicit Turn(double angle) : c_(std::cos(angle)), s_(std::sin(angle)) {}
    P transform(const P& p) override {
        return P{c_ * p.x - s_ * p.y, s_ * p.x + c_ * p.y};
    }
    P reverseTransform(const P& p) override {
        return P{c_ * p.x + s_ * p.y, c_ * p.y - s_ * p.x};
    }

private:
    double c_;
    double s_;
};

/// Shift and turn in turn, six steps.
template <class Base, class P, class Add>
void addSteps(Add add) {
    for (const double angle : randomNumbers(3, -3.0, 3.0, 3)) {
        add(new Shift<Base, P>(1.5, -0.25));
        add(new Turn<Base, P>(angle));
    }
}

/// A step like the others, as the library's chain is; null members are skipped.
template <template <class...> class Steps>
class PlainChain : public PlainStep {
public:
    PlainChain() {
        addSteps<PlainStep, Plain>([this](PlainStep* step) { steps_.emplace_back(step); });
    }
    Plain transform(const Plain& p) override {
        Plain image = p;
        for (const auto& step : steps_) {
            if (step != nullptr)
                image = step->transform(image);
        }
        return image;
    }
    Plain reverseTransform(const Plain& p) override {
        Plain image = p;
        for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
            if (*step != nullptr)
                image = (*step)->reverseTransform(image);
        }
        return image;
    }

private:
    Steps<std::unique_ptr<PlainStep>> steps_;
};

template <class Step, class P>
auto thereAndBack(Step& chain, const Array<P>& places) {
    return [&chain, &places] {
        double sum = 0.0;
        for (const P& p : places) {
            const P there = chain.transform(p);
            sum += there.x + chain.reverseTransform(there).y;
        }
        return sum;
    };
}

} // namespace

void chainRows(Suite& suite) {
    suite.row(
        "chain", 1.0,
        "1,000 points through a chain of six virtual transforms and back; per point. The "
        "chain is called as a transform, which it is; the vector holds its steps in one block.",
        [](Row& row, const auto& measure) {
            const std::vector<double> numbers = randomNumbers(2000, -100.0, 100.0, 1);
            const auto ours = pairedOnPages<DPoint>(numbers);
            const auto plain = pairedOnPages<Plain>(numbers);
            CompositeTrans<DPoint> chain(1);
            addSteps<ArbTrans<DPoint>, DPoint>(
                [&chain](ArbTrans<DPoint>* step) { chain.addTrans(step); });
            PlainChain<std::list> listed;
            PlainChain<std::vector> contiguous;
            row.per(1000);
            row.ours(thereAndBack<ArbTrans<DPoint>>(chain, ours));
            row.peer("by hand", thereAndBack<PlainStep>(listed, plain));
            row.beside("by hand, vector", thereAndBack<PlainStep>(contiguous, plain));
            measure();
        });
}

} // namespace bench
