#include "means/crossover.h"

#include <cmath>

#include "frame/half_width_equation.h"
#include "frame/rejection.h"
#include "means/t_test_of_a_mean.h"

namespace kelpower::means {

DifferenceDistribution CrossoverDifference(double n1, double n2, double sd) {
  return {n1 + n2 - 2, sd * std::sqrt((1 / n1 + 1 / n2) / 2)};
}

double CrossoverHalfWidth(double n1, double n2, double sd, double alpha) {
  const DifferenceDistribution difference = CrossoverDifference(n1, n2, sd);
  return IntervalQuantileT(alpha, difference.df) * difference.standardError;
}

// Solves w = t sd / sqrt(n), squared and multiplied by n / sd^2.
Answer CrossoverSizeForHalfWidth(double halfWidth, double sd, double alpha) {
  const double relativeWidth = halfWidth / sd;
  return SizeForHalfWidth({relativeWidth * relativeWidth, 1, alpha, [](double n) { return 2 * n - 2; }});
}

}  // namespace kelpower::means
