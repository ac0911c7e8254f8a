#include "comparisons/dunnett.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "frame/bracketed_root.h"
#include "frame/rejection.h"
#include "kelcommon/chi_integral.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::comparisons {

namespace {

using KelMath::KelDistFun;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double rootHalf = 0.70710678118654752440;
constexpr double densityAtZero = 0.39894228040143267794;

// Beyond, the density of the control's mean is below the last digit.
constexpr double reach = 9;

double NormalBelow(double z) { return std::erfc(-z * rootHalf) / 2; }

double WholePower(double x, int n) {
  double power = 1;
  for (; n > 0; n /= 2, x *= x)
    if (n % 2 != 0) power *= x;
  return power;
}

bool AreSizes(const std::vector<double>& sizes) {
  if (sizes.size() < 2 || sizes.size() > mostTreatments) return false;
  return std::all_of(sizes.begin(), sizes.end(), [&](double size) {
    return std::isfinite(size) && size > 0 && size <= mostTimesControl * sizes.front();
  });
}

}  // namespace

DunnettTest::DunnettTest(const std::vector<double>& sizes, bool isOneSided, double alpha)
    : sizes_(sizes), isOneSided_(isOneSided) {
  if (!AreSizes(sizes) || !(alpha > 0 && alpha < 1)) return;
  df_ = std::accumulate(sizes.begin(), sizes.end(), 0.0) - static_cast<double>(sizes.size());
  if (!(df_ > 0)) return;
  // The trapezoidal rule over y converges geometrically. What it sums changes the faster, the more groups there are and
  // the larger they are beside the control.
  const double largest = *std::max_element(sizes.begin() + 1, sizes.end());
  const double groups = static_cast<double>(sizes.size());
  step_ = 1 / ((1.1 + 1.15 * std::log(2 * groups)) * std::sqrt((1 + largest / sizes.front()) / 2 + 0.5));
  critical_ = CriticalValue(alpha);
  isValid_ = !std::isnan(critical_);
}

std::vector<double> DunnettTest::Noncentralities(const std::vector<double>& means) const {
  std::vector<double> noncentralities;
  for (std::size_t i = 1; i < std::min(means.size(), sizes_.size()); ++i)
    noncentralities.push_back((means[i] - means[0]) / std::sqrt(1 / sizes_[i] + 1 / sizes_[0]));
  return noncentralities;
}

std::vector<DunnettTest::Kind> DunnettTest::Kinds(const std::vector<double>& noncentralities) const {
  std::vector<Kind> kinds;
  for (std::size_t i = 1; i < sizes_.size(); ++i) {
    const double both = sizes_[i] + sizes_[0];
    const Kind kind{std::sqrt(sizes_[i] / both), std::sqrt(sizes_[0] / both), noncentralities[i - 1], 1};
    const auto same = std::find_if(kinds.begin(), kinds.end(), [&](const Kind& other) {
      return other.shared == kind.shared && other.noncentrality == kind.noncentrality;
    });
    if (same == kinds.end())
      kinds.push_back(kind);
    else
      ++same->count;
  }
  return kinds;
}

// Given the control's mean y and u, the estimated standard deviation in units of the true one, the comparisons are
// independent (Dunnett 1955). That any is significant is summed from the probabilities of each, so that a small level
// keeps its digits.
double DunnettTest::Mean(Comparisons which, const std::vector<Kind>& kinds, double critical) const {
  const int nodes = static_cast<int>(reach / step_);
  const auto given = [&](double u) {
    const double c = critical * u;
    double sum = 0;
    for (int i = -nodes; i <= nodes; ++i) {
      const double y = i * step_;
      double all = 1;
      double logNone = 0;
      for (const Kind& kind : kinds) {
        const double centre = kind.noncentrality + kind.shared * y;
        double rejects = NormalBelow((centre - c) / kind.own);
        if (!isOneSided_) rejects = std::min(rejects + NormalBelow((-c - centre) / kind.own), 1.0);
        if (which == Comparisons::All)
          all *= WholePower(rejects, kind.count);
        else
          logNone += kind.count * std::log1p(-rejects);
      }
      sum += std::exp(-y * y / 2) * (which == Comparisons::All ? all : -std::expm1(logNone));
    }
    return sum * step_ * densityAtZero;
  };
  return std::min(kelcommon::MeanOverChi(given, df_), 1.0);
}

// Between the critical value of one comparison and that of Bonferroni. Against the logarithm of what a single t test has
// above c, the logarithm of the level is almost a straight line.
double DunnettTest::CriticalValue(double alpha) const {
  const std::vector<Kind> kinds = Kinds(std::vector<double>(sizes_.size() - 1, 0.0));
  const double sides = isOneSided_ ? 1 : 2;
  const double target = std::log(alpha);
  const auto value = [&](double log) { return -KelDistFun::IdfT(std::exp(log) / sides, df_, 0, 0); };
  const auto excess = [&](double log) { return std::log(Mean(Comparisons::Any, kinds, value(log))) - target; };

  const double low = target - std::log(static_cast<double>(sizes_.size() - 1));
  double x = low;
  double slope = 1;
  double before = 0;
  double valueBefore = 0;
  for (int i = 0; i < 20; ++i) {
    const double at = excess(x);
    if (i > 0) slope = (at - valueBefore) / (x - before);
    const double next = x - at / slope;
    if (!std::isfinite(next) || next < low || next > 0) break;
    if (std::fabs(next - x) < 1e-9) return value(next);
    before = x;
    valueBefore = at;
    x = next;
  }
  const Answer log = BracketedRoot(excess, low - 1e-9, std::min(target + 1e-9, 0.0));
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
  return Mean(which, Kinds(noncentralities), critical_);
}

double HalfWidthOfComparison(double sd, const std::vector<double>& sizes, std::size_t group, double alpha) {
  const DunnettTest test(sizes, false, alpha);
  if (!test.IsValid() || group < 1 || group >= sizes.size()) return nan;
  return test.Critical() * sd * std::sqrt(1 / sizes[group] + 1 / sizes[0]);
}

}  // namespace kelpower::comparisons
