#include <algorithm>

#include "beta_quotients.h"

namespace KelMath {

namespace {

// The sum has about this many terms more than its ratio x (a + b) / a takes to fall below 1.
constexpr double mostGrowth = 20;

constexpr int termsAtOnce = 4;

}  // namespace

bool IsBetaSeriesShort(const BetaPlace& place) {
  const double x = place.point.x.hi;
  return x < 0.5 && x * place.a + x * place.b < mostGrowth;
}

// I_x(a, b) = x^a y^b / (a B(a, b)) (1 + x (a+b)/(a+1) (1 + x (a+b+1)/(a+2) (1 + ...))), Didonato and Morris (1992),
// Significant digit computation of the incomplete beta function ratios, ACM TOMS 18, equation 4. All terms are
// positive. A term costs a third of one of the fraction. A comparison takes longer than a term, so it is made after
// each four.
double BetaQuotientBySeries(const BetaPlace& place) {
  const double x = place.point.x.hi;
  const double factor = x * place.a + x * place.b;
  double k = 0;
  double term = 1;
  double sum = 0;
  do {
    for (int i = 0; i < termsAtOnce; ++i) {
      term *= (factor + x * k) / (place.a + (k + 1));
      sum += term;
      ++k;
    }
  } while (term > 1e-17 * sum);
  return (1 + sum) / place.a;
}

}  // namespace KelMath
