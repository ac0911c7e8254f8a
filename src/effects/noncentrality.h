#ifndef KELPOWER_EFFECTS_NONCENTRALITY_H
#define KELPOWER_EFFECTS_NONCENTRALITY_H

#include <optional>

#include "effects/interval.h"

// Confidence intervals of noncentralities. Each limit is the noncentrality at which the observed statistic is just
// alpha / 2 away from one end of its distribution (Steiger and Fouladi 1997, "Noncentrality interval estimation and the
// evaluation of statistical models"; Cumming and Finch 2001, Educational and Psychological Measurement 61, 532-574).
// They cover the true one with probability 1 - alpha exactly. Relative error about 1e-13 at usual levels.

namespace kelpower::effects {

/// The noncentrality of t on `df` > 0 degrees of freedom at level 1 - alpha. None for other degrees of freedom, a level
/// outside (0, 1), and a t that is not finite.
std::optional<Interval> NoncentralityOfT(double t, double df, double alpha);

/// The noncentrality, 0 or above, of F >= 0 on df1, df2 > 0 degrees of freedom (Smithson 2001, Educational and
/// Psychological Measurement 61, 605-632). A limit is 0 where F is so small that no noncentrality makes it as extreme:
/// the lower one where the F test at level alpha / 2 does not reject. None for other arguments.
std::optional<Interval> NoncentralityOfF(double f, double df1, double df2, double alpha);

}  // namespace kelpower::effects

#endif
