#ifndef KELCOMMON_SRC_SERIES_H
#define KELCOMMON_SRC_SERIES_H

namespace KelMath {

/// log(1 + u) - u for u > -1, without the cancellation near 0.
double Log1pMinusArgument(double u);
long double Log1pMinusArgument(long double u);

/// exp(v) - 1 - v, without the cancellation near 0.
double Expm1MinusArgument(double v);

/// sqrt(z / 2 pi) over the factor by which Gamma(z) exceeds Stirling's sqrt(2 pi / z) (z / e)^z, that is
/// z^z e^-z / Gamma(z); z > 0.
double StirlingRatio(double z);

}  // namespace KelMath

#endif
