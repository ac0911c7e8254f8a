#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

/// Gives the proportions themselves, whichever way they were given.
void SetProportions(Inputs& in, double first, double second) {
  for (Name name : {Name("proportion1"), Name("risk-difference"), Name("risk-ratio"), Name("odds-ratio")}) {
    in.Erase(name);
  }
  if (!in.Has("proportions")) in.SetList("proportions", {first, second});
  in.SetEntry("proportions", 0, first);
  in.SetEntry("proportions", 1, second);
}

Axis FirstProportionAxis() {
  Axis axis = ProportionAxis("first proportion", "p1", "proportion1");
  axis.input.reset();
  axis.design = FirstProportion;
  axis.vary = [](Inputs& in, const Inputs& design, double at) { SetProportions(in, at, SecondProportion(design)); };
  return axis;
}

Axis SecondProportionAxis() {
  Axis axis = ProportionAxis("second proportion", "p2", "proportion2");
  axis.input.reset();
  axis.design = SecondProportion;
  axis.vary = [](Inputs& in, const Inputs&, double at) { SetProportions(in, FirstProportion(in), at); };
  return axis;
}

/// What the second proportion leaves.
Range AllRiskDifferences(const Inputs& in) { return {FirstProportion(in) - 1, FirstProportion(in)}; }

double ToFourDigits(double value) {
  constexpr double scale = 1e4;
  return std::round(value * scale) / scale;
}

std::optional<Problem> RefuseRiskDifferences(const Inputs& in, const Range& differences) {
  const Range all = AllRiskDifferences(in);
  if (differences.from < all.to && differences.to > all.from) return std::nullopt;
  return Problem{
      .code = Code::ChartRangeRefused,
      .inputs = {"from", "to"},
      .values = {differences.from, differences.to, FirstProportion(in), ToFourDigits(all.from), ToFourDigits(all.to)},
      .sentence =
          "{from} and {to} are <0> and <1>, but with a first proportion of <2> a risk difference lies "
          "between <3> and <4>."};
}

}  // namespace

void KeepFirstProportion(Inputs& in, const Inputs& design, double second) {
  SetProportions(in, FirstProportion(design), second);
}

std::vector<Axis> ProportionAxesOfTwoProportions() { return {FirstProportionAxis(), SecondProportionAxis()}; }

Axis RiskDifferenceAxisOfTwoProportions() {
  return {.title = "risk difference (first minus second)",
          .symbol = "difference",
          .limits = {-1, 1, true, true, false},
          .design = RiskDifference,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { KeepFirstProportion(in, design, FirstProportion(design) - at); },
          .usual = [](const Inputs& in, double) { return AllRiskDifferences(in); },
          .scale = AllRiskDifferences,
          .scaleEnds = ScaleEnds::None,
          .stepIsOfScale = true,
          .refuse = RefuseRiskDifferences};
}

}  // namespace planner
