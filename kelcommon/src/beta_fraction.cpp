#include <cmath>

#include "beta_quotients.h"

// The even part of the continued fraction NIST Handbook (2010), 8.17.22, as Didonato and Morris (1992), Significant
// digit computation of the incomplete beta function ratios, ACM TOMS 18, equation 9 (BFRAC):
//   x^a y^b / (B(a, b) I_x(a, b)) = beta_0 + alpha_1 / (beta_1 + alpha_2 / (beta_2 + ...)).
// Its terms need x only through the excess and through factors insensitive to its rounding.
//
// It is evaluated from its far end, where each step damps the error of the one before; from the near end the errors of
// a hundred factors would add up. With the convergents A_n / B_n,
//   A_n / B_n - A_{n-1} / B_{n-1} = -(-1)^n alpha_1 ... alpha_n / (B_n B_{n-1}),
// the denominators alone tell how far the far end is. Both recurrences are linear, so that no division waits for
// another.

namespace KelMath {

namespace {

constexpr int mostTerms = 512;
constexpr int termsAtOnce = 4;

// What may be left out beyond the far end, relative to the value.
constexpr double negligible = 1e-17;

// Only ratios count, so the recurrences are scaled down beyond this.
constexpr double large = 1e75;
constexpr double scale = 0x1p-250;

struct Terms {
  double alpha[mostTerms + 1];
  double beta[mostTerms + 1];
};

// Fills the terms and returns how many there are, 0 where there would be too many.
int FindTerms(const BetaPlace& place, Terms& terms) {
  const double a = place.a;
  const double b = place.b;
  const double x = place.point.x.hi;
  const double beforeMean = 1 - place.excess;
  terms.beta[0] = a / (a + 1) * beforeMean;
  double numerator = terms.beta[0];
  double numeratorBefore = 1;
  double denominator = 1;
  double denominatorBefore = 0;
  double product = 1;
  double reciprocal = 1 / (a + 1);
  const double aPlusB = a + b;
  const double twoMinusX = 2 - x;
  double n = 1;
  for (int first = 1; first + termsAtOnce <= mostTerms + 1; first += termsAtOnce) {
    for (int i = first; i < first + termsAtOnce; ++i, n += 1) {
      const double share = x * reciprocal;  // x / (a + 2n - 1)
      reciprocal = 1 / (a + (2 * n + 1));
      const double reduced = n * (b - n) * share;
      const double alpha = ((a + (n - 1)) * share) * (aPlusB + (n - 1)) * reduced;
      const double beta = n + reduced + (a + n) * reciprocal * (beforeMean + n * twoMinusX);
      const double nextNumerator = beta * numerator + alpha * numeratorBefore;
      const double nextDenominator = beta * denominator + alpha * denominatorBefore;
      numeratorBefore = numerator;
      denominatorBefore = denominator;
      numerator = nextNumerator;
      denominator = nextDenominator;
      product *= alpha;
      terms.alpha[i] = alpha;
      terms.beta[i] = beta;
    }
    if (std::fabs(product) <= negligible * std::fabs(numerator * denominatorBefore)) return first + termsAtOnce - 1;
    if (std::fabs(denominator) > large) {
      numerator *= scale;
      numeratorBefore *= scale;
      denominator *= scale;
      denominatorBefore *= scale;
      product *= scale * scale;
    }
  }
  return 0;
}

}  // namespace

double BetaQuotientByFraction(const BetaPlace& place) {
  Terms terms;
  const int count = FindTerms(place, terms);
  if (count == 0) return noQuotient;
  double value = terms.beta[count];
  double valueBefore = 1;
  for (int n = count - 1; n >= 0;) {
    for (int i = 0; i < termsAtOnce && n >= 0; ++i, --n) {
      const double next = terms.beta[n] * value + terms.alpha[n + 1] * valueBefore;
      valueBefore = value;
      value = next;
    }
    if (std::fabs(value) > large) {
      value *= scale;
      valueBefore *= scale;
    }
  }
  return valueBefore / value;
}

}  // namespace KelMath
