#ifndef KELPOWER_COMPARISONS_NORMAL_MEANS_H
#define KELPOWER_COMPARISONS_NORMAL_MEANS_H

// What the integrals over several normal means share.
namespace kelpower::comparisons {

constexpr double rootHalf = 0.70710678118654752440;
constexpr double densityAtZero = 0.39894228040143267794;  // of the standard normal distribution

/// x^n, by squaring.
inline double WholePower(double x, int n) {
  double power = 1;
  for (; n > 0; n /= 2, x *= x)
    if (n % 2 != 0) power *= x;
  return power;
}

}  // namespace kelpower::comparisons

#endif
