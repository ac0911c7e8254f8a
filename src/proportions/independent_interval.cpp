#include "proportions/independent_interval.h"

#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/wald.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

struct Group {
  double size;
  double p;
};

double Variance(double p) { return p * (1 - p); }

/// The proportion after `added` successes and as many failures more.
double Shrunk(const Group& group, double added) { return (group.size * group.p + added) / (group.size + 2 * added); }

struct ScoreDistances {
  double below;  ///< from the proportion to its lower limit
  double above;
};

/// Of Wilson's interval, taken from the proportion itself: the limits less the proportion would lose digits. The
/// correction widens it by half a unit on either side.
ScoreDistances ScoreInterval(const Group& group, double z, bool continuityCorrection) {
  const double n = group.size;
  const double p = group.p;
  if (!continuityCorrection) {
    const double scale = 1 + z * z / n;
    const double pull = z * z / n * (0.5 - p);
    const double reach = z * std::sqrt((z * z / 4 / n + Variance(p)) / n);
    return {(reach - pull) / scale, (reach + pull) / scale};
  }
  const double scale = z * z + n;  // numerators and denominator are half of the paper's, against overflow
  const double pull = z * z * (0.5 - p);
  const double spread = z * z - 1 / n + 4 * (n * Variance(p));
  const double reachBelow = 0.5 * z * std::sqrt(spread + 4 * p - 2);
  const double reachAbove = 0.5 * z * std::sqrt(spread - 4 * p + 2);
  return {(0.5 - pull + reachBelow) / scale, (0.5 + pull + reachAbove) / scale};
}

// Newcombe, R. G. (1998), Interval estimation for the difference between independent proportions: comparison of eleven
// methods, Statistics in Medicine 17, 873-890, methods 10 and 11.
double NewcombeHalfWidth(const Group& group1, const Group& group2, double z, bool continuityCorrection) {
  const ScoreDistances first = ScoreInterval(group1, z, continuityCorrection);
  const ScoreDistances second = ScoreInterval(group2, z, continuityCorrection);
  return (std::hypot(second.below, first.above) + std::hypot(first.below, second.above)) / 2;
}

}  // namespace

IndependentInterval::IndependentInterval(const Design& design)
    : design_(design), z_(KelDistFun::IdfStdNorm(1 - design.alpha / 2)) {}

double IndependentInterval::HalfWidth(double size1, double size2) const {
  const auto& [method, p1, p2, alpha, isCorrected] = design_;
  const Group group1{size1, p1};
  const Group group2{size2, p2};
  switch (method) {
    case IndependentMethod::AgrestiCaffo:
      return z_ * std::sqrt(Variance(Shrunk(group1, 1)) / (size1 + 2) + Variance(Shrunk(group2, 1)) / (size2 + 2));
    case IndependentMethod::AgrestiCaffoUnbiased:
      return z_ * std::sqrt(Variance(Shrunk(group1, 1)) / (size1 + 3) + Variance(Shrunk(group2, 1)) / (size2 + 3));
    case IndependentMethod::HalfAdded:
      return z_ * std::sqrt(Variance(Shrunk(group1, 0.5)) / size1 + Variance(Shrunk(group2, 0.5)) / size2);
    case IndependentMethod::UnbiasedCorrected:
      return z_ * std::sqrt(Variance(p1) / (size1 - 1) + Variance(p2) / (size2 - 1)) +
             0.5 / (size2 / size1 >= 1 ? size1 : size2);
    case IndependentMethod::Newcombe: return NewcombeHalfWidth(group1, group2, z_, isCorrected);
    case IndependentMethod::Wald: break;
  }
  const double halfWidth = z_ * std::sqrt(Variance(p1) / size1 + Variance(p2) / size2);
  return isCorrected ? halfWidth + (1 / size1 + 1 / size2) / 2 : halfWidth;
}

Answer IndependentInterval::FirstSizeFor(double halfWidth, double ratio, Stop stop) const {
  const auto& [method, p1, p2, alpha, isCorrected] = design_;
  if (method == IndependentMethod::Wald) {
    const double variance = Variance(p1) + Variance(p2) / ratio;
    return isCorrected ? CorrectedWaldSize(halfWidth, variance, z_, (ratio + 1) / ratio / 2)
                       : WaldSize(halfWidth, variance, z_);
  }
  const auto excess = [&](double size1) { return halfWidth - HalfWidth(size1, ratio * size1); };
  return SolveContinuous(2, 400, 1e-9, excess, stop);
}

}  // namespace kelpower::proportions
