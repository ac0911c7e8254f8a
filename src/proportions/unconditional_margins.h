#ifndef KELPOWER_PROPORTIONS_UNCONDITIONAL_MARGINS_H
#define KELPOWER_PROPORTIONS_UNCONDITIONAL_MARGINS_H

#include <optional>

#include "frame/answer.h"
#include "proportions/constrained_proportions.h"
#include "proportions/independent_margins.h"
#include "proportions/table_region.h"

namespace kelpower::proportions {

/// The exact unconditional test of a difference of two proportions against limits, at fixed group sizes. With both limits
/// it rejects the tables that the tests of both reject. Its region is found once.
class UnconditionalMarginTest {
public:
  /// The largest size of a group. The work grows with the size to the power of 3 / 2.
  static constexpr double largestGroup = 1000;

  /// There is none for sizes below 1 or above the largest one, a level outside (0, 1), and limits that are not of a
  /// difference or that no proportions have.
  UnconditionalMarginTest(const ContrastLimits& limits, double alpha, double size1, double size2);

  /// Refused where there is no such test, and for a proportion outside (0, 1).
  Answer Power(const TwoProportions& proportions) const;

  /// The largest probability of rejection over all pairs of proportions at a limit.
  Answer AttainedLevel() const;

private:
  ContrastLimits limits_;
  GroupSizes sizes_{0, 0};
  std::optional<TableRegion> region_;
};

}  // namespace kelpower::proportions

#endif
