#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "solve/adjusted_value.h"
#include "solve/checks.h"
#include "solve/prepared_parts.h"
#include "solve/prepared_question.h"
#include "solve/whole_sizes.h"

namespace planner {
namespace {

bool AreSizes(const Numbers& sizes) {
  return !sizes.empty() &&
         std::all_of(sizes.begin(), sizes.end(), [](double size) { return size > 0 && std::isfinite(size); });
}

bool Reached(Question question, double value, double assurance, const Inputs& inputs) {
  if (inputs.Has("assurance")) return assurance >= inputs.Number("assurance");
  return question == Question::SampleSize ? value >= inputs.Number("power") : value <= inputs.Number("half-width");
}

/// Within what rounding does to sizes that cannot be counted.
bool NearlyReached(Question question, double value, const Inputs& inputs) {
  constexpr double rounding = 1e-6;
  if (question == Question::SampleSize) return value >= inputs.Number("power") - rounding;
  return value <= inputs.Number("half-width") * (1 + rounding);
}

/// What the sizes of a search gave. Of several groups, numbers next to each other often come to the same sizes, and the
/// number that a search ends with was tried before.
struct TriedSizes {
  Numbers sizes;
  Row row{};
  double assured = 0;
  bool isReached = false;
};

}  // namespace

bool PreparedQuestion::IsUneven() const {
  if (!AsksForSizes(route_.question)) return false;
  return UnevennessOf(inputs_) != Unevenness::Even || IsAssuredUnevenly();
}

bool PreparedQuestion::IsAssuredUnevenly() const { return assurance_ && test_.offers.lastingAssuredSizes; }

Unevenness PreparedQuestion::UnevennessOf(const Inputs& inputs) const {
  return test_.unevenness ? test_.unevenness(inputs) : Unevenness::Even;
}

/// However large the study is, its expected power stays below the limit.
bool PreparedQuestion::IsBeyondLimit(const Inputs& inputs) const {
  if (route_.question != Question::SampleSize || !inputs.Has("effect-sd")) return false;
  return !(inputs.Number("power") < test_.offers.expectedPowerLimit(inputs));
}

/// From the sizes that the core's search found, if any: it may stop short of the first whole ones, or look where there are
/// none.
std::optional<double> PreparedQuestion::FindWhole(const WholeSizes& whole, const Numbers& found,
                                                  Reaches reaches) const {
  const double start = found.empty() ? whole.Smallest() : whole.NumberOf(found);
  return FirstWhole(start, whole.Smallest(), reaches);
}

/// The first number, or with `stable` the one from which on all reach the target.
double PreparedQuestion::FindUneven(const WholeSizes& whole, const Inputs& inputs, double number, Reaches reaches) {
  const bool isSlow = UnevennessOf(inputs) == Unevenness::UnevenAndSlow;
  UnevenSizes sizes = AroundUneven(number, whole.Smallest(), isSlow, reaches);
  if (route_.lastingSize) {
    const double lasting = route_.lastingSize(inputs);
    if (std::isfinite(lasting)) sizes.lasting = std::max(lasting, sizes.first);
  }
  lasting_ = whole.At(sizes.lasting);
  return inputs.Flag("stable") ? sizes.lasting : sizes.first;
}

/// An assurance that is a sawtooth in the size is searched by the core alone.
Row PreparedQuestion::FindUnevenAssurance(const Inputs& inputs) {
  const Numbers found = test_.offers.assuredSizes(inputs);
  lasting_ = test_.offers.lastingAssuredSizes(inputs);
  if (IsStopped()) return stopped;
  if (!AreSizes(found) || !AreSizes(lasting_)) return unanswered;
  sizes_ = inputs.Flag("stable") ? lasting_ : found;
  const Inputs atSizes = AtSizes(inputs, sizes_);
  assured_ = assurance_(atSizes);
  return ValueOf(atSizes);
}

/// Where to look for whole sizes.
Numbers PreparedQuestion::Start(const Inputs& inputs, const WholeSizes& whole) const {
  Numbers sizes = assurance_ ? test_.offers.assuredSizes(inputs) : AdjustedStart(route_.sizes(inputs), inputs);
  if (!AreSizes(sizes)) return {};
  // The power at an effect that is small for certain tells little of one that may be large.
  const bool isFarOff = inputs.Has("effect-sd") && !whole.AreCountable(sizes);
  return isFarOff ? Numbers{} : sizes;
}

Row PreparedQuestion::FindSizes(const Inputs& inputs) {
  lasting_.clear();
  if (IsBeyondLimit(inputs)) return unanswered;
  if (IsAssuredUnevenly()) return FindUnevenAssurance(inputs);
  const WholeSizes whole(test_, inputs);
  Numbers found = Start(inputs, whole);
  if (IsStopped()) return stopped;
  const bool isUneven = UnevennessOf(inputs) != Unevenness::Even;
  if (isUneven && found.empty()) return unanswered;

  Inputs tried = AtSizes(inputs, whole.At(whole.Smallest()));
  if (!found.empty() && !whole.AreCountable(found)) {
    sizes_ = std::move(found);
    SetSizes(tried, sizes_);
    if (assurance_) assured_ = assurance_(tried);
    const Row row = ValueOf(tried);
    return row.status != RowStatus::Answered || NearlyReached(route_.question, row.value, inputs) ? row : unanswered;
  }
  Row row = unanswered;
  std::array<TriedSizes, 2> latest;
  const auto reaches = [&](double number) {
    if (row.status == RowStatus::Stopped) return true;
    sizes_ = whole.At(number);
    for (const TriedSizes& known : latest) {
      if (known.sizes != sizes_) continue;
      row = known.row;
      assured_ = known.assured;
      return known.isReached;
    }
    SetSizes(tried, sizes_);
    row = FirstFailing(sizeConditions_, tried) ? refused : ValueOf(tried);
    if (assurance_) assured_ = assurance_(tried);
    if (row.status == RowStatus::Stopped) return true;
    const bool isReached = row.status == RowStatus::Answered && Reached(route_.question, row.value, assured_, inputs);
    latest[isReached ? 1 : 0] = {sizes_, row, assured_, isReached};
    return isReached;
  };
  std::optional<double> number = FindWhole(whole, found, reaches);
  if (number && isUneven) number = FindUneven(whole, inputs, *number, reaches);
  if (row.status == RowStatus::Stopped) return stopped;
  if (!number) return unanswered;
  reaches(*number);
  return row;
}

}  // namespace planner
