#include "kelcommon/chi_integral.h"

#include <algorithm>
#include <cmath>

#include "gauss_legendre.h"
#include "log_gamma.h"
#include "small_differences.h"

// With u = e^v and b = df / 2 the density of v is
//   2 sqrt(b / (2 pi)) / G(b) exp(-b (e^{2v} - 1 - 2v)),
// G the scaled gamma function. It has its mode at v = 0 and is smooth for every b, while that of u has a pole at 0 below
// one degree of freedom.

namespace kelcommon {

namespace {

using KelMath::gaussLegendreCount;
using KelMath::gaussLegendreNodes;
using KelMath::gaussLegendreWeights;

constexpr double twoPi = 6.283185307179586477;

// The density is left where it has fallen by e^-40.
constexpr double fallOfDensity = 40;

// Degrees of freedom beyond which nothing changes, and the squares of small numbers would vanish.
constexpr double leastDf = 1e-290;
constexpr double mostDf = 1e100;

// A piece is halved while its coefficients of degrees 28 and 29 in Legendre polynomials are above this part of the mean.
// The rule is exact up to degree 59: where the coefficients fall geometrically, its error is of the order of their
// square.
constexpr double coefficientTolerance = 1e-9;
constexpr double leastTolerance = 1e-18;

constexpr int mostHalvings = 48;
constexpr int mostPieces = 500;
constexpr int mostFirstPieces = 32;

// The weights that give the coefficients of degrees 28 and 29 from the values at the nodes.
struct HighWeights {
  double even[gaussLegendreCount] = {};
  double odd[gaussLegendreCount] = {};

  constexpr HighWeights() {
    for (int i = 0; i < gaussLegendreCount; ++i) {
      const double x = gaussLegendreNodes[i];
      double before = 1;
      double now = x;
      for (int k = 1; k < 29; ++k) {
        const double next = ((2 * k + 1) * x * now - k * before) / (k + 1);
        before = now;
        now = next;
      }
      even[i] = 57 * gaussLegendreWeights[i] * before / 2;
      odd[i] = 59 * gaussLegendreWeights[i] * now / 2;
    }
  }
};
constexpr HighWeights high;

struct Piece {
  double value;
  double roughness;
};

class Quadrature {
public:
  Quadrature(ChiFunction g, double b)
      : g_(g), b_(b), height_(2 * std::sqrt(b / twoPi) * std::exp(-KelMath::LogScaledGamma(b))) {}

  Piece Over(double from, double to) {
    ++pieces_;
    const double half = (to - from) / 2;
    const double centre = from + half;
    Piece piece{0, 0};
    double even = 0;
    double odd = 0;
    for (int i = 0; i < gaussLegendreCount; ++i) {
      const double step = half * gaussLegendreNodes[i];
      const double left = At(centre - step);
      const double right = At(centre + step);
      piece.value += gaussLegendreWeights[i] * (left + right);
      even += high.even[i] * (left + right);
      odd += high.odd[i] * (right - left);
    }
    piece.value *= half;
    piece.roughness = half * (std::fabs(even) + std::fabs(odd));
    return piece;
  }

  // The integral over a piece that `whole` has been computed of.
  double Refined(const Piece& whole, double from, double to, double tolerance, int halvings) {
    const double centre = from + (to - from) / 2;
    if (!(whole.roughness > tolerance) || halvings == mostHalvings || pieces_ >= mostPieces) return whole.value;
    const Piece left = Over(from, centre);
    const Piece right = Over(centre, to);
    return Refined(left, from, centre, tolerance, halvings + 1) + Refined(right, centre, to, tolerance, halvings + 1);
  }

private:
  double At(double v) const { return height_ * std::exp(-b_ * KelMath::Expm1MinusArgument(2 * v)) * g_(std::exp(v)); }

  ChiFunction g_;
  double b_;
  double height_;
  int pieces_ = 0;
};

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
  const double to = std::min(RightEnd(fallOfDensity / b), limit);
  // Below the mode the density falls from its value at the limit.
  const double from = LeftEnd(fallOfDensity / b + (to < 0 ? KelMath::Expm1MinusArgument(2 * to) : 0));

  Quadrature quadrature(g, b);
  struct {
    double from;
    double to;
    Piece piece;
  } pieces[mostFirstPieces];
  int count = 0;
  double scale = 0;
  for (double left = from; left < to && count < mostFirstPieces; ++count) {
    const double right = count + 1 < mostFirstPieces ? NextBreak(range, left, to) : to;
    pieces[count] = {left, right, quadrature.Over(left, right)};
    scale += std::fabs(pieces[count].piece.value);
    left = right;
  }
  const double tolerance = coefficientTolerance * scale + leastTolerance;
  double sum = 0;
  for (int i = 0; i < count; ++i)
    sum += quadrature.Refined(pieces[i].piece, pieces[i].from, pieces[i].to, tolerance, 0);
  return sum;
}

}  // namespace kelcommon
