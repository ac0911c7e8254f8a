#include "comparisons/dunnett.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "comparisons/normal_means.h"
#include "frame/bracketed_root.h"
#include "frame/rejection.h"
#include "kelcommon/chi_integral.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::comparisons {

namespace {

using KelMath::KelDistFun;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// The normal probability above x. From `reach` on it adds no digit.
double NormalAbove(double x, double reach) {
  if (x > reach) return 0;
  return x < -8.5 ? 1 : std::erfc(x * rootHalf) / 2;
}

// Of n independent events, each of probability x, at least one. Small probabilities keep their digits.
double AnyOf(double x, int n) {
  double any = 0;
  for (; n > 0; n /= 2, x *= 2 - x)
    if (n % 2 != 0) any += (1 - any) * x;
  return any;
}

// How often the density of u is that at u / e^shift, where u is the square root of a chi-square variable over its df.
double DensityRatio(double u, double shift, double df) {
  const double fall = std::expm1(-2 * shift);
  return std::exp(-df / 2 * ((u - 1) * (u + 1) * fall + (fall + 2 * shift)));
}

// Of the trapezoidal rule over y, which converges geometrically. What it sums changes the faster, the more groups there
// are and the larger they are beside the control. Two steps suffice, of which the second is the larger one for few
// groups: the spectrum of a product of normal densities and probabilities falls as that of a normal density whose
// precision is the sum of theirs.
double StepOver(const std::vector<double>& sizes, double alpha) {
  constexpr double pi = 3.14159265358979323846;
  const double largest = *std::max_element(sizes.begin() + 1, sizes.end());
  const double groups = static_cast<double>(sizes.size());
  const double ofMany = 1 / ((1.1 + 1.15 * std::log(2 * groups)) * std::sqrt((1 + largest / sizes.front()) / 2 + 0.5));
  const double precision = std::accumulate(sizes.begin(), sizes.end(), 0.0) / sizes.front();
  return std::max(ofMany, pi * std::sqrt(2 / (precision * (36 - std::log(alpha)))));
}

// Values of a function that is asked for in the same order time and again.
template <typename Function>
class Remembered {
public:
  explicit Remembered(const Function& f) : f_(f) {}

  void StartAgain() { next_ = 0; }

  double operator()(double u) {
    if (next_ < u_.size() && u_[next_] == u) return values_[next_++];
    const double value = f_(u);
    if (next_ == u_.size()) {
      u_.push_back(u);
      values_.push_back(value);
      ++next_;
    }
    return value;
  }

private:
  const Function& f_;
  std::vector<double> u_;
  std::vector<double> values_;
  std::size_t next_ = 0;
};

bool AreSizes(const std::vector<double>& sizes) {
  if (sizes.size() < 2 || sizes.size() > mostTreatments) return false;
  return std::all_of(sizes.begin(), sizes.end(), [&](double size) {
    return std::isfinite(size) && size > 0 && size <= mostTimesControl * sizes.front();
  });
}

}  // namespace

DunnettTest::DunnettTest(const std::vector<double>& sizes, bool isOneSided, double alpha)
    : sizes_(sizes), isOneSided_(isOneSided) {
  if (!AreSizes(sizes) || !(alpha >= leastDunnettLevel && alpha < 1)) return;
  df_ = std::accumulate(sizes.begin(), sizes.end(), 0.0) - static_cast<double>(sizes.size());
  if (!(df_ > 0)) return;
  step_ = StepOver(sizes, alpha);
  // Farther out, normal densities and probabilities are below the last digit of the level.
  reach_ = std::sqrt(2 * (39 - std::log(alpha)));
  for (int i = 0; i * step_ <= reach_; ++i)
    weights_.push_back(step_ * densityAtZero * std::exp(-i * step_ * i * step_ / 2));
  critical_ = CriticalValue(alpha);
  isValid_ = !std::isnan(critical_);
}

std::vector<double> DunnettTest::Noncentralities(const std::vector<double>& means) const {
  std::vector<double> noncentralities;
  for (std::size_t i = 1; i < std::min(means.size(), sizes_.size()); ++i)
    noncentralities.push_back((means[i] - means[0]) / std::sqrt(1 / sizes_[i] + 1 / sizes_[0]));
  return noncentralities;
}

DunnettTest::Kinds DunnettTest::KindsAt(const std::vector<double>& noncentralities) const {
  Kinds kinds;
  for (std::size_t i = 1; i < sizes_.size(); ++i) {
    const double own = std::sqrt(sizes_[0] / (sizes_[i] + sizes_[0]));
    const Kind kind{noncentralities[i - 1] / own, std::sqrt(sizes_[i] / sizes_[0]), 1 / own, 1};
    const auto same = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& other) {
      return other.slope == kind.slope && other.centre == kind.centre;
    });
    if (same == kinds.end())
      kinds.push_back(kind);
    else
      ++same->count;
  }
  return kinds;
}

// Of the two tails the farther one is left out where it is e^-38 of the nearer one.
double DunnettTest::RejectionAt(const Kind& kind, double critical, double y) const {
  const double limit = kind.scale * critical;
  const double centre = kind.centre + kind.slope * y;
  if (isOneSided_) return NormalAbove(limit - centre, reach_);
  const double distance = std::fabs(centre);
  const double nearer = NormalAbove(limit - distance, reach_);
  return limit * distance < 19 ? std::min(nearer + NormalAbove(limit + distance, reach_), 1.0) : nearer;
}

double DunnettTest::AnyAt(const Kinds& kinds, double critical, double y) const {
  double any = 0;
  for (const Kind& kind : kinds) {
    any += (1 - any) * AnyOf(RejectionAt(kind, critical, y), kind.count);
    if (any >= 1) break;
  }
  return any;
}

double DunnettTest::AllAt(const Kinds& kinds, double critical, double y) const {
  double all = 1;
  for (const Kind& kind : kinds) {
    all *= WholePower(RejectionAt(kind, critical, y), kind.count);
    if (all == 0) break;
  }
  return all;
}

// Given the control's mean y, the comparisons are independent (Dunnett 1955). Where no mean differs, both signs of y
// have the same probability of a two-sided test.
double DunnettTest::Given(Comparisons which, const Kinds& kinds, double critical) const {
  const bool isEven =
      !isOneSided_ && std::all_of(kinds.begin(), kinds.end(), [](const Kind& kind) { return kind.centre == 0; });
  const auto at = [&](double y) {
    return which == Comparisons::All ? AllAt(kinds, critical, y) : AnyAt(kinds, critical, y);
  };
  double sum = weights_[0] * at(0);
  for (std::size_t i = 1; i < weights_.size(); ++i) {
    const double y = static_cast<double>(i) * step_;
    sum += weights_[i] * (isEven ? 2 * at(y) : at(y) + at(-y));
  }
  return sum;
}

// Over u, the estimated standard deviation in units of the true one.
double DunnettTest::Mean(Comparisons which, const Kinds& kinds, double critical) const {
  const auto given = [&](double u) { return Given(which, kinds, critical * u); };
  return std::min(kelcommon::MeanOverChi(given, df_), 1.0);
}

double DunnettTest::CriticalValue(double alpha) const {
  const Kinds kinds = KindsAt(std::vector<double>(sizes_.size() - 1, 0.0));
  double critical = StartOfCritical(kinds, alpha);
  // Near 0, where the level is large, the logarithm of the critical value is no scale.
  constexpr double leastScaled = 0.5;
  for (int i = 0; i < 8 && critical > leastScaled && std::isfinite(critical); ++i) {
    const double before = critical;
    critical = ImprovedCritical(kinds, alpha, before);
    if (std::fabs(critical / before - 1) * std::sqrt(df_ + 1) < 0.25) return critical;
  }
  return BracketedCritical(kinds, alpha);
}

// The level of each comparison changes little with the degrees of freedom, and without an estimated standard deviation
// there is no integral over it.
double DunnettTest::StartOfCritical(const Kinds& kinds, double alpha) const {
  const double ofOne = alpha / (isOneSided_ ? 1 : 2);
  const double low = -KelDistFun::IdfStdNorm(ofOne);
  const double high = -KelDistFun::IdfStdNorm(ofOne / static_cast<double>(sizes_.size() - 1));
  const auto excess = [&](double c) { return std::log(Given(Comparisons::Any, kinds, c) / alpha); };
  const Answer normal = BracketedRoot(excess, low - 1e-9, high + 1e-9);
  return normal ? -KelDistFun::IdfT(NormalAbove(*normal, 40), df_, 0, 0) : nan;
}

// With u in units of another critical value, what is asked at the nodes stays the same and the density of u moves. So
// one integral serves every critical value nearby.
double DunnettTest::ImprovedCritical(const Kinds& kinds, double alpha, double critical) const {
  const auto given = [&](double u) { return Given(Comparisons::Any, kinds, critical * u); };
  Remembered remembered(given);
  const auto excess = [&](double shift) {
    remembered.StartAgain();
    const auto moved = [&](double u) { return DensityRatio(u, shift, df_) * remembered(u); };
    return std::log(kelcommon::MeanOverChi(moved, df_) / alpha);
  };

  double before = 0;
  double excessBefore = excess(0);
  double shift = excessBefore / (1 + critical * critical / (1 + critical * critical / df_));
  for (int i = 0; i < 20 && std::fabs(shift - before) > 1e-14; ++i) {
    const double now = excess(shift);
    const double next = shift - now * (shift - before) / (now - excessBefore);
    if (now == excessBefore) break;
    before = shift;
    excessBefore = now;
    shift = next;
  }
  return critical * std::exp(shift);
}

// Between the critical value of one comparison and that of Bonferroni.
double DunnettTest::BracketedCritical(const Kinds& kinds, double alpha) const {
  const double sides = isOneSided_ ? 1 : 2;
  const double target = std::log(alpha);
  const auto value = [&](double log) { return -KelDistFun::IdfT(std::exp(log) / sides, df_, 0, 0); };
  const auto excess = [&](double log) { return std::log(Mean(Comparisons::Any, kinds, value(log))) - target; };
  const double low = target - std::log(static_cast<double>(sizes_.size() - 1)) - 1e-9;
  const Answer log = BracketedRoot(excess, low, std::min(target + 1e-9, 0.0));
  return log ? value(*log) : nan;
}

Answer DunnettTest::PowerOfOne(double noncentrality) const {
  if (!isValid_ || std::isnan(noncentrality)) return NoValue::Refused;
  const TTest test{df_, critical_};
  return std::min(isOneSided_ ? test.PowerUpperTail(noncentrality) : test.PowerBothTails(std::fabs(noncentrality)),
                  1.0);
}

Answer DunnettTest::Power(Comparisons which, const std::vector<double>& noncentralities) const {
  if (!isValid_ || noncentralities.size() + 1 != sizes_.size()) return NoValue::Refused;
  for (const double noncentrality : noncentralities)
    if (!std::isfinite(noncentrality)) return NoValue::Refused;
  return Mean(which, KindsAt(noncentralities), critical_);
}

double HalfWidthOfComparison(double sd, const std::vector<double>& sizes, std::size_t group, double alpha) {
  const DunnettTest test(sizes, false, alpha);
  if (!test.IsValid() || group < 1 || group >= sizes.size()) return nan;
  return test.Critical() * sd * std::sqrt(1 / sizes[group] + 1 / sizes[0]);
}

}  // namespace kelpower::comparisons
