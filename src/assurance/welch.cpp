#include "assurance/welch.h"

#include <algorithm>
#include <cmath>

#include "assurance/first_size.h"
#include "frame/integral.h"
#include "frame/rejection.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"

// With a_i = sd_i^2 / n_i and X_i chi-square on f_i = n_i - 1 degrees of freedom, the estimated variance of the
// difference is V = a1 X1 / f1 + a2 X2 / f2. Let X = X1 + X2 and b = X1 / X. They are independent, X chi-square on
// f1 + f2 degrees of freedom and b beta with the shapes f1 / 2 and f2 / 2. Then V = X v(b), v(b) = a1 b / f1 +
// a2 (1 - b) / f2, and Welch's degrees of freedom depend on b alone, by the shares of V. So
//
//   P(t sqrt(V) <= w) = E[ P(X <= w^2 / (t(b)^2 v(b)) | b) ],
//
// an integral over the logit of b, in which the density of b is smooth and falls off at both ends.

namespace kelpower::assurance {

using kelcommon::CdfChiSquare;
using KelMath::KelDistFun;

namespace {

/// Sizes that are tried one by one, which takes a tenth of a second.
constexpr double mostScanned = 400;
constexpr double fewScanned = 15;

/// A share b with its complement, either of which may be tiny.
struct Shares {
  double b;
  double rest;

  static Shares OfLogit(double y) {
    const double e = std::exp(-std::fabs(y));
    const double larger = 1 / (1 + e);
    return y > 0 ? Shares{larger, e * larger} : Shares{e * larger, larger};
  }
};

/// The beta distribution of the logit of b.
struct LogitBeta {
  double shape1;
  double shape2;

  /// Gamma(s) / (Gamma(shape1) Gamma(shape2)) b^shape1 (1 - b)^shape2, s = shape1 + shape2, told as a binomial mass
  double Density(const Shares& shares) const {
    const double sum = shape1 + shape2;
    long error = 0;
    const double mass = shares.b < 0.5 ? KelDistFun::PdfBin(shape1, sum, shares.b, error)
                                       : KelDistFun::PdfBin(shape2, sum, shares.rest, error);
    return mass * shape1 * (shape2 / sum);
  }

  double Quantile(double p) const { return Logit(KelDistFun::IdfBeta(p, shape1, shape2)); }
  double UpperQuantile(double p) const { return -Logit(KelDistFun::IdfBeta(p, shape2, shape1)); }

private:
  static double Logit(double b) { return std::log(b) - std::log1p(-b); }
};

class WelchInterval {
public:
  WelchInterval(const UnequalGroups& groups, const Wish& wish, double n1, double n2)
      : wish_(wish), f1_(n1 - 1), f2_(n2 - 1) {
    const double sd1 = groups.sd1 / wish.halfWidth;
    const double sd2 = groups.sd2 / wish.halfWidth;
    v1_ = sd1 * sd1 / n1 / f1_;
    v2_ = sd2 * sd2 / n2 / f2_;
  }

  double Assurance() const {
    const LogitBeta beta{f1_ / 2, f2_ / 2};
    const auto integrand = [&](double y) {
      const Shares shares = Shares::OfLogit(y);
      return beta.Density(shares) * AssuranceGiven(shares);
    };
    const double points[] = {beta.Quantile(1e-17),     beta.Quantile(1e-6),      beta.Quantile(0.02),
                             beta.Quantile(0.5),       beta.UpperQuantile(0.02), beta.UpperQuantile(1e-6),
                             beta.UpperQuantile(1e-17)};
    double sum = 0;
    for (int i = 0; i < 6; ++i) sum += Integrate(integrand, points[i], points[i + 1], tolerance).value;
    return std::clamp(sum, 0.0, 1.0);
  }

private:
  static constexpr double tolerance = 1e-12;

  double AssuranceGiven(const Shares& shares) const {
    const double part1 = v1_ * shares.b;
    const double part2 = v2_ * shares.rest;
    const double sum = part1 + part2;
    const double share1 = part1 / sum;
    const double share2 = part2 / sum;
    const double df = 1 / (share1 * (share1 / f1_) + share2 * (share2 / f2_));
    const double t = IntervalQuantileT(wish_.alpha, df);
    return CdfChiSquare(1 / (t * t * sum), f1_ + f2_);
  }

  Wish wish_;
  double f1_;
  double f2_;
  double v1_;  ///< a1 / f1 over the squared half-width
  double v2_;
};

bool Rejects(const UnequalGroups& groups) {
  if (RejectsStandardDeviation(groups.sd1)) return true;
  return RejectsStandardDeviation(groups.sd2);
}

double AssuranceAt(const UnequalGroups& groups, const Wish& wish, double n1, double n2) {
  if (wish.halfWidth == 0) return 0;
  if (std::isinf(wish.halfWidth)) return 1;
  return WelchInterval(groups, wish, n1, n2).Assurance();
}

}  // namespace

Answer Assurance(const UnequalGroups& groups, const Wish& wish, double n1, double n2) {
  if (n1 <= 1) return NoValue::Refused;
  if (n2 <= 1) return NoValue::Refused;
  if (Rejects(groups)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  return AssuranceAt(groups, wish, n1, n2);
}

Answer FirstSize(const UnequalGroups& groups, const Wish& wish, double ratio, double assurance) {
  if (ratio <= 0) return NoValue::Refused;
  if (Rejects(groups)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  if (RejectsOpenUnit(assurance)) return NoValue::Refused;
  const double smallest = std::max(2.0, std::ceil(2 / ratio));
  const double wanted = std::max(15 / std::min(ratio, 1.0), -36 * std::log(assurance) / (1 + ratio));
  const double scanned = wanted <= mostScanned ? wanted : fewScanned;
  return FirstSize(
      {smallest, smallest + scanned}, [&](double n) { return AssuranceAt(groups, wish, n, ratio * n); }, assurance);
}

}  // namespace kelpower::assurance
