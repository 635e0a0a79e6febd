#include "../rows.h"
#include "plane.h"

#include <zarnex/transforms/ZMatrix.h>

#if BENCH_EIGEN
#include <Eigen/Dense>
#endif

#include <algorithm>

namespace bench {

void matrixRows(Suite& suite) {
    suite.row("8x8 product", 1.5, "Two matrices of 8 x 8, into a third.",
              [](Row& row, const auto& measure) {
                  constexpr int size = 8;
                  const auto a = randomNumbers(size * size, -1.0, 1.0, 4);
                  const auto b = randomNumbers(size * size, -1.0, 1.0, 5);
                  const ZMatrix<double> oursA(size, size, a.data());
                  const ZMatrix<double> oursB(size, size, b.data());
                  ZMatrix<double> oursOut(size, size, nullptr);
                  row.tolerance(1e-12);
                  row.ours([&] {
                      oursA.multiply(oursB, oursOut);
                      return oursOut(3, 5);
                  });
#if BENCH_EIGEN
                  using Rows =
                      Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
                  using Fixed = Eigen::Matrix<double, size, size, Eigen::RowMajor>;
                  const Eigen::MatrixXd eigenA = Eigen::Map<const Rows>(a.data(), size, size);
                  const Eigen::MatrixXd eigenB = Eigen::Map<const Rows>(b.data(), size, size);
                  Eigen::MatrixXd eigenOut(size, size);
                  row.peer("Eigen", [&] {
                      eigenOut.noalias() = eigenA * eigenB;
                      return eigenOut(3, 5);
                  });
                  const Fixed fixedA(a.data());
                  const Fixed fixedB(b.data());
                  Fixed fixedOut;
                  row.beside("Eigen, fixed size", [&] {
                      fixedOut.noalias() = fixedA * fixedB;
                      return fixedOut(3, 5);
                  });
#endif
                  double plainA[size][size];
                  double plainB[size][size];
                  double plainOut[size][size];
                  std::copy(a.begin(), a.end(), plainA[0]);
                  std::copy(b.begin(), b.end(), plainB[0]);
                  row.beside("by hand, fixed size", [&] {
                      for (int i = 0; i < size; ++i) {
                          for (int j = 0; j < size; ++j) {
                              double sum = 0.0;
                              for (int k = 0; k < size; ++k)
                                  sum += plainA[i][k] * plainB[k][j];
                              plainOut[i][j] = sum;
                          }
                      }
                      return plainOut[3][5];
                  });
                  measure();
              });
}

} // namespace bench
