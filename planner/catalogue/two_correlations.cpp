#include "catalogue/two_correlations.h"

#include <cmath>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"
#include "model/chart.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

std::vector<Parameter> Parameters() {
  return {
      PerGroup("correlations", "correlations", "correlation expected in each group").Above(-1).Below(1),
      Number("effect-q", "effect size q",
             "difference of Fisher's z of the two correlations, in place of {correlations}")
          .Alias("q"),
      GroupSizes().AtLeast(4),
      RatioOfSizes(),
      Flag("one-sided", "one-sided test", "test in the direction of the difference only"),
  };
}

double Power(const Inputs& in) {
  return OrNaN(correlation::PowerOfDifference({in.Alpha(), in.Flag("one-sided")}, EffectQ(in), SizesOfGroups(in)));
}

/// The power tells the sizes, too.
std::vector<Route> Routes() {
  std::vector<Route> routes;
  for (Name effect : {Name("correlations"), Name("effect-q")}) {
    routes.push_back({.question = Question::Power, .needs = {effect, "n"}, .accepts = {"one-sided"}, .value = Power});
    routes.push_back({.question = Question::SampleSize, .needs = {effect}, .accepts = {"ratio", "one-sided"}});
  }
  return routes;
}

/// Moves the first correlation.
Axis EffectQAxis() {
  return {.name = "effect-q",
          .title = "effect size q (first minus second Fisher's z)",
          .symbol = "q",
          .needs = {"correlations"},
          .limits = {-10, 10, true, true, false},
          .design = EffectQ,
          .vary =
              [](Inputs& in, const Inputs& design, double at) {
                in.SetEntry("correlations", 0, std::tanh(std::atanh(design.List("correlations")[1]) + at));
              },
          .scale = nullptr};
}

}  // namespace

double EffectQ(const Inputs& in) {
  if (in.Has("effect-q")) return in.Number("effect-q");
  return correlation::FisherDifference({in.List("correlations")[0], in.List("correlations")[1]});
}

correlation::GroupSizes SizesOfGroups(const Inputs& in) { return {in.List("n")[0], in.List("n")[1]}; }

Test TwoCorrelationsTest() {
  Test test{.name = "two-correlations",
            .title = "Test of two independent correlations",
            .about = "Tests whether two independent groups have the same Pearson correlation of two variables.",
            .groups = 2,
            .counted = "cases"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = UnknownsOfTwoCorrelations();
  test.sizeExists = SizeExistsForTwoCorrelations();
  test.derived = {{.name = "effect-q", .label = "effect size q", .needs = {"correlations"}, .call = EffectQ}};
  test.effect = EffectQ;
  test.axes = {EffectQAxis(), SizeRatioAxis()};
  AddWordsOfTwoCorrelations(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
