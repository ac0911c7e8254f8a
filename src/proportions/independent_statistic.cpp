#include "proportions/independent_statistic.h"

#include <algorithm>
#include <cmath>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr std::int64_t tabulated = 1 << 14;  // beyond it few of the values would be looked up

double TimesLog(double x) {
  if (x == 0) return 0;
  if (x < 0) return -1;
  return x * std::log(x);
}

/// The smallest i in [low, high) with isAfter(i), `high` when there is none. isAfter is false up to some point and true
/// from there on. Doubling steps away from `guess` make a near guess cheap.
template <typename Predicate>
std::int64_t PartitionPoint(std::int64_t low, std::int64_t high, std::int64_t guess, Predicate isAfter) {
  guess = std::clamp(guess, low, high);
  if (guess < high && !isAfter(guess)) {
    low = guess + 1;
    for (std::int64_t step = 1; low + step <= high; step *= 2) {
      const std::int64_t probe = low + step - 1;
      if (isAfter(probe)) {
        high = probe;
        break;
      }
      low = probe + 1;
    }
  } else {
    high = guess;
    for (std::int64_t step = 1; high - step >= low; step *= 2) {
      const std::int64_t probe = high - step;
      if (!isAfter(probe)) {
        low = probe + 1;
        break;
      }
      high = probe;
    }
  }
  while (low < high) {
    const std::int64_t middle = low + (high - low) / 2;
    if (isAfter(middle))
      high = middle;
    else
      low = middle + 1;
  }
  return low;
}

double CriticalValue(const IndependentDesign& design, double total) {
  const double probability = 1 - design.TailLevel();
  if (design.test == TwoProportionTest::T) return KelDistFun::IdfT(probability, total - 2, 1e-20, 1e-12);
  return KelDistFun::IdfStdNorm(probability);
}

}  // namespace

XLogX::XLogX(double origin, double step, std::int64_t count) : origin_(origin), step_(step) {
  values_.resize(static_cast<std::size_t>(std::clamp<std::int64_t>(count, 0, tabulated)));
  for (std::size_t i = 0; i < values_.size(); ++i) values_[i] = TimesLog(origin + step * static_cast<double>(i));
}

double XLogX::operator[](std::int64_t i) const {
  const std::size_t index = static_cast<std::size_t>(i);
  return index < values_.size() ? values_[index] : TimesLog(origin_ + step_ * static_cast<double>(i));
}

TableStatistic::TableStatistic(const IndependentDesign& design, Alternative alternative, const GroupSize& group1,
                               const GroupSize& group2)
    : design_(design),
      alternative_(alternative),
      group1_(group1),
      group2_(group2),
      n1_(group1.size),
      n2_(group2.size),
      total_(n1_ + n2_),
      reciprocals_(1 / n1_ + 1 / n2_),
      rootProduct_(std::sqrt(n1_ * n2_)),
      critical_(CriticalValue(design, total_)) {
  if (design.test != TwoProportionTest::LikelihoodRatio) return;
  counts_ = XLogX(0, 1, group1.whole + group2.whole + 1);
  remainders1_ = XLogX(n1_, -1, group1.whole + 1);
  remainders2_ = XLogX(n2_, -1, group2.whole + 1);
  remainders_ = XLogX(total_, -1, group1.whole + group2.whole + 1);
}

TableStatistic::Observed TableStatistic::Proportions(double x1, double x2) const {
  const double successes = x1 + x2;
  if (successes == 0) return {0.001 / n1_, 0.001 / n2_};
  if (successes == total_) return {(n1_ - 0.001) / n1_, (n2_ - 0.001) / n2_};
  return {x1 / n1_, x2 / n2_};
}

double TableStatistic::Signed(const Observed& observed) const {
  switch (alternative_) {
    case Alternative::FirstGreater: return observed.p1 - observed.p2;
    case Alternative::SecondGreater: return observed.p2 - observed.p1;
    case Alternative::TwoSided: break;
  }
  return std::fabs(observed.p1 - observed.p2);
}

// The continuity correction is subtracted in the two-sided test and added in the one-sided one; this is intended.
double TableStatistic::Z(const Observed& observed) const {
  const double mean = (observed.p1 * n1_ + observed.p2 * n2_) / total_;
  const double sd = std::sqrt((1 - mean) * mean * reciprocals_);
  double difference = Signed(observed);
  if (design_.isCorrected) difference += design_.isOneSided ? reciprocals_ / 2 : -(reciprocals_ / 2);
  return difference / sd;
}

double TableStatistic::T(const Observed& observed) const {
  const double variance1 = observed.p1 * (design_.isPooled ? n1_ : n2_) * (1 - observed.p1);
  const double variance2 = observed.p2 * (design_.isPooled ? n2_ : n1_) * (1 - observed.p2);
  return Signed(observed) * rootProduct_ / std::sqrt((variance1 + variance2) * total_ / (total_ - 2));
}

// The statistic has no sign: the one-sided test takes the one-sided critical value and counts both directions.
bool TableStatistic::RejectsLikelihoodRatio(std::int64_t x1, std::int64_t x2) const {
  const double a = counts_[x1] + counts_[x2] + remainders1_[x1] + remainders2_[x2] + remainders_[0];
  const double b = remainders_[x1 + x2] + counts_[x1 + x2] + remainders1_[0] + remainders2_[0];
  const double g = 2 * a - 2 * b;
  return g >= 0 && std::sqrt(g) > critical_;
}

bool TableStatistic::Rejects(std::int64_t x1, std::int64_t x2) const {
  if (design_.test == TwoProportionTest::LikelihoodRatio) return RejectsLikelihoodRatio(x1, x2);
  const Observed observed = Proportions(static_cast<double>(x1), static_cast<double>(x2));
  return (design_.test == TwoProportionTest::Z ? Z(observed) : T(observed)) > critical_;
}

// A statistic without sign turns where the proportions are equal; the table that is all successes belongs to the rising
// part, for its proportions are moved off 1. A one-sided difference rises or falls throughout, except in the row in
// which the added correction outweighs it.
std::int64_t TableStatistic::Turn(std::int64_t x1) const {
  const double position = static_cast<double>(x1);
  const bool hasSign = alternative_ != Alternative::TwoSided && design_.test != TwoProportionTest::LikelihoodRatio;
  if (!hasSign) {
    const double equal = std::floor(position * n2_ / n1_);
    return std::min(static_cast<std::int64_t>(equal), group2_.whole - 1);
  }
  const bool isRising = alternative_ == Alternative::SecondGreater;
  if (design_.test == TwoProportionTest::Z && design_.isCorrected) {
    const double extreme = isRising ? position : n1_ - position;
    if (extreme < 0.5) return TurnOfCorrected(x1);
  }
  return isRising ? -1 : group2_.whole;
}

// (p2 - p1 + k / 2) / sqrt(m (1 - m) k), m the common proportion, has its least value over x2 at m = -c / (1 - 2 c)
// with c = (x1 - 1 / 2) / N1, which is a table of the row only for x1 < 1 / 2; with failures for successes if p1 > p2.
// The neighbours are compared to find the smallest as computed.
std::int64_t TableStatistic::TurnOfCorrected(std::int64_t x1) const {
  const double position = static_cast<double>(x1);
  const bool isRising = alternative_ == Alternative::SecondGreater;
  const double extreme = isRising ? position : n1_ - position;
  const double shifted = (extreme - 0.5) / n1_;
  const double other = -shifted / (1 - 2 * shifted) * total_ - extreme;
  const double nearest = std::floor(isRising ? other : n2_ - other);

  const auto value = [&](std::int64_t x2) { return Z(Proportions(position, static_cast<double>(x2))); };
  std::int64_t turn = static_cast<std::int64_t>(std::clamp(nearest, 0.0, static_cast<double>(group2_.whole)));
  while (turn < group2_.whole && value(turn + 1) < value(turn)) ++turn;
  while (turn > 0 && value(turn - 1) <= value(turn)) --turn;
  return turn;
}

AcceptedRange RejectionRows::Row(std::int64_t x1) {
  const std::int64_t turn = statistic_.Turn(x1);
  const std::int64_t end = statistic_.Group2().whole + 1;
  previous_.first =
      PartitionPoint(0, turn + 1, previous_.first, [&](std::int64_t x2) { return !statistic_.Rejects(x1, x2); });
  previous_.end =
      PartitionPoint(turn + 1, end, previous_.end, [&](std::int64_t x2) { return statistic_.Rejects(x1, x2); });
  return previous_;
}

}  // namespace kelpower::proportions
