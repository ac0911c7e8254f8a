#ifndef KELCOMMON_SRC_NORMAL_RANGE_H
#define KELCOMMON_SRC_NORMAL_RANGE_H

namespace KelMath {

/// The range of k independent standard normal variables, 2 <= k <= 1e6; k may be fractional. Both probabilities keep
/// their relative accuracy where they are small. What does not depend on the range is computed once.
class NormalRange {
public:
  explicit NormalRange(double k);

  /// P(range <= w).
  double Below(double w) const;

  /// P(range > w).
  double Above(double w) const;

  /// The step in log(w) at which the trapezoidal rule resolves the change of both.
  double StepInLog() const { return 1.4 * step_ / (2 * usualMaximum_ + 1); }

private:
  static constexpr int mostNodes = 512;

  double AboveByTable(double w) const;

  double k_;
  double step_;
  double usualMaximum_;
  int nodes_ = 0;
  double lower_[mostNodes];   // Phi(x) at x = (i - first) step
  double weight_[mostNodes];  // phi(x) Phi(x)^(k - 1), but for a factor
  int first_;
};

}  // namespace KelMath

#endif
