#ifndef KELCOMMON_SRC_BETA_QUANTILE_H
#define KELCOMMON_SRC_BETA_QUANTILE_H

namespace KelMath {

/// The odds x / (1 - x) at which I_x(a, b) = p, over those of the mean, a / b, to the given power, 0 < p <= 1/2. To the
/// power 1 that is the quantile of F. Powers of -1 and of 1/2 give its reciprocal and the quantile of t where the odds
/// themselves would overflow. Any positive finite shapes.
double BetaQuantileRatio(double a, double b, double p, double power);

}  // namespace KelMath

#endif
