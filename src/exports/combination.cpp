#include <cmath>
#include <limits>

#include "frame/binomial_product.h"
#include "kelpower.h"

// exp|s1 - s2| with s1 the sum of log i for i = 1 ... m and s2 that of log j for the whole j from n - m + 1 to n, m the
// smaller of k and n - k. Formed as the running product of the factors j / i, whose partial products are binomial
// coefficients themselves: nothing cancels, and it overflows only where the result does, which it has done after 1,030
// factors, because the coefficient is at least C(2m, m). So no argument needs more steps than that.
extern "C" double Combination(double n, double k) {
  if (k == 0 || k == n) return 1.0;
  if (std::isnan(n) || std::isnan(k)) return std::numeric_limits<double>::quiet_NaN();
  const double m = n - k < k ? n - k : k;

  const double first = std::trunc(n - m + 1);
  const double last = std::floor(n);
  if (!(first <= last)) return 1.0;

  const double wholeM = m < 1 ? 0.0 : std::floor(m);
  // With a fractional m one j can be left over, which no i divides.
  kelpower::BinomialProduct product(last - first + 1 > wholeM ? first : 1);
  const double offset = last - wholeM;
  // As many factors at once as have exact products; each i is at most its j.
  constexpr double largestExact = 0x1p53;
  double numerator = 1;
  double denominator = 1;
  for (double i = 1; i <= wholeM && std::isfinite(product.Value()); ++i) {
    if (numerator * (offset + i) > largestExact) {
      product.Multiply(numerator, denominator);
      numerator = 1;
      denominator = 1;
    }
    numerator *= offset + i;
    denominator *= i;
  }
  product.Multiply(numerator, denominator);
  return product.Value();
}
