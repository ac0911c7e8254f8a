#include "proportions/certain_size.h"

#include <algorithm>
#include <cmath>

#include "proportions/divergence.h"

namespace kelpower::proportions {

namespace {

/// The divergence of a share x of successes from the probability p.
double DivergenceFrom(double x, double p) { return Divergence(x, p, 1 - p, x - p); }

}  // namespace

double CertainSize(double p1, double p0, double level, double miss) {
  const double a = -std::log(level);
  const double b = -std::log(miss);
  double low = p1;
  double high = p0;
  for (int i = 0; i < 40; ++i) {
    const double x = low + (high - low) / 2;
    (DivergenceFrom(x, p1) * a > DivergenceFrom(x, p0) * b ? high : low) = x;
  }
  const double x = low + (high - low) / 2;
  return std::ceil(std::max(a / DivergenceFrom(x, p0), b / DivergenceFrom(x, p1)));
}

}  // namespace kelpower::proportions
