#include "poisson_mass.h"

#include <cmath>

#include "log_gamma.h"
#include "small_differences.h"

namespace KelMath {

// Loader (2000), Fast and accurate computation of binomial probabilities: with the linear terms of k log(m / k) and
// k - m cancelled, no term is larger than the logarithm of the result.
double PoissonMass(double k, double m) {
  constexpr double twoPi = 6.283185307179586477;
  if (k == 0) return std::exp(-m);
  return std::exp(k * Log1pMinusArgument((m - k) / k) - LogScaledGamma(k)) / std::sqrt(twoPi * k);
}

}  // namespace KelMath
