#include "proportions/divergence.h"

#include <cmath>

namespace kelpower::proportions {

namespace {

/// x ln(x / m) + m - x for x = m + difference, without the cancellation of the plain form near x = m.
/// Loader, C. (2000), Fast and accurate computation of binomial probabilities, eq. for bd0.
double Deviance(double x, double m, double difference) {
  const double v = difference / (x + m);
  if (!(std::fabs(v) < 0.1)) return x * std::log(x / m) - difference;
  double sum = difference * v;
  double power = 2 * x * v;
  for (double j = 3;; j += 2) {
    power *= v * v;
    const double next = sum + power / j;
    if (next == sum) return sum;
    sum = next;
  }
}

}  // namespace

double Divergence(double p, double m, double notM, double difference) {
  return Deviance(p, m, difference) + Deviance(1 - p, notM, -difference);
}

}  // namespace kelpower::proportions
