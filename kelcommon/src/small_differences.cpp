#include "small_differences.h"

#include <cmath>

namespace KelMath {

namespace {

// Where the power series take over. Farther out the difference itself loses less than a digit.
constexpr double lowestOfSeries = -0.5;
constexpr double highestOfSeries = 0.75;
constexpr double seriesLimit = 0.3;
constexpr double shortSeriesLimit = 0.02;

// atanh(r) / r = 1 + s (1/3 + s / 5 + ...), s = r^2: the terms in s from that of 1/13 on, even and odd ones side by
// side.
double FartherTerms(double s) {
  const double s2 = s * s;
  const double even = 1.0 / 13 + s2 * (1.0 / 17 + s2 * (1.0 / 21));
  const double odd = 1.0 / 15 + s2 * (1.0 / 19 + s2 * (1.0 / 23));
  return even + s * odd;
}

double FarthestTerms(double s) {
  const double s2 = s * s;
  const double even = 1.0 / 25 + s2 * (1.0 / 29 + s2 * (1.0 / 33 + s2 * (1.0 / 37)));
  const double odd = 1.0 / 27 + s2 * (1.0 / 31 + s2 * (1.0 / 35));
  return even + s * odd;
}

}  // namespace

double Log1pMinusArgument(double u) {
  if (!(u >= lowestOfSeries && u <= highestOfSeries)) return std::log1p(u) - u;
  // With r = u / (2 + u): log(1 + u) = 2 atanh(r) and 2 r - u = -u r, so the linear terms cancel on paper.
  const double r = u / (2 + u);
  const double s = r * r;
  double sum = 0;
  if (std::fabs(u) > shortSeriesLimit) {
    sum = s * FartherTerms(s);
    if (std::fabs(u) > seriesLimit) sum += s * s * s * s * s * s * (s * FarthestTerms(s));
  }
  sum = 1.0 / 3 + s * (1.0 / 5 + s * (1.0 / 7 + s * (1.0 / 9 + s * (1.0 / 11 + sum))));
  return r * (2 * s * sum - u);
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

}  // namespace KelMath
