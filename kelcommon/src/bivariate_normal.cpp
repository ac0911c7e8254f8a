#include <algorithm>
#include <cmath>
#include <limits>

#include "adaptive_legendre.h"
#include "double_double.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_mv.h"
#include "normal.h"

// Given X = z, Y is normal with mean rho z and standard deviation r = sqrt(1 - rho^2):
//   P(X <= a, Y <= b) = int_{-infinity}^a phi(z) Phi((b - rho z) / r) dz
// (Owen 1956, "Tables for computing bivariate normal probabilities", Annals of Mathematical Statistics 27). Nothing
// cancels, so that small probabilities keep their digits.

namespace kelcommon {

namespace {

using KelCommon::KelMV;
using KelMath::NormalUpperTail;

constexpr double densityAtZero = 0.39894228040143267794;

// The probability beyond is 0.
constexpr double farPoint = 40;

// The integrand is left where it has fallen by e^-40.
constexpr double fallOfSquare = 80;

// Pieces about a change within r: the rest of it is below the last digit.
constexpr double widthOfChange = 8;
constexpr double narrowChange = 0.3;

double Lower(double z) { return NormalUpperTail(-z); }

// P(-b < X <= a).
double Between(double a, double b) {
  if (a <= -b) return 0;
  return a < 0 ? Lower(a) - Lower(-b) : Lower(b) - Lower(-a);
}

class Quadrant {
public:
  Quadrant(double a, double b, double rho)
      : a_(a), b_(b), rho_(rho), r_(std::sqrt((1 - rho) * (1 + rho))), origin_(std::fabs(rho) > 0.5 ? b / rho : 0) {}

  // Positions are counted from where the conditional mean of Y is b, lest the difference lose its digits.
  double Probability() const {
    const double peak = Peak();
    const double square = Square(peak) + fallOfSquare;
    const double from = Edge(-std::sqrt(square), square, -1) - origin_;
    const double to = std::min(FromOrigin(a_), Edge(std::sqrt(square), square, 1) - origin_);
    const auto Density = [this](double s) {
      const double z = origin_ + s;
      const double distance = origin_ == 0 ? b_ - rho_ * z : -rho_ * s;
      return std::exp(-z * z / 2) * Lower(distance / r_);
    };
    double breaks[6] = {peak - origin_};
    int count = 1;
    if (r_ < narrowChange) {
      const double change = widthOfChange * r_;
      for (double s : {peak - origin_ - change, peak - origin_ + change, 0.0, -change / rho_, change / rho_})
        breaks[count++] = s;
    }
    std::sort(breaks, breaks + count);
    KelMath::AdaptiveLegendre pieces(Density, 1e-9);
    double left = from;
    for (int i = 0; i <= count; ++i) {
      const double right = i < count ? std::min(breaks[i], to) : to;
      if (!(right > left)) continue;
      pieces.Add(left, right);
      left = right;
    }
    return densityAtZero * pieces.Integral();
  }

private:
  // z - origin, of which a correlation near 1 or -1 magnifies every error.
  double FromOrigin(double z) const {
    if (origin_ == 0) return z;
    const KelMath::DoubleDouble product = KelMath::ExactProduct(rho_, z);
    return ((product.hi - b_) + product.lo) / rho_;
  }

  // The least square of the standardized distance of a point with X = z in the quadrant's strip.
  double Square(double z) const {
    if (rho_ * z <= b_) return z * z;
    const double y = (z - rho_ * b_) / r_;
    return b_ * b_ + y * y;
  }

  // Where X is at the point of the quadrant nearest to the centre.
  double Peak() const {
    if (a_ >= 0 && b_ >= 0) return 0;
    if (b_ < 0 && rho_ * b_ <= a_) return rho_ * b_;
    return a_;
  }

  // Where the square has grown that far on one side.
  double Edge(double z, double square, double sign) const {
    if (rho_ * z <= b_) return z;
    return rho_ * b_ + sign * r_ * std::sqrt(std::max(square - b_ * b_, 0.0));
  }

  double a_;
  double b_;
  double rho_;
  double r_;
  double origin_;
};

}  // namespace

double CdfBivariateNormal(double a, double b, double rho) noexcept {
  if (std::isnan(a) || std::isnan(b) || std::isnan(rho)) return std::numeric_limits<double>::quiet_NaN();
  if (rho < -1 || rho > 1) return KelMV::Missing();
  if (a < -farPoint || b < -farPoint) return 0;
  if (a > farPoint || b > farPoint) return Lower(std::min(a, b));
  if (rho == 1) return Lower(std::min(a, b));
  if (rho == -1) return Between(a, b);
  if (rho == 0) return Lower(a) * Lower(b);
  return std::min(Quadrant(a, b, rho).Probability(), 1.0);
}

}  // namespace kelcommon
