#include "proportions/one_sample_margins.h"

#include <algorithm>
#include <cmath>

#include "frame/checks.h"
#include "frame/counts.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/binomial.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

bool RejectsLimit(double limit) { return limit <= 0 || limit >= 1; }

/// P(first <= X <= last). The smaller of the tails that end inside is taken, so that a small power keeps its digits.
double ProbabilityOf(const CriticalRegion& region, double size, double p) {
  if (region.lower > region.upper) return 0;
  const double failures = size - region.lower;  // at most so many
  if (region.upper >= size) return BinomialCdf(failures, size, 1 - p);
  if (region.lower <= 0) return BinomialCdf(region.upper, size, p);
  const bool isLow = region.upper < size * p;
  const double probability =
      isLow ? BinomialCdf(region.upper, size, p) - BinomialCdf(region.lower - 1, size, p)
            : BinomialCdf(failures, size, 1 - p) - BinomialCdf(size - region.upper - 1, size, 1 - p);
  return std::max(0.0, probability);
}

}  // namespace

OneSampleMarginTest::OneSampleMarginTest(const OneSampleMarginDesign& design) : design_(design), tail_(design.alpha) {}

bool OneSampleMarginTest::RefusesDesign() const {
  const ProportionLimits& limits = design_.limits;
  if (!limits.HasLower() && !limits.HasUpper()) return true;
  if (limits.HasLower() && RejectsLimit(limits.lower)) return true;
  if (limits.HasUpper() && RejectsLimit(limits.upper)) return true;
  if (limits.lower >= limits.upper) return true;
  return RejectsAlpha(design_.alpha);
}

Answer OneSampleMarginTest::Power(double size, double proportion) const {
  if (size < 1) return NoValue::Refused;
  if (proportion < 0 || proportion > 1) return NoValue::Refused;
  if (RefusesDesign()) return NoValue::Refused;
  return design_.isExact ? ExactPower(size, proportion) : NormalPower(size, proportion);
}

// Chow, S.-C., Shao, J., Wang, H. and Lokhnygina, Y. (2018), Sample Size Calculations in Clinical Research, 3rd ed.,
// section 4.1, with the standard error of the limit in the critical value unless that of the proportion observed is
// asked for.
OneSampleMarginStatistic OneSampleMarginTest::Statistic(double size, double proportion) const {
  const auto errorAt = [&](double p) { return std::sqrt(std::fabs(p * (1 - p)) / size); };
  OneSampleMarginStatistic of{};
  of.critical = -KelDistFun::IdfStdNorm(design_.alpha);
  of.correction = design_.isCorrected ? 1 / (2 * size) : 0;
  of.error = errorAt(proportion);
  of.lowerError = design_.isObserved ? of.error : errorAt(design_.limits.lower);
  of.upperError = design_.isObserved ? of.error : errorAt(design_.limits.upper);
  of.lower = (proportion - design_.limits.lower - of.critical * of.lowerError - of.correction) / of.error;
  of.upper = (design_.limits.upper - proportion - of.critical * of.upperError - of.correction) / of.error;
  return of;
}

double OneSampleMarginTest::NormalPower(double size, double proportion) const {
  const OneSampleMarginStatistic of = Statistic(size, proportion);
  const ProportionLimits& limits = design_.limits;
  if (!limits.HasUpper()) return KelDistFun::CdfStdNorm(of.lower);
  if (!limits.HasLower()) return KelDistFun::CdfStdNorm(of.upper);
  // P(-lower < Z < upper), in the tail in which no digits cancel.
  const double probability = of.upper < 0 ? KelDistFun::CdfStdNorm(of.upper) - KelDistFun::CdfStdNorm(-of.lower)
                                          : KelDistFun::CdfStdNorm(of.lower) - KelDistFun::CdfStdNorm(-of.upper);
  return probability < 0 ? 0 : probability;
}

// Of the lower limit in failures, so that both are told in small tails.
double OneSampleMarginTest::LeastCount(double size) const {
  return design_.limits.HasLower() ? size - LowerCritical(size, 1 - design_.limits.lower, tail_).count : 0;
}

double OneSampleMarginTest::MostCount(double size) const {
  return design_.limits.HasUpper() ? LowerCritical(size, design_.limits.upper, tail_).count : size;
}

Answer OneSampleMarginTest::ExactPower(double size, double proportion) const {
  if (size > largestCount) return NoValue::Uncountable;
  const double whole = std::floor(size);
  return ProbabilityOf(Region(whole), whole, proportion);
}

double OneSampleMarginTest::AttainedLevel(double size) const {
  const CriticalRegion region = Region(size);
  double level = 0;
  if (design_.limits.HasLower()) level = ProbabilityOf(region, size, design_.limits.lower);
  if (design_.limits.HasUpper()) level = std::max(level, ProbabilityOf(region, size, design_.limits.upper));
  return level;
}

}  // namespace kelpower::proportions
