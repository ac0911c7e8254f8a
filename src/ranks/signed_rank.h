#ifndef KELPOWER_RANKS_SIGNED_RANK_H
#define KELPOWER_RANKS_SIGNED_RANK_H

#include <optional>

#include "frame/answer.h"
#include "ranks/equivalent_t.h"
#include "ranks/nearly_normal.h"
#include "ranks/parents.h"

// The signed-rank test of Wilcoxon of one sample or of the differences of pairs, by three approximations of its power.
// Each is refused for a level outside (0, 1) and for samples so small that no signed ranks of theirs reject at the level.

namespace kelpower::ranks {

/// A test that is planned.
struct SignedRankTest {
  Sides sides;
  double alpha;  ///< significance level
};

/// The t test on k n values, with k the relative efficiency and `shift` in standard deviations of the values (Lehmann
/// 1975, "Nonparametrics", section 4.3).
std::optional<EquivalentT> ByEfficiency(const SignedRankTest& design, Parent parent, double shift, double n);
Answer PowerByEfficiency(const SignedRankTest& design, Parent parent, double shift, double n);

// The statistic of the next two is the share of the averages of two values that are above 0, less one half.

/// From the probability alone that the average of two different values is above 0. The standard deviation is that
/// without an effect (Noether 1987, Journal of the American Statistical Association 82, 645-647).
std::optional<NearlyNormal> ByNoether(const SignedRankTest& design, double positiveAverage, double n);
Answer PowerByNoether(const SignedRankTest& design, double positiveAverage, double n);

/// With the variance that the shift gives, without a correction for continuity; the averages are of each value with
/// itself too (Lehmann 1975, "Nonparametrics", section 4.2). Refused where the approximation would not reject values of
/// a single sign either; elsewhere the power never falls as the shift grows.
std::optional<NearlyNormal> ByMoments(const SignedRankTest& design, Parent parent, double shift, double n);
Answer PowerByMoments(const SignedRankTest& design, Parent parent, double shift, double n);

/// The probability that the average of two different values is above 0.
double PositiveAverage(Parent parent, double shift);

}  // namespace kelpower::ranks

#endif
