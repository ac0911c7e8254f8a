#include "proportions/one_sample_tests.h"

#include <cmath>

#include "frame/checks.h"
#include "frame/counts.h"
#include "frame/increasing_search.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/exact_search.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

bool RejectsProportion(double proportion) { return proportion < 0 || proportion > 1; }

OneSampleTest::OneSampleTest(const OneSampleDesign& design) : design_(design), tail_(design.TailLevel()) {}

Answer OneSampleTest::Power(double size, const OneSampleProportions& proportions, Stop stop) {
  if (size < 1) return NoValue::Refused;
  if (RejectsProportion(proportions.alternative)) return NoValue::Refused;
  if (RejectsProportion(proportions.null)) return NoValue::Refused;
  if (RejectsAlpha(design_.alpha)) return NoValue::Refused;
  return design_.isExact ? ExactPower(size, proportions, stop) : NormalPower(size, proportions);
}

Tails OneSampleTest::TailsOf(const OneSampleProportions& proportions) const {
  if (!design_.isOneSided) return Tails::Both;
  return proportions.alternative > proportions.null ? Tails::Upper : Tails::Lower;
}

// P(|Z0| > z) for Z0 = sqrt(N) (X/N - p0) / s0, with X/N normal of mean p1 and standard deviation s1 / sqrt(N). At p1 =
// 0 or 1 the quotients are infinite and the power is 0 or 1; at p1 = -0 the root is -0, whose sign must not turn them.
NormalStatistic OneSampleTest::Statistic(double size, const OneSampleProportions& proportions) const {
  const auto& [altProportion, nullProportion] = proportions;
  const double shift = std::sqrt(size) * (nullProportion - altProportion);
  const double s0 = std::sqrt((1 - nullProportion) * nullProportion);
  const double s1 = std::fabs(std::sqrt((1 - altProportion) * altProportion));
  const double correction = design_.isCorrected ? 1 / (2 * std::sqrt(size)) : 0;
  return {shift, s0, s1, correction, tail_.z};
}

double OneSampleTest::NormalPower(double size, const OneSampleProportions& proportions) const {
  const NormalStatistic of = Statistic(size, proportions);
  const double margin = of.nullSd * of.critical;
  const auto below = [&] { return KelDistFun::CdfStdNorm((of.shift - margin - of.correction) / of.sd); };
  const auto above = [&] { return 1 - KelDistFun::CdfStdNorm((margin + of.shift + of.correction) / of.sd); };
  switch (TailsOf(proportions)) {
    case Tails::Lower: return below();
    case Tails::Upper: return above();
    case Tails::Both: break;
  }
  return below() + above();
}

// P(X <= lower) + P(X > upper) for X ~ Binomial(N, p1).
Answer OneSampleTest::ExactPower(double size, const OneSampleProportions& proportions, Stop stop) {
  if (size > largestCount) return NoValue::Uncountable;
  const double altProportion = proportions.alternative;
  SetNull(size, proportions.null);
  const Tails tails = TailsOf(proportions);
  const bool usesUpper = tails != Tails::Lower;
  const bool usesLower = tails != Tails::Upper;
  if (usesLower && StopsWithin(stop, Lower().questions)) return NoValue::Stopped;
  if (usesUpper && StopsWithin(stop, Upper().questions)) return NoValue::Stopped;

  long upperError = 0;
  long lowerError = 0;
  const double above = usesUpper ? 1 - KelDistFun::CdfBin(Upper().count, size, altProportion, upperError) : 0;
  const double below = usesLower ? KelDistFun::CdfBin(Lower().count, size, altProportion, lowerError) : 0;
  if (upperError != 0 || lowerError != 0) return NoValue::NoDistribution;
  return above + below;
}

CriticalRegion OneSampleTest::Region(double size, const OneSampleProportions& proportions) {
  SetNull(size, proportions.null);
  const Tails tails = TailsOf(proportions);
  CriticalRegion region{-1, size + 1};
  if (tails != Tails::Upper) region.lower = Lower().count;
  if (tails != Tails::Lower) region.upper = Upper().count + 1;
  return region;
}

double OneSampleTest::AttainedLevel(double size, const OneSampleProportions& proportions) {
  const CriticalRegion region = Region(size, proportions);
  long error = 0;
  const double below = KelDistFun::CdfBin(region.lower, size, proportions.null, error);
  const double above = 1 - KelDistFun::CdfBin(region.upper - 1, size, proportions.null, error);
  return below + above;
}

void OneSampleTest::SetNull(double size, double nullProportion) {
  if (size == size_ && nullProportion == nullProportion_) return;
  size_ = size;
  nullProportion_ = nullProportion;
  lower_.reset();
  upper_.reset();
}

const CriticalCount& OneSampleTest::Lower() {
  if (!lower_) lower_ = LowerCritical(size_, nullProportion_, tail_);
  return *lower_;
}

const CriticalCount& OneSampleTest::Upper() {
  if (!upper_) upper_ = UpperCritical(size_, nullProportion_, tail_);
  return *upper_;
}

Answer SizeForNormalPower(FunctionView<double(double)> powerAt, double power) {
  return SolveIncreasingPower(1, 400, 1e-9, powerAt, power, {});
}

Answer SizeForPower(const OneSampleDesign& design, const OneSampleProportions& proportions, double power, Stop stop) {
  OneSampleTest test(design);
  const auto powerAt = [&](double size, Stop asked) {
    return test.Power(size, proportions, asked).ValueOr(belowEveryPower);
  };
  if (design.isExact) return SolveExactSize(power, powerAt, stop);
  return SizeForNormalPower([&](double size) { return powerAt(size, {}); }, power);
}

}  // namespace kelpower::proportions
