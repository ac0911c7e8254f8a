#include "kelcommon/chi_integral.h"

#include <algorithm>
#include <cmath>

#include "adaptive_legendre.h"
#include "log_gamma.h"
#include "small_differences.h"

// With u = e^v and b = df / 2 the density of v is
//   2 sqrt(b / (2 pi)) / G(b) exp(-b (e^{2v} - 1 - 2v)),
// G the scaled gamma function. It has its mode at v = 0 and is smooth for every b, while that of u has a pole at 0 below
// one degree of freedom.

namespace kelcommon {

namespace {

constexpr double twoPi = 6.283185307179586477;

// The density is left where it has fallen by e^-40; where the function is so much larger there than at the mode that a
// part of the mean of that size would be missed, by e^-70.
constexpr double usualFall = 40;
constexpr double longFall = 70;
constexpr double negligible = 1e-16;

// Of the highest coefficients. Where the density is far wider than what changes in it, they fall less fast than
// geometrically, and the error is more than their square.
constexpr double tolerance = 1e-9;

// Degrees of freedom beyond which nothing changes, and the squares of small numbers would vanish.
constexpr double leastDf = 1e-290;
constexpr double mostDf = 1e100;

// Where e^{2v} - 1 - 2v has grown to c on the left, or somewhat farther out: with x = -2v, e^-x - 1 + x is at least
// x^2 / (2 + x).
double LeftEnd(double c) { return -(c + std::sqrt(c) * std::sqrt(c + 8)) / 4; }

// The same on the right: with x = 2v, e^x - 1 - x is at least x^2 / 2.
double RightEnd(double c) {
  const double most = std::sqrt(2 * c);
  return std::min(most, std::log1p(c + most)) / 2;
}

// The least point above `from`, but at most `to`, where a new piece is to start: a break, the mode, or one of those that
// make the long left side of few degrees of freedom shorter from piece to piece, lest a node be far from all that
// changes.
double NextBreak(const ChiRange& range, double from, double to) {
  double next = to;
  for (double v : {0.0, -3.0, -12.0, -48.0, -192.0, -768.0})
    if (v > 2 * from / 3 - 1 && v > from && v < next) next = v;
  for (int i = 0; i < range.breakCount; ++i) {
    const double v = std::log(range.breaks[i]);
    if (v > from && v < next) next = v;
  }
  return next;
}

}  // namespace

double MeanOverChi(ChiFunction g, double df, const ChiRange& range) noexcept {
  if (!(df > 0) || std::isnan(range.limit)) return std::numeric_limits<double>::quiet_NaN();
  if (range.limit <= 0) return 0;
  const double b = std::min(std::max(df, leastDf), mostDf) / 2;
  const double limit = std::log(range.limit);
  const double height = 2 * std::sqrt(b / twoPi) * std::exp(-KelMath::LogScaledGamma(b));
  const auto Integrand = [=](double v) {
    return height * std::exp(-b * KelMath::Expm1MinusArgument(2 * v)) * g(std::exp(v));
  };
  // Below the mode the density falls from its value at the limit.
  const double fallenAtLimit = limit < 0 ? KelMath::Expm1MinusArgument(2 * limit) : 0;
  const double least = negligible * std::fabs(Integrand(std::min(limit, 0.0)));
  double from = LeftEnd(usualFall / b + fallenAtLimit);
  if (!(std::fabs(Integrand(from)) <= least)) from = LeftEnd(longFall / b + fallenAtLimit);
  double to = std::min(RightEnd(usualFall / b), limit);
  if (to < limit && !(std::fabs(Integrand(to)) <= least)) to = std::min(RightEnd(longFall / b), limit);
  KelMath::AdaptiveLegendre pieces(Integrand, tolerance);
  for (double left = from; left < to;) {
    const double right = pieces.Count() + 1 < pieces.MostCount() ? NextBreak(range, left, to) : to;
    pieces.Add(left, right);
    left = right;
  }
  return pieces.Integral();
}

}  // namespace kelcommon
