#ifndef KELPOWER_RANKS_MANN_WHITNEY_H
#define KELPOWER_RANKS_MANN_WHITNEY_H

#include <optional>

#include "frame/answer.h"
#include "ranks/equivalent_t.h"
#include "ranks/nearly_normal.h"
#include "ranks/parents.h"

// The Wilcoxon-Mann-Whitney test of two independent groups, by three approximations of its power. Each is refused for a
// level outside (0, 1) and for groups so small that no ranks of theirs reject at the level.

namespace kelpower::ranks {

/// A test that is planned.
struct TwoGroupTest {
  Sides sides;
  double alpha;  ///< significance level
};

/// The t test on k n1 and k n2 values, with k the relative efficiency and `shift` in standard deviations
/// (Al-Sunduqchi 1990, dissertation, University of Wyoming; Lehmann 1975, "Nonparametrics", section 2.4).
std::optional<EquivalentT> ByEfficiency(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2);
Answer PowerByEfficiency(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2);

// The statistic of the next two is the share of the pairs of values in which the first exceeds the second, less one half.

/// From the probability alone that a value of the first group exceeds one of the second. The standard deviation is that
/// without an effect (Noether 1987, Journal of the American Statistical Association 82, 645-647).
std::optional<NearlyNormal> ByNoether(const TwoGroupTest& design, double superiority, double n1, double n2);
Answer PowerByNoether(const TwoGroupTest& design, double superiority, double n1, double n2);

/// With the variance that the shift gives, and the correction for continuity by 1/2 (Lehmann 1975, "Nonparametrics",
/// section 2.3). Refused where the approximation would not reject groups that do not overlap either; elsewhere the power
/// never falls as the shift grows.
std::optional<NearlyNormal> ByMoments(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2);
Answer PowerByMoments(const TwoGroupTest& design, Parent parent, double shift, double n1, double n2);

/// The probability that a value of the first group exceeds one of the second, where that is shifted.
double Superiority(Parent parent, double shift);

}  // namespace kelpower::ranks

#endif
