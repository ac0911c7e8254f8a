#ifndef KELPOWER_PROPORTIONS_WALD_H
#define KELPOWER_PROPORTIONS_WALD_H

#include <cmath>

namespace kelpower::proportions {

/// The size n at which Wald's interval has the half-width h: z sqrt(variance / n) + correction / n = h.
/// z / h is multiplied in twice, because the square of h can underflow.
inline double WaldSize(double halfWidth, double variance, double z, double correction) {
  if (correction == 0) return z / halfWidth * variance * (z / halfWidth);
  const double root =
      (std::sqrt(z * z * variance + 4 * correction * halfWidth) + z * std::sqrt(variance)) / (2 * halfWidth);
  return root * root;
}

}  // namespace kelpower::proportions

#endif
