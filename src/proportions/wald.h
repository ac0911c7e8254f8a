#ifndef KELPOWER_PROPORTIONS_WALD_H
#define KELPOWER_PROPORTIONS_WALD_H

#include <cmath>

namespace kelpower::proportions {

// The size n at which Wald's interval of a variance v / n has the half-width h, in closed form.

/// z sqrt(v / n) = h. z / h is multiplied in twice, because the square of h can underflow.
inline double WaldSize(double halfWidth, double variance, double z) {
  return z / halfWidth * variance * (z / halfWidth);
}

/// z sqrt(v / n) + correction / n = h.
inline double CorrectedWaldSize(double halfWidth, double variance, double z, double correction) {
  const double root =
      (std::sqrt(z * z * variance + 4 * correction * halfWidth) + z * std::sqrt(variance)) / (2 * halfWidth);
  return root * root;
}

}  // namespace kelpower::proportions

#endif
