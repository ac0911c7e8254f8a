#ifndef KELPOWER_COMPARISONS_SHIFTED_RANGE_H
#define KELPOWER_COMPARISONS_SHIFTED_RANGE_H

#include <vector>

namespace kelpower::comparisons {

/// The range of independent normal variables of variance 1 with means of their own. What does not depend on the range is
/// computed once.
class ShiftedRange {
public:
  explicit ShiftedRange(std::vector<double> means);

  /// P(range <= w), with an absolute error of some 1e-15.
  double Below(double w) const;

private:
  /// Variables that share a mean.
  struct Level {
    double mean;
    int count;
  };

  std::vector<Level> levels_;
  double step_;
  int nodes_;
  std::vector<double> below_;    ///< Phi(x - mean), by node and level
  std::vector<double> density_;  ///< count phi(x - mean), by node and level
};

}  // namespace kelpower::comparisons

#endif
