// Matrices and transforms. A matrix whose storage cannot be had is 0 x 0.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

#include <optional>

namespace {

using Matrix = ZMatrix<double>;
using Square = Z2DMatrix<double>;

const double values[] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};

/// Whether `matrix` is that of `values`, or 0 x 0 for want of memory; and usable.
bool isWholeOrNone(Trial& trial, Matrix& matrix, int rows, int cols) {
    if (matrix.getRows() == 0)
        return trial.failed() && matrix.getCols() == 0;
    bool same = matrix.getRows() == rows && matrix.getCols() == cols;
    for (int i = 0; same && i < rows * cols; ++i)
        same = matrix.get(i / cols, i % cols) == values[i];
    matrix *= 2.0;
    matrix.clear();
    return same;
}

/// What `make` makes is whole or nothing.
template <class Made, class Make>
auto made(int cols, Make make) {
    return [=](Trial& trial) {
        std::optional<Made> matrix;
        trial.attempt([&] { matrix.emplace(make()); });
        trial.expect(matrix && isWholeOrNone(trial, *matrix, 2, cols));
    };
}

const Matrix wide(2, 3, values), narrow(2, 2, values); // made before the heap fails

class Shift : public ArbTrans<DPoint> {
public:
    DPoint transform(const DPoint& p) override {
        return DPoint(p.x + 1.0, p.y);
    }
    DPoint reverseTransform(const DPoint& p) override {
        return DPoint(p.x - 1.0, p.y);
    }
};

} // namespace

Group transformOperations() {
    return {
        "`ZMatrix`, `Z2DMatrix`, `Z2DTrans`, `CompositeTrans`",
        {
            {"ZMatrix(rows, cols, values)", goesOn,
             made<Matrix>(3, [] { return Matrix(2, 3, values); })},
            {"ZMatrix copied", goesOn, made<Matrix>(3, [] { return Matrix(wide); })},
            {"Z2DMatrix(ZMatrix)", goesOn, made<Square>(2, [] { return Square(narrow); })},
            {"ZMatrix =", goesOn,
             [](Trial& t) {
                 Matrix matrix(4, 4, nullptr);
                 t.attempt([&] { matrix = wide; });
                 t.expect(isWholeOrNone(t, matrix, 2, 3));
                 matrix = wide;
                 t.expect(matrix.getRows() == 2 && matrix.get(1, 2) == 6.0);
             }},
            {"ZMatrix multiply into itself", goesOn,
             [](Trial& t) {
                 Matrix matrix(2, 2, values);
                 int status = 0;
                 t.attempt([&] { status = matrix.multiply(matrix, matrix); });
                 t.expect(status == (t.failed() ? 4 : 0));
                 t.expect(matrix.get(0, 0) == (t.failed() ? 1.0 : 7.0));
             }},
            {"ZMatrix multiply, transpose, +=", asksNothing,
             [](Trial& t) {
                 Matrix a(2, 2, values), b(2, 2, values), out(2, 2, nullptr);
                 t.attempt([&] {
                     t.expect(a.multiply(b, out) == 0 && a.transpose(b) == 0);
                     a += b;
                 });
                 t.expect(out.get(0, 0) == 7.0);
             }},
            {"Z2DMatrix, all of it", goesOn,
             [](Trial& t) {
                 t.attempt([&] {
                     Square a;
                     Square b(a);
                     b = a;
                     b *= 2.0;
                     b *= a;
                     b += a;
                     Matrix column(2, 1, values);
                     const int solved = b.solve(column);
                     t.expect(solved == 0 || t.failed());
                     t.expect(b.invert() == 0 || t.failed());
                     t.expect(b.multiply(a, b) == 0 || t.failed());
                     b.transpose();
                     b.clear();
                     const DPoint image = a * DPoint(1.0, 2.0);
                     t.expect(image == DPoint(1.0, 2.0)); // not moved without elements
                 });
             }},
            {"Z2DTrans, all of it", goesOn,
             [](Trial& t) {
                 t.attempt([&] {
                     Z2DTrans a = Z2DRotate(0.5);
                     a.compose(Z2DXScale(2.0));
                     Z2DTrans b(DVector(1.0, 0.0), DVector(0.0, 1.0));
                     a.rotate(0.5).scale(2.0, 3.0).xShear(0.5).mirror();
                     b.compose(a).rotateInDegree(45.0).rotate(DVector(1.0, 1.0));
                     b.rotate(DVector(1.0, 0.0), DVector(0.0, 1.0));
                     a = b;
                     Z2DTrans back;
                     const int status = a.invert(back);
                     t.expect(status == 0 || t.failed());
                     const DPoint there = a * DPoint(1.0, 2.0);
                     const DPoint again = back * there;
                     t.expect(t.failed() || again == DPoint(1.0, 2.0));
                 });
             }},
            {"CompositeTrans addTrans", throwsBad,
             [](Trial& t) {
                 Shift shift;
                 CompositeTrans<DPoint> chain;
                 t.attempt([&] {
                     chain.addTrans(&shift);
                     chain.addTrans(&shift);
                 });
                 const double steps = chain.transform(DPoint(0.0, 0.0)).x;
                 t.expect(t.threw() ? steps < 2.0 : steps == 2.0);
                 t.expect(chain.reverseTransform(DPoint(0.0, 0.0)).x == -steps);
             }},
            {"CompositeTrans that owns its members", throwsBad,
             [](Trial& t) {
                 Shift* const shift = new Shift;
                 t.attempt([&] {
                     CompositeTrans<DPoint> chain(1);
                     chain.addTrans(shift);
                 });
                 if (t.threw())
                     delete shift; // still the host's
             }},
            {"CompositeTrans copied", throwsBad,
             [](Trial& t) {
                 Shift shift;
                 CompositeTrans<DPoint> source;
                 source.addTrans(&shift);
                 CompositeTrans<DPoint> chain;
                 t.attempt([&] {
                     CompositeTrans<DPoint> copy(source);
                     chain = copy;
                 });
                 t.expect(chain.transform(DPoint(0.0, 0.0)).x == (t.threw() ? 0.0 : 1.0));
             }},
        },
    };
}
