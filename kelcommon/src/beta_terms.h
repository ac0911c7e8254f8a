#ifndef KELCOMMON_SRC_BETA_TERMS_H
#define KELCOMMON_SRC_BETA_TERMS_H

// Building blocks of the incomplete beta function I_y(a, b), shared by the t and F distributions. The argument comes
// as the odds c = y / (1 - y), in extended precision: both y and 1 - y keep their digits, and sizes up to 1e308
// neither overflow nor underflow on the way. incomplete_beta.h says why it has functions of its own.

namespace KelMath {

/// Half the degrees of freedom, a shape of the beta distribution. Never 0, which half of the smallest double is.
double HalfDegrees(double df);

/// The logarithm of the scaled gamma function Gamma(x) / (sqrt(2 pi / x) (x / e)^x), x > 0; tends to 0 for large x.
long double ExtendedLogScaledGamma(double x);

/// A positive number factor * exp(exponent), kept apart because the exponential alone may underflow.
struct ScaledValue {
  long double factor;
  long double exponent;
};

/// y^a (1 - y)^b / (a B(a, b)), the step I_y(a, b) - I_y(a + 1, b).
ScaledValue BetaStep(double a, double b, long double c);

/// e^-m m^k / k!, the Poisson probability of the whole number k >= 0 at mean m > 0.
ScaledValue PoissonMass(double k, double m);

/// The two tails of a distribution. The smaller one keeps its digits relative to itself.
struct Tails {
  double lower;
  double upper;
};

/// I_y(a, b) and 1 - I_y(a, b).
Tails BetaTails(double a, double b, long double c);

/// The odds y / (1 - y) at which I_y(a, b) = p, 0 < p < 1; the smaller p, the better.
long double BetaQuantileOdds(double a, double b, double p);

}  // namespace KelMath

#endif
