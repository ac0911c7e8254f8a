#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/counts.h"
#include "frame/function_view.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/certain_size.h"
#include "proportions/one_sample_margins.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

/// Bounds of the power over all sizes of a stretch. With one more observation neither the count nor a critical count
/// falls, and neither the failures nor their critical count. So the misses at the ends of a stretch bound those inside.
class PowerBounds {
public:
  PowerBounds(const OneSampleMarginDesign& design, double proportion, Stop stop)
      : limits_(design.limits), test_(design), proportion_(proportion), stop_(stop) {}

  /// Asks whether to end the search.
  bool Stops() {
    isStopped_ = isStopped_ || AnswersStop(stop_);
    return isStopped_;
  }
  bool IsStopped() const { return isStopped_; }

  double Least(double from, double to) const { return 1 - Misses(from, to); }
  double Most(double from, double to) const { return std::max(0.0, 1 - Misses(to, from)); }
  double At(double size) const { return test_.Power(size, proportion_).ValueOr(belowEveryPower); }

private:
  /// Too few successes: those of `few` observations where the critical count is that of `many`; and too many, the
  /// other way round.
  double Misses(double few, double many) const {
    long error = 0;
    double misses = 0;
    if (limits_.HasLower()) misses += KelDistFun::CdfBin(test_.LeastCount(many) - 1, few, proportion_, error);
    if (limits_.HasUpper()) {
      const double allowed = test_.MostCount(few);
      misses += KelDistFun::CdfBin(many - allowed - 1, many, 1 - proportion_, error);
    }
    return misses;
  }

  ProportionLimits limits_;
  OneSampleMarginTest test_;
  double proportion_;
  Stop stop_;
  bool isStopped_ = false;
};

/// The largest size from `from` to `to` that misses the power, 0 when there is none. Any once it is stopped.
double LastMissing(PowerBounds& bounds, double power, double from, double to) {
  if (from > to) return 0;
  if (bounds.Stops()) return to;
  if (from == to) return bounds.At(from) >= power ? 0 : from;
  if (bounds.Least(from, to) >= power) return 0;
  const double middle = std::floor(from + (to - from) / 2);
  const double upper = LastMissing(bounds, power, middle + 1, to);
  return upper > 0 ? upper : LastMissing(bounds, power, from, middle);
}

/// The smallest size from `from` to `to` that reaches the power, 0 when there is none. Any once it is stopped.
double FirstReaching(PowerBounds& bounds, double power, double from, double to) {
  if (bounds.Stops()) return from;
  if (from == to) return bounds.At(from) >= power ? from : 0;
  if (bounds.Most(from, to) < power) return 0;
  const double middle = std::floor(from + (to - from) / 2);
  const double lower = FirstReaching(bounds, power, from, middle);
  return lower > 0 ? lower : FirstReaching(bounds, power, middle + 1, to);
}

bool IsInside(const ProportionLimits& limits, double proportion) {
  return proportion > limits.lower && proportion < limits.upper;
}

/// A size from which on the power is certain.
double CertainSizeOf(const OneSampleMarginDesign& design, double proportion, double power) {
  const ProportionLimits& limits = design.limits;
  const double miss = (1 - power) / (limits.HasLower() && limits.HasUpper() ? 2 : 1);
  double size = 1;
  if (limits.HasLower()) size = std::max(size, CertainSize(1 - proportion, 1 - limits.lower, design.alpha, miss));
  if (limits.HasUpper()) size = std::max(size, CertainSize(proportion, limits.upper, design.alpha, miss));
  return size;
}

/// What `find` makes of the bounds and the certain size.
Answer Search(const OneSampleMarginDesign& design, double proportion, double power, Stop stop,
              FunctionView<double(PowerBounds&, double)> find) {
  if (!OneSampleMarginTest(design).Power(1, proportion)) return NoValue::Refused;
  if (!(power < 1) || !IsInside(design.limits, proportion)) return NoValue::NotReached;
  const double certain = CertainSizeOf(design, proportion, power);
  if (!(certain <= largestCount)) return NoValue::Uncountable;
  PowerBounds bounds(design, proportion, stop);
  const double found = find(bounds, certain);
  return bounds.IsStopped() ? Answer(NoValue::Stopped) : found;
}

}  // namespace

Answer FirstSize(const OneSampleMarginDesign& design, double proportion, double power, Stop stop) {
  return Search(design, proportion, power, stop,
                [&](PowerBounds& bounds, double certain) { return FirstReaching(bounds, power, 1, certain); });
}

Answer LastingSize(const OneSampleMarginDesign& design, double proportion, double power, Stop stop) {
  return Search(design, proportion, power, stop,
                [&](PowerBounds& bounds, double certain) { return LastMissing(bounds, power, 1, certain) + 1; });
}

}  // namespace kelpower::proportions
