#ifndef KELPOWER_EFFECTS_CORRELATION_H
#define KELPOWER_EFFECTS_CORRELATION_H

#include <optional>

#include "effects/interval.h"

namespace kelpower::effects {

/// Pearson's r of data with its interval tanh(atanh(r) -+ z / sqrt(n - 3)) at level 1 - alpha (Fisher 1921). None for r
/// outside (-1, 1), a size of 3 or less, and a level outside (0, 1).
std::optional<Estimate> FisherInterval(double r, double size, double alpha);

/// A correlation of data.
struct Correlation {
  double r;     ///< in (-1, 1)
  double size;  ///< above 3
};

/// Cohen's q = atanh(r1) - atanh(r2), the effect size of two correlations. Infinite at -1 and 1, NaN outside and for
/// two equal infinities.
double CohensQ(double r1, double r2);

/// The same of independent data, with its interval q -+ z sqrt(1 / (n1 - 3) + 1 / (n2 - 3)). None for other arguments.
std::optional<Estimate> CohensQ(const Correlation& first, const Correlation& second, double alpha);

// Two groups as a point-biserial correlation between the group, coded 0 and 1, and the measurement. With the share p of
// one group, 0 < p < 1, r = d / sqrt(d^2 + 1 / (p (1 - p))) in the population (Cohen 1988, section 2.2; Borenstein et al.
// 2009, "Introduction to Meta-Analysis", chapter 7). Equal groups have 4 in the place of 1 / (p (1 - p)).

/// NaN for a share outside (0, 1).
double CorrelationOfCohensD(double d, double share = 0.5);

/// Infinite at -1 and 1. NaN outside, and for a share outside (0, 1).
double CohensDOfCorrelation(double r, double share = 0.5);

}  // namespace kelpower::effects

#endif
