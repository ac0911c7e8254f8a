#include "proportions/related_test.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "frame/checks.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "proportions/exact_search.h"
#include "proportions/results.h"

namespace kelpower {

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

/// Up to this many discordant pairs the powers given their number are kept for the next call. It covers every chart and
/// the searches that end below 5,000; further out each call computes its own stretch.
constexpr double kSharedPairs = 5000;

double ZeroIfTiny(double probability) { return std::fabs(probability) < 1e-14 ? 0.0 : probability; }

/// The numbers of discordant pairs, at least 1, that have a probability to speak of.
struct PairRange {
  double from;
  double to;
};

// Bernstein's inequality: beyond the mean by t the probability is below exp(-t^2 / (2 (variance + t / 3))).
PairRange LikelyPairs(double size, double discordant) {
  constexpr double kNegligible = 100;  // e^-100
  const double mean = size * discordant;
  const double variance = mean * (1 - discordant);
  const double third = kNegligible / 3;
  const double reach = third + std::sqrt(third * third + 2 * kNegligible * variance);
  return {std::max(1.0, std::floor(mean - reach)), std::min(std::floor(size), std::ceil(mean + reach))};
}

/// P(count) of a binomial count, kept up to date by recurrence while the count moves away from the mode.
class RunningMass {
public:
  RunningMass(double size, double p, double count) : size_(size), p_(p), odds_(p / (1 - p)), count_(count) {
    Evaluate();
  }

  double Value() const { return mass_; }

  void RaiseCount() {
    mass_ *= (size_ - count_) / (count_ + 1) * odds_;
    count_ += 1;
    CountStep();
  }

  void LowerCount() {
    mass_ *= count_ / (size_ - count_ + 1) / odds_;
    count_ -= 1;
    CountStep();
  }

private:
  static constexpr int kStepsPerEvaluation = 64;  // the recurrence then stays within 1e-14

  void CountStep() {
    if (++stepsSinceEvaluation_ == kStepsPerEvaluation) Evaluate();
  }

  void Evaluate() {
    long error = 0;
    mass_ = KelDistFun::PdfBin(count_, size_, p_, error);
    stepsSinceEvaluation_ = 0;
  }

  double size_;
  double p_;
  double odds_;
  double count_;
  double mass_ = 0;
  int stepsSinceEvaluation_ = 0;
};

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
double MeanPower(double size, double discordant, const PairRange& range, SignTestPowers& powers) {
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

RelatedTest::RelatedTest(int oneSided, int exact, double alpha)
    : isOneSided_(oneSided != 0),
      isExact_(exact != 0),
      alpha_(alpha),
      level_(isOneSided_ ? alpha : alpha / 2),
      z_(KelDistFun::IdfStdNorm(1 - level_)) {}

double RelatedTest::Power(double size, const DiscordantPairs& pairs, StopRequest* stop) {
  if (size < 2) return kInvalid;
  if (pairs.p12 + pairs.p21 > 1) return kInvalid;
  if (pairs.p12 < 0) return kInvalid;
  if (pairs.p21 < 0) return kInvalid;
  if (RejectsAlpha(alpha_)) return kInvalid;
  return isExact_ ? ExactPower(size, pairs, stop) : NormalPower(size, pairs);
}

double RelatedTest::PowerOfMarginals(double size, double marginal1, double marginal2, double correlation) {
  if (size < 2) return kInvalid;
  if (RejectsMarginals(marginal1, marginal2)) return kInvalid;
  if (RejectsCorrelation(correlation)) return kInvalid;
  return Power(size, DiscordantPairs::FromMarginals(marginal1, marginal2, correlation));
}

// Connor, R. J. (1987), Sample size for testing differences in proportions for the paired-sample design, Biometrics 43,
// 207-211: the standard deviation is sqrt(pd) under the null hypothesis, sqrt(pd - (p12 - p21)^2) under the
// alternative.
double RelatedTest::NormalPower(double size, const DiscordantPairs& pairs) const {
  const double discordant = pairs.p12 + pairs.p21;
  const double difference = pairs.p12 - pairs.p21;
  const double shift = std::sqrt(size) * difference;
  const double s0 = std::sqrt(discordant);
  const double s1 = std::fabs(std::sqrt(discordant - difference * difference));

  const auto above = [&] { return KelDistFun::CdfStdNorm((shift - s0 * z_) / s1); };
  const auto below = [&] { return 1 - KelDistFun::CdfStdNorm((s0 * z_ + shift) / s1); };
  if (!isOneSided_) return above() + below();
  return pairs.p12 > pairs.p21 ? above() : below();
}

double RelatedTest::ExactPower(double size, const DiscordantPairs& pairs, StopRequest* stop) {
  if (size > kLargestCount) return KelMV::Missing();
  const double discordant = pairs.p12 + pairs.p21;
  if (std::isnan(discordant) || std::isnan(alpha_)) {
    return StopsWithin(stop, 1) ? KelMV::Missing() : kNoProbability;
  }
  if (discordant == 0) return ExactPowerWithoutPairs(size, stop);
  if (StopsWithin(stop, std::floor(size))) return KelMV::Missing();
  if (std::isnan(size)) return 0;

  const double second = pairs.p21 / discordant;
  const SignTestTails tails = Tails(pairs);
  const PairRange range = LikelyPairs(size, discordant);
  if (range.to <= kSharedPairs) return MeanPower(size, discordant, range, SharedPowers(tails, second));

  SignTestRegions regions(level_, range.from);
  SignTestPowers powers(tails, second, range.from, regions);
  return MeanPower(size, discordant, range, powers);
}

// With no discordant pairs the share of the second kind is 0 / 0, so the first number of pairs that could reject at all
// has no probability of it.
double RelatedTest::ExactPowerWithoutPairs(double size, StopRequest* stop) const {
  long error = 0;
  for (double m = 1; m <= size; ++m) {
    if (StopsWithin(stop, 1)) return KelMV::Missing();
    if (KelDistFun::CdfBin(0, m, 0.5, error) <= level_) return kNoProbability;
  }
  return 0;
}

SignTestTails RelatedTest::Tails(const DiscordantPairs& pairs) const {
  if (!isOneSided_) return SignTestTails::Both;
  return pairs.p21 > pairs.p12 ? SignTestTails::Upper : SignTestTails::Lower;
}

SignTestPowers& RelatedTest::SharedPowers(SignTestTails tails, double second) {
  if (!regions_) regions_.emplace(level_, 1);
  if (!powers_ || tails != tails_ || second != second_) {
    tails_ = tails;
    second_ = second;
    powers_.emplace(tails, second, 1, *regions_);
  }
  return *powers_;
}

}  // namespace kelpower
