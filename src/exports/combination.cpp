#include <cmath>
#include <limits>

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
  long double product = 1;
  // With a fractional m one j can be left over, which no i divides.
  if (last - first + 1 > wholeM) product = first;
  const double offset = last - wholeM;
  for (double i = 1; i <= wholeM && std::isfinite(static_cast<double>(product)); ++i) {
    product = product * static_cast<long double>(offset + i) / static_cast<long double>(i);
  }
  return static_cast<double>(product);
}
