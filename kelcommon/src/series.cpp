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

double Expm1MinusArgument(double v) {
  if (std::fabs(v) > seriesLimit) return std::expm1(v) - v;
  double sum = 1;
  const int terms = std::fabs(v) > shortSeriesLimit ? 13 : 8;
  for (int k = terms; k >= 3; --k) sum = 1 + v / k * sum;
  return v * v / 2 * sum;
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
