#include <algorithm>

#include "beta_quotients.h"

namespace KelMath {

namespace {

// The sum has about this many terms more than its ratio x (a + b) / a takes to fall below 1.
constexpr double mostGrowth = 20;

constexpr int termsAtOnce = 4;

// A sum whose terms fall from the first on takes fewer than this many: x stays below 1/2.
constexpr int mostTerms = 256;

// I_x(a, b) = x^a y^b / (a B(a, b)) (1 + r_0 (1 + r_1 (1 + ...))), r_k = x (a + b + k) / (a + 1 + k), Didonato and
// Morris (1992), Significant digit computation of the incomplete beta function ratios, ACM TOMS 18, equation 4. All
// terms are positive.
struct Ratio {
  explicit Ratio(const BetaPlace& place) : x(place.point.x.hi), first(x * place.a + x * place.b), a(place.a) {}
  double At(double k) const { return (first + x * k) / (a + (k + 1)); }

  double x;
  double first;
  double a;
};

}  // namespace

bool IsBetaSeriesShort(const BetaPlace& place) {
  const double x = place.point.x.hi;
  return x < 0.5 && x * place.a + x * place.b < mostGrowth;
}

// A term costs a third of one of the fraction. A comparison takes longer than a term, so it is made after each four.
double BetaQuotientBySeries(const BetaPlace& place) {
  const Ratio ratio(place);
  double k = 0;
  double term = 1;
  double sum = 0;
  do {
    for (int i = 0; i < termsAtOnce; ++i) {
      term *= ratio.At(k);
      sum += term;
      ++k;
    }
  } while (term > 1e-17 * sum);
  return (1 + sum) / place.a;
}

// From the last term inwards each step damps the error of the one before, and the first one is made in pairs of
// doubles.
DoubleDouble BetaQuotientBySeriesPrecisely(const BetaPlace& place) {
  const Ratio ratio(place);
  double ratios[mostTerms];
  double term = 1;
  int count = 1;
  while (count < mostTerms && term > 1e-18) {
    ratios[count] = ratio.At(count);
    term *= ratios[count];
    ++count;
  }
  double sum = 0;
  while (count > 1) sum = ratios[--count] * (1 + sum);
  const DoubleDouble first = Quotient(Product(place.point.x, ExactSum(place.a, place.b)), ExactSum(place.a, 1));
  return Quotient(Sum(Product(first, ExactSum(1, sum)), 1), {place.a, 0});
}

}  // namespace KelMath
