#include "proportions/signs.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr int trialsPerEvaluation = 64;  // the recurrence then stays within 1e-14 of the distribution function

/// Distances from the level below which the distribution function itself decides: what the recurrence may be wrong by,
/// and for the upper tail also what 1 - level and the probabilities next to 1 are rounded by.
constexpr double recurrenceError = 1e-11;
constexpr double roundingNearOne = 1e-14;

double CdfHalf(double count, double trials) {
  long error = 0;
  return KelDistFun::CdfBin(count, trials, 0.5, error);
}

double LowerRegion(const TailLevel& tail, double discordant) {
  return FirstCountAbove(discordant, 0.5, tail.level, -tail.z) - 1;
}

/// The upper critical value is one above the largest count c whose lower tail has at most 1 - level, so that X > c + 1
/// rejects: at most m - c - 2 pairs are of the first kind.
double UpperRegion(const TailLevel& tail, double discordant) {
  return discordant - FirstCountAbove(discordant, 0.5, 1 - tail.level, tail.z) - 1;
}

}  // namespace

RunningTail::RunningTail(double trials, double count, double success, double failure)
    : trials_(trials),
      count_(count),
      success_(success),
      failure_(failure),
      odds_(failure > 0 ? success / failure : 0) {  // without failures no count below `trials` has a probability
  Evaluate();
}

void RunningTail::Evaluate() {
  long error = 0;
  tail_ = KelDistFun::CdfBin(count_, trials_, success_, error);
  nextMass_ = KelDistFun::PdfBin(count_ + 1, trials_, success_, error);
  trialsSinceEvaluation_ = 0;
}

// P(X <= k; m + 1) = P(X <= k; m) - p P(X = k; m), with P(X = k) = P(X = k + 1) (k + 1) q / ((m - k) p).
void RunningTail::AddTrial() {
  const double remaining = trials_ - count_;
  trials_ += 1;
  nextMass_ *= failure_;
  tail_ -= nextMass_ * ((count_ + 1) / remaining);
  nextMass_ *= trials_ / remaining;
  if (++trialsSinceEvaluation_ == trialsPerEvaluation) Evaluate();
}

void RunningTail::RaiseCount() {
  tail_ += nextMass_;
  count_ += 1;
  nextMass_ *= (trials_ - count_) / (count_ + 1) * odds_;
}

SignRegions::SignRegions(const TailLevel& tail, double first)
    : level_(tail.level),
      first_(first),
      tail_(first, LowerRegion(tail, first), 0.5, 0.5),
      upper_(UpperRegion(tail, first)) {
  regions_.push_back({tail_.Count(), upper_});
}

const SignRegion& SignRegions::At(double discordant) {
  const auto index = static_cast<std::size_t>(discordant - first_);
  while (index >= regions_.size()) Append();
  return regions_[index];
}

void SignRegions::Append() {
  tail_.AddTrial();
  while (LowerReachesNext()) tail_.RaiseCount();

  // Under the null hypothesis both kinds of pairs have the same distribution, so the tails differ only at ties.
  const double tolerance = recurrenceError * level_ + roundingNearOne;
  const bool isClear = level_ - tail_.Tail() > tolerance && tail_.TailAtNextCount() - level_ > tolerance;
  upper_ = isClear ? tail_.Count() : UpperFrom(upper_);
  regions_.push_back({tail_.Count(), upper_});
}

bool SignRegions::LowerReachesNext() const {
  const double tail = tail_.TailAtNextCount();
  const bool isKnown = tail >= std::numeric_limits<double>::min();  // what has underflowed never grows again
  if (isKnown && std::fabs(tail - level_) > recurrenceError * level_) return tail < level_;
  return CdfHalf(tail_.Count() + 1, tail_.Trials()) <= level_;
}

double SignRegions::UpperFrom(double count) const {
  const double trials = tail_.Trials();
  while (count + 1 < trials && CdfHalf(trials - count - 2, trials) > 1 - level_) count += 1;
  return count;
}

SignPowers::SignPowers(Tails tails, double second, double first, SignRegions& regions)
    : tails_(tails),
      first_(first),
      regions_(&regions),
      lower_(first, regions.At(first).lower, second, 1 - second),
      upper_(first, regions.At(first).upper, 1 - second, second) {}

double SignPowers::At(double discordant) {
  const auto index = static_cast<std::size_t>(discordant - first_);
  while (index >= powers_.size()) powers_.push_back(Append());
  return powers_[index];
}

double SignPowers::Append() {
  const double discordant = first_ + static_cast<double>(powers_.size());
  const SignRegion& region = regions_->At(discordant);
  const bool isFirst = powers_.empty();
  double power = 0;
  if (tails_ != Tails::Upper) {
    if (!isFirst) lower_.AddTrial();
    while (lower_.Count() < region.lower) lower_.RaiseCount();
    power += lower_.Tail();
  }
  if (tails_ != Tails::Lower) {
    if (!isFirst) upper_.AddTrial();
    while (upper_.Count() < region.upper) upper_.RaiseCount();
    power += upper_.Tail();
  }

  // No rejection where the quantile of a tail lies below every count. A level above one half can bring this about in
  // the upper tail.
  const bool hasLower = region.lower >= 0;
  const bool hasUpper = region.upper < discordant - 1;
  if (tails_ != Tails::Upper && !hasLower) return 0;
  if (tails_ != Tails::Lower && !hasUpper) return 0;
  return power;
}

}  // namespace kelpower::proportions
