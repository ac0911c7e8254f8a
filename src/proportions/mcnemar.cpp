#include "proportions/mcnemar.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "frame/checks.h"
#include "frame/counts.h"
#include "frame/increasing_search.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/exact_search.h"
#include "proportions/running_mass.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

/// Up to this many discordant pairs the powers given their number are kept for the next call. It covers every chart and
/// the searches that end below 5,000; further out each call computes its own stretch.
constexpr double sharedPairs = 5000;

double ZeroIfTiny(double probability) { return std::fabs(probability) < 1e-14 ? 0.0 : probability; }

/// The numbers of discordant pairs, at least 1, outside which the probability is below about e^-100.
struct PairRange {
  double from;
  double to;
};

// Bernstein's inequality: beyond the mean by t the probability is below exp(-t^2 / (2 (variance + t / 3))).
PairRange LikelyPairs(double size, double discordant) {
  constexpr double negligible = 100;  // e^-100
  const double mean = size * discordant;
  const double variance = mean * (1 - discordant);
  const double third = negligible / 3;
  const double reach = third + std::sqrt(third * third + 2 * negligible * variance);
  return {std::max(1.0, std::floor(mean - reach)), std::min(std::floor(size), std::ceil(mean + reach))};
}

/// The probabilities of from, ..., to discordant pairs. Starts at the mode, where they are most accurate, and because
/// from a mass that has underflowed the recurrence could not rise again.
std::vector<double> PairProbabilities(double size, double discordant, const PairRange& range) {
  const double mode = std::clamp(std::floor((size + 1) * discordant), range.from, range.to);
  std::vector<double> masses(static_cast<std::size_t>(range.to - range.from) + 1);
  const auto store = [&](double m, double mass) { masses[static_cast<std::size_t>(m - range.from)] = mass; };
  RunningMass up(size, discordant, mode);
  RunningMass down = up;
  store(mode, up.Value());
  for (double m = mode + 1; m <= range.to; ++m) {
    up.RaiseCount();
    store(m, up.Value());
  }
  for (double m = mode - 1; m >= range.from; --m) {
    down.LowerCount();
    store(m, down.Value());
  }
  return masses;
}

/// The mean of the powers given m discordant pairs, m ~ Binomial(size, discordant).
double MeanPower(double size, double discordant, const PairRange& range, SignPowers& powers) {
  if (discordant == 1) return std::floor(size) == size ? powers.At(size) : 0;
  double power = 0;
  double m = range.from;
  for (const double mass : PairProbabilities(size, discordant, range)) power += mass * powers.At(m++);
  return std::min(power, 1.0);
}

}  // namespace

// Covariance of two binary outcomes: correlation times the standard deviations.
DiscordantPairs DiscordantPairs::FromMarginals(double marginal1, double marginal2, double correlation) {
  const double sds = std::sqrt((1 - marginal2) * marginal2 * marginal1 * (1 - marginal1));
  const double p21 = ZeroIfTiny((1 - marginal1) * marginal2 - correlation * sds);
  return {ZeroIfTiny(p21 + marginal1 - marginal2), p21};
}

bool RejectsMarginals(double marginal1, double marginal2) {
  if (marginal1 <= 0 || marginal1 >= 1) return true;
  return marginal2 <= 0 || marginal2 >= 1;
}

McNemarTest::McNemarTest(const McNemarDesign& design) : design_(design), tail_(design.TailLevel()) {}

Answer McNemarTest::Power(double size, const DiscordantPairs& pairs, Stop stop) {
  if (size < 2) return NoValue::Refused;
  if (pairs.p12 + pairs.p21 > 1) return NoValue::Refused;
  if (pairs.p12 < 0) return NoValue::Refused;
  if (pairs.p21 < 0) return NoValue::Refused;
  if (RejectsAlpha(design_.alpha)) return NoValue::Refused;
  return design_.isExact ? ExactPower(size, pairs, stop) : NormalPower(size, pairs);
}

Tails McNemarTest::TailsOf(const DiscordantPairs& pairs) const {
  if (!design_.isOneSided) return Tails::Both;
  return pairs.p21 > pairs.p12 ? Tails::Upper : Tails::Lower;
}

CriticalRegion McNemarTest::Region(double discordant, const DiscordantPairs& pairs) const {
  const Tails tails = TailsOf(pairs);
  const SignRegion sign = SignRegions(tail_, discordant).At(discordant);
  CriticalRegion region{-1, discordant + 1};
  if (tails != Tails::Upper) region.lower = sign.lower;
  if (tails != Tails::Lower) region.upper = discordant - sign.upper;
  return region;
}

Answer McNemarTest::AttainedLevel(double size, const DiscordantPairs& pairs) {
  const double half = (pairs.p12 + pairs.p21) / 2;
  return Power(size, {half, half});
}

// Connor, R. J. (1987), Sample size for testing differences in proportions for the paired-sample design, Biometrics 43,
// 207-211: the standard deviation is sqrt(pd) under the null hypothesis, sqrt(pd - (p12 - p21)^2) under the
// alternative.
PairedStatistic McNemarTest::Statistic(double size, const DiscordantPairs& pairs) const {
  const double discordant = pairs.p12 + pairs.p21;
  const double difference = pairs.p12 - pairs.p21;
  const double shift = std::sqrt(size) * difference;
  const double s0 = std::sqrt(discordant);
  const double s1 = std::fabs(std::sqrt(discordant - difference * difference));
  return {shift, s0, s1, tail_.z};
}

Answer McNemarTest::NormalPower(double size, const DiscordantPairs& pairs) const {
  const PairedStatistic of = Statistic(size, pairs);
  const double margin = of.nullSd * of.critical;
  const auto above = [&] { return KelDistFun::CdfStdNorm((of.shift - margin) / of.sd); };
  const auto below = [&] { return 1 - KelDistFun::CdfStdNorm((margin + of.shift) / of.sd); };
  if (!design_.isOneSided) return above() + below();
  return pairs.p12 > pairs.p21 ? above() : below();
}

Answer McNemarTest::ExactPower(double size, const DiscordantPairs& pairs, Stop stop) {
  if (size > largestCount) return NoValue::Uncountable;
  const double discordant = pairs.p12 + pairs.p21;
  if (std::isnan(discordant) || std::isnan(design_.alpha)) {
    return StopsWithin(stop, 1) ? NoValue::Stopped : NoValue::NoDistribution;
  }
  if (discordant == 0) return ExactPowerWithoutPairs(size, stop);
  if (StopsWithin(stop, std::floor(size))) return NoValue::Stopped;
  if (std::isnan(size)) return 0;

  const double second = pairs.p21 / discordant;
  const Tails tails = TailsOf(pairs);
  const PairRange range = LikelyPairs(size, discordant);
  if (range.to <= sharedPairs) return MeanPower(size, discordant, range, SharedPowers(tails, second));

  SignRegions regions(tail_, range.from);
  SignPowers powers(tails, second, range.from, regions);
  return MeanPower(size, discordant, range, powers);
}

// With no discordant pairs the share of the second kind is 0 / 0, so the first number of pairs that could reject at all
// has no probability of it.
Answer McNemarTest::ExactPowerWithoutPairs(double size, Stop stop) const {
  long error = 0;
  for (double m = 1; m <= size; ++m) {
    if (StopsWithin(stop, 1)) return NoValue::Stopped;
    if (KelDistFun::CdfBin(0, m, 0.5, error) <= tail_.level) return NoValue::NoDistribution;
  }
  return 0;
}

SignPowers& McNemarTest::SharedPowers(Tails tails, double second) {
  if (!regions_) regions_.emplace(tail_, 1);
  if (!powers_ || tails != tails_ || second != second_) {
    tails_ = tails;
    second_ = second;
    powers_.emplace(tails, second, 1, *regions_);
  }
  return *powers_;
}

Answer PairsForNormalPower(FunctionView<double(double)> powerAt, double power) {
  return SolveIncreasingPower(1, 400, 1e-9, powerAt, power, {});
}

Answer SizeForPower(const McNemarDesign& design, const DiscordantPairs& pairs, double power, Stop stop) {
  McNemarTest test(design);
  const auto powerAt = [&](double size, Stop asked) { return test.Power(size, pairs, asked).ValueOr(belowEveryPower); };
  if (design.isExact) return SolveExactSize(power, powerAt, stop);
  return PairsForNormalPower([&](double size) { return powerAt(size, {}); }, power);
}

}  // namespace kelpower::proportions
