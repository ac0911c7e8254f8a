#ifndef KELCOMMON_SRC_SMALL_DIFFERENCES_H
#define KELCOMMON_SRC_SMALL_DIFFERENCES_H

namespace KelMath {

/// log(1 + u) - u for u > -1, without the cancellation near 0.
double Log1pMinusArgument(double u);

/// exp(v) - 1 - v, without the cancellation near 0.
double Expm1MinusArgument(double v);

}  // namespace KelMath

#endif
