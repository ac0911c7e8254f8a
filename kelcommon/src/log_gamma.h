#ifndef KELCOMMON_SRC_LOG_GAMMA_H
#define KELCOMMON_SRC_LOG_GAMMA_H

namespace KelMath {

/// The logarithm of the scaled gamma function Gamma(x) / (sqrt(2 pi / x) (x / e)^x), x > 0; tends to 0 for large x.
/// The absolute error is below 2e-17 from 1 on, and below that 1.4e-16 times one more than the value.
double LogScaledGamma(double x);

/// log(Gamma(1 + z)) / z, z >= 0; minus Euler's constant at 0. The relative error is below 4e-16 up to 1.
double LogGammaOf1PlusOver(double z);

}  // namespace KelMath

#endif
