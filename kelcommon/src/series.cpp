#include "series.h"

#include <cmath>

namespace KelMath {

namespace {

constexpr double twoPi = 6.283185307179586477;

// Where the power series take over: they then need at most a dozen terms.
constexpr double seriesLimit = 0.3;
constexpr double shortSeriesLimit = 0.02;

// z^z e^-z / Gamma(z) at 1 to 9: counts are whole more often than not.
constexpr double wholeStirlingRatios[] = {0.3678794411714423216, 0.54134113294645076758, 0.67212542296616323022,
                                          0.7814672592526583592, 0.87733684883925352821, 0.96373884628788015488,
                                          1.0430194577203651965, 1.1166922556047754092,  1.1858007600857041035};

}  // namespace

double Log1pMinusArgument(double u) {
  if (std::fabs(u) > seriesLimit) return std::log1p(u) - u;
  // With r = u / (2 + u): log(1 + u) = 2 atanh(r) and 2 r - u = -u r, so the linear terms cancel on paper.
  const double r = u / (2 + u);
  const double s = r * r;
  double sum = 0;
  if (std::fabs(u) > shortSeriesLimit)
    sum = s * (1.0 / 13 + s * (1.0 / 15 + s * (1.0 / 17 + s * (1.0 / 19 + s * (1.0 / 21 + s * (1.0 / 23))))));
  sum = 1.0 / 3 + s * (1.0 / 5 + s * (1.0 / 7 + s * (1.0 / 9 + s * (1.0 / 11 + sum))));
  return r * (2 * s * sum - u);
}

long double Log1pMinusArgument(long double u) {
  // Below, the difference of the two would lose more than five of the nineteen digits.
  if (std::fabs(u) < 1e-5L) return u * u * (-1 / 2.0L + u * (1 / 3.0L + u * (-1 / 4.0L + u / 5)));
  return std::log1p(u) - u;
}

double Expm1MinusArgument(double v) {
  if (std::fabs(v) > 0.5) return std::expm1(v) - v;
  // Taylor series 2 (e^v - 1 - v) / v^2 - 1; the first term left out is below 1e-17 of the sum. Even and odd terms are
  // summed side by side.
  const double v2 = v * v;
  const double odd =
      1.0 / 3 + v2 * (1.0 / 60 + v2 * (1.0 / 2520 + v2 * (1.0 / 181440 + v2 * (1.0 / 19958400 + v2 / 3113510400))));
  const double even = 1.0 / 12 + v2 * (1.0 / 360 + v2 * (1.0 / 20160 + v2 * (1.0 / 1814400 + v2 * (1.0 / 239500800))));
  return v2 * (1 + (v * odd + v2 * even)) / 2;
}

double StirlingRatio(double z) {
  // Below 10 the asymptotic series does not reach double precision; there the powers are moderate and direct.
  if (z < 10 && z >= 1 && z == std::floor(z)) return wholeStirlingRatios[static_cast<int>(z) - 1];
  if (z < 10) return std::pow(z, z + 1) * std::exp(-z) / std::tgamma(z + 1);
  const double s = 1 / (z * z);
  const double correction =
      (1.0 / 12 -
       s * (1.0 / 360 -
            s * (1.0 / 1260 -
                 s * (1.0 / 1680 - s * (1.0 / 1188 - s * (691.0 / 360360 - s * (1.0 / 156 - s * 3617.0 / 122400))))))) /
      z;
  return std::sqrt(z / twoPi) * std::exp(-correction);
}

}  // namespace KelMath
