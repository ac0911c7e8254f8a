#include "proportions/independent_enumeration.h"

#include <algorithm>

namespace kelpower::proportions {

namespace {

constexpr std::int64_t keptRows = 4096;  // of larger groups only the rows that have any probability are looked at

bool StopsWithinTables(Stop stop, std::int64_t tables) { return StopsWithin(stop, static_cast<double>(tables)); }

}  // namespace

EnumeratedTest::EnumeratedTest(const IndependentDesign& design, double sampleSize1, double sampleSize2)
    : design_(design), group1_(GroupSize::Of(sampleSize1)), group2_(GroupSize::Of(sampleSize2)) {}

/// Hands the rows from `first` to `last` to visit(x1, acceptedRange), until it answers false.
template <typename Visit>
void EnumeratedTest::VisitRows(Alternative alternative, std::int64_t first, std::int64_t last, Visit visit) {
  if (group1_.whole >= keptRows) {
    const TableStatistic statistic(design_, alternative, group1_, group2_);
    RejectionRows rows(statistic);
    for (std::int64_t x1 = first; x1 <= last; ++x1) {
      if (!visit(x1, rows.Row(x1))) return;
    }
    return;
  }
  std::vector<AcceptedRange>& region = regions_[alternative];
  if (region.empty()) {
    const TableStatistic statistic(design_, alternative, group1_, group2_);
    RejectionRows rows(statistic);
    for (std::int64_t x1 = 0; x1 <= group1_.whole; ++x1) region.push_back(rows.Row(x1));
  }
  for (std::int64_t x1 = first; x1 <= last; ++x1) {
    if (!visit(x1, region[static_cast<std::size_t>(x1)])) return;
  }
}

// The statistic is largest in a corner of the sample space.
bool EnumeratedTest::RejectsNothing(Alternative alternative) const {
  const TableStatistic statistic(design_, alternative, group1_, group2_);
  RejectionRows rows(statistic);
  for (const std::int64_t x1 : {std::int64_t{0}, group1_.whole}) {
    const AcceptedRange accepted = rows.Row(x1);
    if (accepted.first > 0 || accepted.end <= group2_.whole) return false;
  }
  return true;
}

// A stop request is owed one question a table. The power is summed by rows, so all tables are asked for first.
Answer EnumeratedTest::PowerAgainst(Alternative alternative, double p1, double p2, Stop stop) {
  if (IsUncountable(group1_.size) || IsUncountable(group2_.size)) return NoValue::Uncountable;
  if (StopsWithinTables(stop, group1_.loopCounts * group2_.loopCounts)) return NoValue::Stopped;
  if (group1_.whole < 0 || group2_.whole < 0) return 0;

  const std::int64_t columns = group2_.whole + 1;
  const BinomialMasses masses1 = BinomialMasses::Of(group1_, p1);
  const BinomialMasses masses2 = BinomialMasses::Of(group2_, p2);
  if (masses1.failed || masses2.failed) return RejectsNothing(alternative) ? Answer(0) : NoValue::NoDistribution;

  const BinomialTails tails2(masses2);
  double power = 0;
  VisitRows(alternative, masses1.first, masses1.Last(), [&](std::int64_t x1, const AcceptedRange& accepted) {
    power += masses1.At(x1) * (tails2.Below(accepted.first) + tails2.AtLeast(accepted.end));
    return true;
  });
  power = std::min(power, 1.0);  // the sum may round to more
  if (!stop || design_.test == TwoProportionTest::Z) return power;

  bool isStopped = false;
  VisitRows(alternative, 0, group1_.whole, [&](std::int64_t, const AcceptedRange& accepted) {
    isStopped = StopsWithinTables(stop, accepted.first + columns - accepted.end);
    return !isStopped;
  });
  return isStopped ? Answer(NoValue::Stopped) : power;
}

}  // namespace kelpower::proportions
