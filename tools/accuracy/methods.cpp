#include "methods.h"

#include <cstdio>
#include <cstdlib>

namespace {

const Method methods[] = {
    {"IdfF", "Quantile of F: `IdfF(p, df1, df2)`.", "See the comments in `kelcommon/src/fisher_f.cpp`.",
     "Named in `kelcommon/src/fisher_f.cpp`."},
    {"NonCentralCdfF", "Lower probability of noncentral F: `NonCentralCdfF(x, df1, df2, noncentrality, eps)`.",
     "See the comments in `kelcommon/src/fisher_f.cpp`.", "Named in `kelcommon/src/fisher_f.cpp`."},
    {"IdfT", "Quantile of Student's t: `IdfT(p, df, a, b)`.", "See the comments in `kelcommon/src/students_t.cpp`.",
     "Named in `kelcommon/src/students_t.cpp`."},
    {"NonCentralCdfT", "Lower probability of noncentral t: `NonCentralCdfT(x, df, noncentrality, tuning)`.",
     "See the comments in `kelcommon/src/students_t.cpp`.", "Named in `kelcommon/src/students_t.cpp`."},
    {"CdfStdNorm", "Lower probability of the standard normal distribution: `CdfStdNorm(z)`.",
     "erfc(-z / sqrt 2) / 2, with the rounding of its argument undone by the derivative in the lower tail.",
     "Abramowitz and Stegun, Handbook of Mathematical Functions (1964), 7.1.13 and 26.2.29."},
    {"IdfStdNorm", "Quantile of the standard normal distribution: `IdfStdNorm(p)`.",
     "The inverse of erfc by rational approximations.", "J. Maddock and others, Boost.Math 1.81, `erfc_inv`."},
    {"CdfBeta", "Lower probability of the beta distribution: `CdfBeta(x, a, b)`.",
     "x^a (1 - x)^b / B(a, b) in saddle-point form with a compensated distance from the mean, times a power series, a "
     "continued fraction, or above shapes of 1500 a Gauss-Legendre quadrature of the tail.",
     "C. Loader, Fast and Accurate Computation of Binomial Probabilities (2000); A. DiDonato and A. Morris, "
     "Significant "
     "Digit Computation of the Incomplete Beta Function Ratios, ACM TOMS 18 (1992), equation 9."},
    {"IdfBeta", "Quantile of the beta distribution: `IdfBeta(p, a, b)`.",
     "Halley's method on the logarithm of the smaller tail as a function of log(x / (1 - x)), within a bracket.",
     "Start: Abramowitz and Stegun 26.5.22; W. Press and others, Numerical Recipes (3rd ed. 2007), 6.4."},
    {"CdfBin", "Lower probability of the binomial distribution: `CdfBin(x, n, p, err)`.",
     "The upper probability of the beta distribution; with p = 1/2 and up to 53 trials the exact sum.",
     "As `CdfBeta`."},
    {"IdfBin", "Largest count whose lower probability is at most prob: `IdfBin(prob, n, p, err)`.",
     "Doubling steps from a Cornish-Fisher guess, then bisection, both by `CdfBin`.",
     "E. Cornish and R. Fisher, Moments and Cumulants in the Specification of Distributions (1938)."},
    {"PdfBin", "Mass of the binomial distribution, by gamma functions between the counts: `PdfBin(x, n, p, err)`.",
     "The saddle-point form.", "C. Loader (2000), as `CdfBeta`."},
    {"PdfNegBin", "Mass of the negative binomial distribution: `PdfNegBin(x, r, p, err)`.", "The saddle-point form.",
     "C. Loader (2000), as `CdfBeta`."},
    {"orvadnlgam", "Logarithm of the absolute value of the gamma function: `orvadnlgam(x)`.",
     "Rational approximations and the Lanczos sum; for negative arguments the reflection formula (Abramowitz and "
     "Stegun 6.1.17).",
     "J. Maddock and others, Boost.Math 1.81, `lgamma`."},
};

}  // namespace

const Method& FindMethod(const std::string& function) {
  for (const Method& method : methods)
    if (function == method.function) return method;
  std::fprintf(stderr, "no method is described for '%s'\n", function.c_str());
  std::exit(2);
}
