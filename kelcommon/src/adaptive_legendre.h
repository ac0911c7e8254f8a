#ifndef KELCOMMON_SRC_ADAPTIVE_LEGENDRE_H
#define KELCOMMON_SRC_ADAPTIVE_LEGENDRE_H

#include <cmath>

#include "gauss_legendre.h"

namespace KelMath {

/// The weights that give the coefficients of degrees 28 and 29 in Legendre polynomials from the values at the nodes.
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
inline constexpr HighWeights highWeights;

/// Integrals of a function that is smooth between the ends of the pieces it is given. A piece is halved while its
/// coefficients of degrees 28 and 29 in Legendre polynomials are not small beside the integral. The rule is exact up to
/// degree 59: where the coefficients fall geometrically, its error is of the order of their square.
template <typename Function>
class AdaptiveLegendre {
public:
  /// @param tolerance of the coefficients, as a part of the integral
  AdaptiveLegendre(const Function& f, double tolerance) : f_(f), tolerance_(tolerance) {}

  /// Adds a piece of the range; the first 32 count.
  void Add(double from, double to) {
    if (count_ < mostFirstPieces) pieces_[count_++] = Over(from, to);
  }

  int Count() const { return count_; }
  static constexpr int MostCount() { return mostFirstPieces; }

  double Integral() {
    double scale = 0;
    for (int i = 0; i < count_; ++i) scale += std::fabs(pieces_[i].value);
    const double tolerance = tolerance_ * scale + leastTolerance;
    double sum = 0;
    for (int i = 0; i < count_; ++i) sum += Refined(pieces_[i], tolerance, 0);
    return sum;
  }

private:
  static constexpr double leastTolerance = 1e-22;
  static constexpr int mostHalvings = 48;
  static constexpr int mostEvaluated = 500;
  static constexpr int mostFirstPieces = 32;

  struct Piece {
    double from;
    double to;
    double value;
    double roughness;
  };

  Piece Over(double from, double to) {
    ++evaluated_;
    const double half = (to - from) / 2;
    const double centre = from + half;
    double sum = 0;
    double even = 0;
    double odd = 0;
    for (int i = 0; i < gaussLegendreCount; ++i) {
      const double step = half * gaussLegendreNodes[i];
      const double left = f_(centre - step);
      const double right = f_(centre + step);
      sum += gaussLegendreWeights[i] * (left + right);
      even += highWeights.even[i] * (left + right);
      odd += highWeights.odd[i] * (right - left);
    }
    return {from, to, half * sum, half * (std::fabs(even) + std::fabs(odd))};
  }

  double Refined(const Piece& piece, double tolerance, int halvings) {
    if (!(piece.roughness > tolerance) || halvings == mostHalvings || evaluated_ >= mostEvaluated) return piece.value;
    const double centre = piece.from + (piece.to - piece.from) / 2;
    const Piece left = Over(piece.from, centre);
    const Piece right = Over(centre, piece.to);
    return Refined(left, tolerance, halvings + 1) + Refined(right, tolerance, halvings + 1);
  }

  const Function& f_;
  double tolerance_;
  Piece pieces_[mostFirstPieces];
  int count_ = 0;
  int evaluated_ = 0;
};

}  // namespace KelMath

#endif
