#include "methods.h"

#include <cstdio>
#include <cstdlib>

namespace {

const Method methods[] = {
    {"IdfF", "Quantile of F: `IdfF(p, df1, df2)`.",
     "The inverse series of the logarithm of the smaller beta tail in the log-odds, to its third term, within a "
     "bracket; then, when near, the power series of the density's integral. The tail is as in `CdfBeta`, the density "
     "multiplied up in pairs of doubles and short series summed from the last term inwards. With less than two degrees "
     "of freedom, near an end, the power law of the tail with its power series.",
     "A. DiDonato and A. Morris, Significant Digit Computation of the Incomplete Beta Function Ratios, ACM TOMS 18 "
     "(1992), equations 4 and 9. Start: Abramowitz and Stegun 26.5.22; power law: 26.5.4."},
    {"NonCentralCdfF", "Lower probability of noncentral F: `NonCentralCdfF(x, df1, df2, noncentrality, eps)`.",
     "The Poisson mixture of beta tails, the lower tail summed by parts and the upper by recurrences from its largest "
     "term, all terms positive; above 900 terms, or a noncentrality above 2e6, the integral of the moment generating "
     "function along a contour through its saddle point, by the trapezoidal rule.",
     "N. Johnson, S. Kotz and N. Balakrishnan, Continuous Univariate Distributions 2 (1995), equation 30.10; R. "
     "Lugannani and S. Rice, Saddle Point Approximation for the Distribution of the Sum of Independent Random "
     "Variables (1980)."},
    {"IdfT", "Quantile of Student's t: `IdfT(p, df, a, b)`.",
     "From some 23 degrees of freedom on, and ever more in far tails, an expansion about the normal quantile in powers "
     "of 1 / (df - 1/2)^2. Below as `IdfF`, of which the square of t is a variable: near the median from its lower "
     "tail, outside from its upper. With 1 and 2 degrees of freedom in closed form; above 1e18 the normal quantile.",
     "Nearly normal deviate: D. Wallace, Bounds on Normal Approximations to Student's and the Chi-Square "
     "Distributions, Annals of Mathematical Statistics 30 (1959); its expansion is our own. The rest as `IdfF`, with "
     "the start of G. Hill, Algorithm 396: Student's t-Quantiles (1970)."},
    {"NonCentralCdfT", "Lower probability of noncentral t: `NonCentralCdfT(x, df, noncentrality, tuning)`.",
     "Poisson mixtures of beta tails with shapes 1/2 and 1, summed by parts in the lower tail; beyond a noncentrality "
     "of 10 the noncentral F distribution of the square. On the side away from the noncentrality, where the sum "
     "cancels, the mean of the normal distribution over the chi distribution, by the trapezoidal rule in the "
     "logarithm.",
     "W. Guenther, Evaluation of Probabilities for the Noncentral Distributions and the Difference of Two T Variables "
     "with a Desk Calculator (1978); D. Benton and K. Krishnamoorthy, Computing Discrete Mixtures of Continuous "
     "Distributions (2003), equation 3.2."},
    {"CdfStdNorm", "Lower probability of the standard normal distribution: `CdfStdNorm(z)`.",
     "erfc(-z / sqrt 2) / 2, with the rounding of its argument undone by the derivative in the lower tail.",
     "Abramowitz and Stegun, Handbook of Mathematical Functions (1964), 7.1.13 and 26.2.29."},
    {"IdfStdNorm", "Quantile of the standard normal distribution: `IdfStdNorm(p)`.",
     "Rational approximations: around the median in the distance of p from 1/2, which is exact, and in the tails in "
     "sqrt(-2 log p). The coefficients are made by `tools/references/rational_fits.py`.",
     "After M. Wichura, Algorithm AS 241: The Percentage Points of the Normal Distribution, Applied Statistics 37 "
     "(1988)."},
    {"CdfBeta", "Lower probability of the beta distribution: `CdfBeta(x, a, b)`.",
     "x^a (1 - x)^b / B(a, b) in saddle-point form, with the distance from the mean formed in pairs of doubles, times "
     "a power series, a continued fraction evaluated from its far end, or above shapes of 12000 a Gauss-Legendre "
     "quadrature of the tail.",
     "C. Loader, Fast and Accurate Computation of Binomial Probabilities (2000); A. DiDonato and A. Morris, "
     "Significant Digit Computation of the Incomplete Beta Function Ratios, ACM TOMS 18 (1992), equations 4 and 9."},
    {"IdfBeta", "Quantile of the beta distribution: `IdfBeta(p, a, b)`.",
     "As `IdfF`, whose variable is the odds x / (1 - x).", "As `IdfF`."},
    {"CdfBin", "Lower probability of the binomial distribution: `CdfBin(x, n, p, err)`.",
     "The upper probability of the beta distribution; with p = 1/2 and up to 53 trials the exact sum.",
     "As `CdfBeta`."},
    {"IdfBin", "Largest count whose lower probability is at most prob: `IdfBin(prob, n, p, err)`.",
     "Doubling steps from a Cornish-Fisher guess, then bisection, both by `CdfBin`.",
     "E. Cornish and R. Fisher (1938), Revue de l'Institut International de Statistique 5, 307-320."},
    {"PdfBin", "Mass of the binomial distribution, by gamma functions between the counts: `PdfBin(x, n, p, err)`.",
     "The saddle-point form.", "C. Loader (2000), as `CdfBeta`."},
    {"PdfNegBin", "Mass of the negative binomial distribution: `PdfNegBin(x, r, p, err)`.", "The saddle-point form.",
     "C. Loader (2000), as `CdfBeta`."},
    {"orvadnlgam", "Logarithm of the absolute value of the gamma function: `orvadnlgam(x)`.",
     "Rational approximations with the zeros at 1 and 2 as factors; from 4 on Stirling's formula, its correction by a "
     "table at whole and half arguments up to 31/2 and by a rational approximation between them; for negative "
     "arguments "
     "the reflection formula. The coefficients are made by `tools/references/rational_fits.py`.",
     "Abramowitz and Stegun, Handbook of Mathematical Functions (1964), 6.1.17 and 6.1.40."},
    {"CdfGamma", "Lower probability of the gamma distribution of scale 1: `CdfGamma(x, shape)`.",
     "As `CdfBeta`, of which the gamma distribution is the limit: the second shape is 1e100. With a shape and a "
     "point up to 1 the alternating series, of which both tails keep their digits.",
     "C. Loader (2000) and A. DiDonato and A. Morris (1992), as `CdfBeta`; Abramowitz and Stegun, Handbook of "
     "Mathematical Functions (1964), 6.5.29 and 26.5."},
    {"SfGamma", "Upper probability of the gamma distribution of scale 1: `SfGamma(x, shape)`.",
     "As `CdfGamma`, by itself where it is the smaller tail.",
     "As `CdfGamma`; A. Gil, J. Segura and N. Temme, Efficient and Accurate Algorithms for the Computation and "
     "Inversion of the Incomplete Gamma Function Ratios, SIAM Journal on Scientific Computing 34 (2012), "
     "section 2.2."},
    {"IdfGamma", "Quantile of the gamma distribution of scale 1: `IdfGamma(p, shape)`.",
     "As `IdfF`, with a second shape of 1e100.", "As `IdfF`."},
    {"IsfGamma", "Quantile of the gamma distribution from above: `IsfGamma(q, shape)`.",
     "As `IdfGamma`, from the upper tail.", "As `IdfF`."},
    {"CdfChiSquare", "Lower probability of chi-square: `CdfChiSquare(x, df)`.",
     "As `CdfGamma`, at half of x and of the degrees of freedom.", "As `CdfGamma`."},
    {"SfChiSquare", "Upper probability of chi-square: `SfChiSquare(x, df)`.", "As `SfGamma`.", "As `SfGamma`."},
    {"IdfChiSquare", "Quantile of chi-square: `IdfChiSquare(p, df)`.", "As `IdfGamma`.", "As `IdfF`."},
    {"IsfChiSquare", "Quantile of chi-square from above: `IsfChiSquare(q, df)`.", "As `IsfGamma`.", "As `IdfF`."},
    {"NonCentralCdfChiSquare",
     "Lower probability of noncentral chi-square: `NonCentralCdfChiSquare(x, df, noncentrality)`.",
     "The Poisson mixture of gamma tails, the lower tail summed by parts and the upper by recurrences from its "
     "largest term, all terms positive; above 900 terms, and far out, the contour integral of `NonCentralCdfF`.",
     "N. Johnson, S. Kotz and N. Balakrishnan, Continuous Univariate Distributions 2 (1995), equation 29.3; R. "
     "Lugannani and S. Rice (1980), as `NonCentralCdfF`."},
    {"NonCentralSfChiSquare",
     "Upper probability of noncentral chi-square: `NonCentralSfChiSquare(x, df, noncentrality)`.",
     "As `NonCentralCdfChiSquare`, by itself where it is the smaller tail.", "As `NonCentralCdfChiSquare`."},
    {"NonCentralityChiSquare", "The noncentrality of a given upper probability: `NonCentralityChiSquare(q, x, df)`.",
     "False position in the root of the noncentrality, of which the normal quantile of the smaller tail is "
     "nearly linear.",
     "M. Dowell and P. Jarratt, A Modified Regula Falsi Method for Computing the Root of an Equation, BIT 11 "
     "(1971)."},
    {"PdfPoisson", "Mass of the Poisson distribution, by gamma functions between the counts: `PdfPoisson(x, mean)`.",
     "The saddle-point form.", "C. Loader (2000), as `CdfBeta`."},
    {"CdfPoisson", "Lower probability of the Poisson distribution: `CdfPoisson(x, mean)`.",
     "The upper probability of the gamma distribution of shape x + 1.", "As `SfGamma`."},
    {"SfPoisson", "Upper probability of the Poisson distribution: `SfPoisson(x, mean)`.",
     "The lower probability of the gamma distribution of shape x + 1.", "As `CdfGamma`."},
    {"IdfPoisson", "Largest count whose lower probability is at most p: `IdfPoisson(p, mean)`.",
     "As `IdfBin`, by `CdfPoisson`.", "As `IdfBin`."},
    {"CdfStudentizedRange", "Lower probability of the studentized range: `CdfStudentizedRange(q, k, df)`.",
     "The mean of the probability of the range over the logarithm of the estimated standard deviation, and that of the "
     "range an integral over the largest variable, both by the trapezoidal rule, which converges geometrically. From 0.1 "
     "on one minus the upper probability. Below one degree of freedom the mean as `MeanOverChi`.",
     "H. Harter, Tables of Range and Studentized Range, Annals of Mathematical Statistics 31 (1960); L. Tippett, On the "
     "Extreme Individuals and the Range of Samples, Biometrika 17 (1925)."},
    {"SfStudentizedRange", "Upper probability of the studentized range: `SfStudentizedRange(q, k, df)`.",
     "As `CdfStudentizedRange`, by itself up to 0.9: no terms cancel.", "As `CdfStudentizedRange`."},
    {"IdfStudentizedRange", "Quantile of the studentized range: `IdfStudentizedRange(p, k, df)`.",
     "The secant method for the logarithm of the smaller tail: as a function of the logarithm of q for the lower one, of "
     "the logarithm of the tail of a single pair's t test for the upper one. Both are almost straight lines.",
     "As `CdfStudentizedRange`. The start is Bonferroni's inequality."},
    {"IsfStudentizedRange", "Quantile of the studentized range from above: `IsfStudentizedRange(p, k, df)`.",
     "As `IdfStudentizedRange`.", "As `IdfStudentizedRange`."},
    {"CdfBivariateNormal", "Lower probability of the bivariate normal distribution: `CdfBivariateNormal(a, b, rho)`.",
     "The integral of the density of one variable times the conditional probability of the other, by pieces that adapt. "
     "Nothing cancels. Positions are counted from where the conditional mean is b, to the last digit, so that "
     "correlations near 1 and -1 lose none.",
     "D. Owen, Tables for Computing Bivariate Normal Probabilities, Annals of Mathematical Statistics 27 (1956)."},
    {"CdfCorrelation", "Lower probability of a sample correlation: `CdfCorrelation(r, n, rho)`.",
     "Fisher's integral for the density of r, with the order of the integrals exchanged: the one over r is an incomplete "
     "beta function, and the other one is done by the trapezoidal rule, in a variable in which it converges "
     "geometrically. All terms are positive. On the side of rho away from r the other tail is computed. Without a "
     "correlation the beta distribution.",
     "R. Fisher, Frequency Distribution of the Values of the Correlation Coefficient in Samples from an Indefinitely "
     "Large Population, Biometrika 10 (1915). The exchange is our own."},
    {"SfCorrelation", "Upper probability of a sample correlation: `SfCorrelation(r, n, rho)`.",
     "As `CdfCorrelation`, of which it is the other tail.", "As `CdfCorrelation`."},
    {"IdfCorrelation", "Quantile of a sample correlation: `IdfCorrelation(p, n, rho)`.",
     "Newton's method for the logarithm of the smaller tail as a function of atanh(r), within a bracket. Without a "
     "correlation from the quantile of t.",
     "As `CdfCorrelation`; start: R. Fisher, On the Probable Error of a Coefficient of Correlation Deduced from a Small "
     "Sample, Metron 1 (1921)."},
    {"MeanOverChi",
     "The mean of a function of u, the square root of chi-square over its degrees of freedom, below a limit. Measured for "
     "Phi(slope u - shift), which makes it Owen's Q function: slope, shift, degrees of freedom, limit.",
     "The integral over the logarithm of u by the rule of Gauss and Legendre on pieces, each halved while the highest "
     "coefficients of its expansion in Legendre polynomials are not small.",
     "D. Owen, A Special Case of a Bivariate Non-central t-distribution, Biometrika 52 (1965)."},
};

}  // namespace

const Method& FindMethod(const std::string& function) {
  for (const Method& method : methods)
    if (function == method.function) return method;
  std::fprintf(stderr, "no method is described for '%s'\n", function.c_str());
  std::exit(2);
}
