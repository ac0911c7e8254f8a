#include "proportions/independent_margins.h"

#include <algorithm>
#include <cmath>

#include "frame/checks.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/independent_design.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

bool RejectsLimit(Contrast contrast, double limit) {
  return contrast == Contrast::Difference ? limit <= -1 || limit >= 1 : limit <= 0;
}

/// Variances in units of one observation of each group.
struct Variances {
  double first;
  double second;
};

/// Of the observed proportions, or of the logarithms of their odds.
Variances VariancesOf(Contrast contrast, const TwoProportions& at) {
  const double first = at.p1 * (1 - at.p1);
  const double second = at.p2 * (1 - at.p2);
  if (contrast == Contrast::OddsRatio) return {1 / first, 1 / second};
  return {first, second};
}

double LogOddsRatio(const TwoProportions& of) { return std::log(of.p2 / of.p1) + std::log((1 - of.p1) / (1 - of.p2)); }

}  // namespace

bool ContrastLimits::AreRefused() const {
  if (!HasLower() && !HasUpper()) return true;
  if (HasLower() && RejectsLimit(contrast, lower)) return true;
  if (HasUpper() && RejectsLimit(contrast, upper)) return true;
  return lower >= upper;
}

IndependentMarginTest::IndependentMarginTest(const IndependentMarginDesign& design, double size1, double size2)
    : design_(design), n1_(size1), n2_(size2), criticalZ_(-KelDistFun::IdfStdNorm(design.alpha)) {}

bool IndependentMarginTest::IsRefused() const {
  const Contrast contrast = design_.limits.contrast;
  if (design_.limits.AreRefused()) return true;
  if (RejectsGroupSize(n1_)) return true;
  if (RejectsGroupSize(n2_)) return true;
  if (RejectsAlpha(design_.alpha)) return true;
  if (contrast != Contrast::Difference && (design_.method == MarginMethod::Pooled || design_.isCorrected)) return true;
  return contrast == Contrast::OddsRatio && design_.method == MarginMethod::MiettinenNurminen;
}

// Farrington, C. P. and Manning, G. (1990), Statistics in Medicine 9, 1447-1454. A ratio is tested by p2 - limit p1,
// with the Wald method by its logarithm (Katz, D. et al. 1978, Biometrics 34, 469-474); an odds ratio always by its
// logarithm (Woolf, B. 1955, Annals of Human Genetics 19, 251-253).
LimitStatistic IndependentMarginTest::At(double limit, const TwoProportions& proportions, double sign) const {
  const Contrast contrast = design_.limits.contrast;
  const auto& [p1, p2] = proportions;
  double distance = p2 - p1 - limit;
  double weight1 = 1;  // of the variance of group 1
  double weight2 = 1;
  if (contrast == Contrast::OddsRatio) distance = LogOddsRatio(proportions) - std::log(limit);
  if (contrast == Contrast::RiskRatio) {
    const bool isOfLogarithms = design_.method == MarginMethod::Wald;
    distance = isOfLogarithms ? std::log(p2 / p1) - std::log(limit) : p2 - limit * p1;
    weight1 = isOfLogarithms ? 1 / (p1 * p1) : limit * limit;
    weight2 = isOfLogarithms ? 1 / (p2 * p2) : 1;
  }
  const auto errorAt = [&](const TwoProportions& at) {
    const Variances of = VariancesOf(contrast, at);
    return std::sqrt(weight1 * of.first / n1_ + weight2 * of.second / n2_);
  };
  const double error = errorAt(proportions);
  double nullError = error;
  if (design_.method == MarginMethod::Pooled) {
    const double mean = (0.5 * n1_ * p1 + 0.5 * n2_ * p2) / (0.5 * n1_ + 0.5 * n2_);
    nullError = errorAt({mean, mean});
  } else if (design_.method != MarginMethod::Wald) {
    nullError = errorAt(ConstrainedProportions(contrast, limit, proportions, n2_ / n1_));
    if (design_.method == MarginMethod::MiettinenNurminen) nullError *= std::sqrt(1 + 1 / (n1_ + n2_ - 1));
  }
  const double correction = design_.isCorrected ? (1 / n1_ + 1 / n2_) / 2 : 0;
  const double inside = sign * distance;
  return {inside, nullError, error, correction, (inside - criticalZ_ * nullError - correction) / error};
}

Answer IndependentMarginTest::Power(const TwoProportions& proportions) const {
  if (RejectsInnerProportion(proportions.p1)) return NoValue::Refused;
  if (RejectsInnerProportion(proportions.p2)) return NoValue::Refused;
  if (IsRefused()) return NoValue::Refused;
  const ContrastLimits& limits = design_.limits;
  if (!limits.HasUpper()) return KelDistFun::CdfStdNorm(AtLower(proportions).deviate);
  if (!limits.HasLower()) return KelDistFun::CdfStdNorm(AtUpper(proportions).deviate);
  const double lower = AtLower(proportions).deviate;
  const double upper = AtUpper(proportions).deviate;
  // Both limits are excluded but for the misses of either; in the tail in which no digits cancel.
  const double power = upper < 0 ? KelDistFun::CdfStdNorm(upper) - KelDistFun::CdfStdNorm(-lower)
                                 : KelDistFun::CdfStdNorm(lower) - KelDistFun::CdfStdNorm(-upper);
  return power < 0 ? 0 : power;
}

}  // namespace kelpower::proportions
