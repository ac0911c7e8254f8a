#ifndef KELCOMMON_SRC_T_EXPANSION_H
#define KELCOMMON_SRC_T_EXPANSION_H

namespace KelMath {

/// The quantile of t above the median whose upper tail is `tail`, by an expansion about the normal one; NaN where the
/// degrees of freedom are too few for all digits: for a tail of 0.025 below 23, for one of 1e-12 below 68.
double QuantileOfManyDegrees(double tail, double df);

}  // namespace KelMath

#endif
