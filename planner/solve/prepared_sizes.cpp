#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "frame/whole_size.h"
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
  constexpr double slack = 1e-6;
  if (question == Question::SampleSize) return value >= inputs.Number("power") - slack;
  return value <= inputs.Number("half-width") * (1 + slack);
}

}  // namespace

/// Tries whole sizes for a target. Of several groups, numbers next to each other often come to the same sizes, and the
/// number that a search ends with was tried before: the latest that reach the target and that miss it are remembered.
class PreparedQuestion::Trial {
public:
  Trial(PreparedQuestion& question, const Inputs& inputs)
      : question_(question),
        inputs_(inputs),
        whole_(question.test_, inputs),
        at_(AtSizes(inputs, whole_.At(whole_.Smallest()))) {}

  /// Whether the sizes of the number reach the target; true as well once the search is stopped, which ends it.
  bool Reaches(double number) {
    Try(number);
    return latest_->isReached || IsStopped();
  }

  /// The power at the sizes of the number: NaN where there is none, 1 once the search is stopped.
  double PowerAt(double number) {
    Try(number);
    return IsStopped() ? 1 : latest_->row.value;
  }

  /// The answer at the sizes of the number.
  Row RowAt(double number) {
    Try(number);
    question_.sizes_ = latest_->sizes;
    question_.assured_ = latest_->assured;
    return IsStopped() ? stopped : latest_->row;
  }

  bool IsStopped() const { return latest_->row.status == RowStatus::Stopped; }
  const WholeSizes& Whole() const { return whole_; }
  const Inputs& Asked() const { return inputs_; }

private:
  struct Tried {
    Numbers sizes;
    Row row{};
    double assured = std::numeric_limits<double>::quiet_NaN();
    bool isReached = false;
  };

  void Try(double number) {
    if (IsStopped()) return;
    Numbers sizes = whole_.At(number);
    for (const Tried& tried : tried_) {
      if (tried.sizes != sizes) continue;
      latest_ = &tried;
      return;
    }
    Tried tried = At(std::move(sizes));
    Tried& kept = tried_[tried.isReached ? 1 : 0];
    kept = std::move(tried);
    latest_ = &kept;
  }

  Tried At(Numbers sizes) {
    SetSizes(at_, sizes);
    Tried tried{std::move(sizes), refused};
    if (!FirstFailing(question_.sizeConditions_, at_)) tried.row = question_.ValueOf(at_);
    if (question_.assurance_) tried.assured = question_.assurance_(at_);
    tried.isReached = tried.row.status == RowStatus::Answered &&
                      Reached(question_.route_.question, tried.row.value, tried.assured, inputs_);
    return tried;
  }

  PreparedQuestion& question_;
  const Inputs& inputs_;
  const WholeSizes whole_;
  Inputs at_;
  std::array<Tried, 2> tried_;  // the latest that misses the target, and the latest that reaches it
  const Tried* latest_ = &tried_[0];
};

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

/// The power tells by itself where it reaches the target, unless it jumps.
bool PreparedQuestion::IsFoundByPower(const Inputs& inputs) const {
  return route_.question == Question::SampleSize && UnevennessOf(inputs) == Unevenness::Even;
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
  Numbers sizes;
  if (assurance_) {
    sizes = test_.offers.assuredSizes(inputs);
  } else if (route_.sizes) {
    sizes = AdjustedStart(route_.sizes(inputs), inputs);
  }
  if (!AreSizes(sizes)) return {};
  // The power at an effect that is small for certain tells little of one that may be large.
  const bool isFarOff = inputs.Has("effect-sd") && !whole.AreCountable(sizes);
  return isFarOff ? Numbers{} : sizes;
}

Row PreparedQuestion::FindSizes(const Inputs& inputs) {
  lasting_.clear();
  if (IsBeyondLimit(inputs)) return unanswered;
  if (IsAssuredUnevenly()) return FindUnevenAssurance(inputs);
  Trial trial(*this, inputs);
  const WholeSizes& whole = trial.Whole();
  const bool isFoundByPower = IsFoundByPower(inputs);
  if (isFoundByPower) {
    const std::optional<double> number =
        kelpower::FirstWholeSize(whole.Smallest(), largestNumber, inputs.Alpha(), inputs.Number("power"),
                                 [&](double tried) { return trial.PowerAt(tried); });
    if (number) return trial.RowAt(*number);
  }
  Numbers found = Start(inputs, whole);
  if (IsStopped()) return stopped;
  if (!found.empty() && !whole.AreCountable(found)) return AtUncountable(inputs, std::move(found));
  return isFoundByPower ? unanswered : FindFrom(found, trial);
}

/// Sizes that no study can count are as good as the core's search found them.
Row PreparedQuestion::AtUncountable(const Inputs& inputs, Numbers sizes) {
  sizes_ = std::move(sizes);
  const Inputs atSizes = AtSizes(inputs, sizes_);
  if (assurance_) assured_ = assurance_(atSizes);
  const Row row = ValueOf(atSizes);
  return row.status != RowStatus::Answered || NearlyReached(route_.question, row.value, inputs) ? row : unanswered;
}

/// From the sizes that the core's search found, if any: it may stop short of the first whole ones, or look where there are
/// none.
Row PreparedQuestion::FindFrom(const Numbers& found, Trial& trial) {
  const WholeSizes& whole = trial.Whole();
  const bool isUneven = UnevennessOf(trial.Asked()) != Unevenness::Even;
  if (isUneven && found.empty()) return unanswered;
  const auto reaches = [&](double number) { return trial.Reaches(number); };
  const double start = found.empty() ? whole.Smallest() : whole.NumberOf(found);
  std::optional<double> number = FirstWhole(start, whole.Smallest(), reaches);
  if (number && isUneven) number = FindUneven(whole, trial.Asked(), *number, reaches);
  if (trial.IsStopped()) return stopped;
  return number ? trial.RowAt(*number) : unanswered;
}

}  // namespace planner
