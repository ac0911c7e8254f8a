#ifndef KELPOWER_PLANNER_CATALOGUE_EFFECTS_INPUTS_H
#define KELPOWER_PLANNER_CATALOGUE_EFFECTS_INPUTS_H

#include <optional>

#include "effects/explained_variance.h"
#include "effects/two_proportions.h"
#include "model/effect.h"

// What the inputs of conversions come to, in whichever way they are given.
namespace planner {

struct TwoSizes {
  double first;
  double second;

  double Df() const { return first + second - 2; }
  double ShareOfFirst() const { return first / (first + second); }
  /// What t is over d.
  double TPerD() const;
};

/// Of two groups: as given, one for both or one for each; equal ones from the degrees of freedom of t.
std::optional<TwoSizes> SizesOf(const Inputs& in);

/// Of one sample: as given, or from the degrees of freedom of t.
std::optional<double> SizeOf(const Inputs& in);

/// The standard deviations of two groups, of which one may stand for both.
struct TwoSds {
  double first;
  double second;
};
TwoSds SdsOf(const Inputs& in);

/// First mean minus second.
double DifferenceOf(const Inputs& in);

/// f squared as given, or from what is given in its place.
double FSquaredOf(const Inputs& in);

/// The F test behind it, where its degrees of freedom are known.
std::optional<kelpower::effects::FStatistic> FTestOf(const Inputs& in);

struct TwoProportions {
  double first;
  double second;
};
TwoProportions ProportionsOf(const Inputs& in);

/// Events in two groups, where the sizes are known.
struct TwoEventCounts {
  kelpower::effects::EventCount first;
  kelpower::effects::EventCount second;
};
std::optional<TwoEventCounts> EventCountsOf(const Inputs& in);

/// An estimate of the core, or the value alone where there is none.
EffectValue ValueOr(const std::optional<kelpower::effects::Estimate>& estimate, double value);

/// An effect size of two groups, of the first in this order over the second.
using OfCounts = std::optional<kelpower::effects::Estimate> (*)(const kelpower::effects::EventCount&,
                                                                const kelpower::effects::EventCount&, double alpha);

/// The input of that name or, where it is not given, the computed effect size; with the interval of the counts. The
/// first group is the one of reference, as in the tests of two proportions.
EffectValue GivenOr(Name name, double computed, OfCounts estimated, const Inputs& in);

}  // namespace planner

#endif
