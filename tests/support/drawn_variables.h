#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_VARIABLES_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_VARIABLES_H

#include <cmath>
#include <random>

namespace kelpower {

/// Correlations of four variables; `Correlations` has r12, r34, r13, r14, r23 and r24.
class Variables {
public:
  template <typename Correlations>
  explicit Variables(const Correlations& c) {
    const double r[4][4] = {
        {1, c.r12, c.r13, c.r14}, {c.r12, 1, c.r23, c.r24}, {c.r13, c.r23, 1, c.r34}, {c.r14, c.r24, c.r34, 1}};
    for (int i = 0; i < 4; ++i) {
      for (int j = 0; j <= i; ++j) {
        double rest = r[i][j];
        for (int k = 0; k < j; ++k) rest -= factor_[i][k] * factor_[j][k];
        factor_[i][j] = i == j ? std::sqrt(rest) : rest / factor_[j][j];
      }
    }
  }

  /// The correlations of a normal sample.
  template <typename Correlations, typename Engine>
  Correlations Draw(Engine& engine, int size) const {
    std::normal_distribution<double> normal;
    double sums[4] = {};
    double products[4][4] = {};
    for (int row = 0; row < size; ++row) {
      double independent[4];
      double x[4];
      for (int i = 0; i < 4; ++i) {
        independent[i] = normal(engine);
        x[i] = 0;
        for (int k = 0; k <= i; ++k) x[i] += factor_[i][k] * independent[k];
        sums[i] += x[i];
        for (int j = 0; j <= i; ++j) products[i][j] += x[i] * x[j];
      }
    }
    const auto moment = [&](int i, int j) { return products[i][j] - sums[i] * sums[j] / size; };
    const auto r = [&](int j, int i) { return moment(i, j) / std::sqrt(moment(i, i) * moment(j, j)); };
    return {r(0, 1), r(2, 3), r(0, 2), r(0, 3), r(1, 2), r(1, 3)};
  }

private:
  double factor_[4][4] = {};  ///< triangular
};

}  // namespace kelpower

#endif
