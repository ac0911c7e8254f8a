#include "normal.h"

#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "rational.h"

namespace KelMath {

using KelCommon::KelMV;

namespace {

// 1 / sqrt(2) as the sum of two doubles.
constexpr double rootHalf = 0.70710678118654752440;
constexpr double rootHalfRest = -4.8336466567264567e-17;

constexpr double fourOverPi = 1.2732395447351627;

// The quantile z of an upper tail t, with s = sqrt(-2 log t), as sums of a large part that is exact, or nearly so, and
// of a small quotient:
//   z = q (5/2 + centre(q^2)), q = 1/2 - t,    1/4 < t <= 1/2
//   z = s^2 / 4 + shoulder(s - 9/4),           s below 2.8
//   z = s - tail(s),                           s from 2.8, 5, 9 and 18 on; 38.6 belongs to the least double
// The relative errors of z are below 1.9e-17 before rounding.
constexpr Rational centre = {{0.006628274631000503, 2.54067749693695, -27.183316299369732, 104.43296495234851,
                              -174.9974096697626, 119.67569621953581, -22.940642420975202},
                             {1.0, -12.711829051668115, 62.13910281237874, -145.78299867792856, 166.1984412624756,
                              -81.05124787580586, 11.180079682075407}};
constexpr double shoulderMiddle = 2.25;
constexpr Rational shoulder = {{0.14241570409907556, 0.24876537567578372, -0.14796162102600927, -0.2901831736422372,
                                -0.12351902041948104, -0.02001228063594723, -0.001043803564048802},
                               {1.0, 1.1559606463160268, 0.47096027445415384, 0.0779698749432987, 0.0041753624220911955,
                                -2.32374794081921e-08, 5.748139308355919e-10}};
constexpr double tailStarts[] = {2.8, 5, 9, 18};
constexpr Rational tails[] = {{{2.7618936707939654, -16.20486898729231, -46.15413517305238, -11.415161210818095,
                                -0.16090671815061697, 0.02037399517509381, 4.205707111335896e-05},
                               {1.0, -3.5678854876540202, -28.512578155169564, -22.049355369215633, -2.9040252166496074,
                                0.0169560140958011, 0.003938321061775842}},
                              {{3.1412433280123127, 8.05477926708511, 1.9552661498794153, -0.051118139348433775,
                                -0.016163172122391527, -0.00030407247596734254, -1.8171689354102405e-07},
                               {1.0, 5.045233204816193, 3.8447652901254235, 0.44912560953458747, -0.03514343236033471,
                                -0.003759476366785338, -4.7341589377302794e-05}},
                              {{3.095064193406441, 7.973690463486106, 2.7990959167383824, 0.2603636921362788,
                                0.007058570211683102, 4.433299623010235e-05, 1.0237606760051694e-08},
                               {1.0, 4.933603565470056, 4.215644325038885, 0.9166620549398379, 0.06227233047040671,
                                0.0012959572328648601, 6.070400589618278e-06}},
                              {{2.4466176746581016, 1.5971279645240306, 0.23197762609345998, 0.010001478622145933,
                                0.00012986831174860753, 3.9302256193161954e-07, 4.0946353873345646e-11},
                               {1.0, 1.7349549521175731, 0.6035127864618046, 0.061512063765532664,
                                0.0020476683006510127, 2.1127536252505227e-05, 4.9094729941927326e-08}}};

// The logarithm is not under a root until its error, which the root halves, is small beside z.
double QuantileOfTail(double tail) {
  if (tail > 0.25) {
    const double q = 0.5 - tail;
    return q * (2.5 + centre.At(q * q));
  }
  const double log = -std::log(tail);
  const double s = std::sqrt(2 * log);
  if (s < tailStarts[0]) return log / 2 + shoulder.At(s - shoulderMiddle);
  const int i = (s >= tailStarts[1]) + (s >= tailStarts[2]) + (s >= tailStarts[3]);
  return s - tails[i].At(s);
}

}  // namespace

// erfc(z / sqrt(2)) / 2. In the upper tail the rounding of the argument t = z / sqrt(2) by e costs a relative
// 2 t e, a thousand units in the last place at z = 37. The rounding is therefore computed, and undone with the
// derivative of log(erfc), -(t + sqrt(t^2 + c)) with c between 4 / pi and 2 (Abramowitz and Stegun 7.1.13).
double NormalUpperTail(double z) {
  const double argument = z * rootHalf;
  const double probability = 0.5 * std::erfc(argument);
  if (!(argument > 0) || probability == 0) return probability;
  const double rounding = std::fma(z, rootHalf, -argument) + z * rootHalfRest;
  return probability * (1 - rounding * (argument + std::sqrt(argument * argument + fourOverPi)));
}

// 1 - p is exact from 1/2 on.
double NormalUpperQuantile(double p) { return p <= 0.5 ? QuantileOfTail(p) : -QuantileOfTail(1 - p); }

double KelDistFun::CdfStdNorm(double z) noexcept { return NormalUpperTail(-z); }

double KelDistFun::IdfStdNorm(double p) noexcept {
  if (std::isnan(p)) return p;
  if (p < 0) return KelMV::Missing();
  if (p > 1) return KelMV::Missing();
  if (p == 0) return -std::numeric_limits<double>::infinity();
  if (p == 1) return std::numeric_limits<double>::infinity();
  if (p == 0.5) return 0;
  return -NormalUpperQuantile(p);
}

}  // namespace KelMath
