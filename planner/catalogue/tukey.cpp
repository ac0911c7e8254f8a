#include "catalogue/tukey.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"

namespace planner {
namespace {

std::vector<Parameter> Parameters() {
  return {
      List("pair", "groups compared", "numbers of the two groups whose difference is to be found; without it, any two")
          .As(Role::Layout)
          .Length(2)
          .Whole()
          .AtLeast(1)
          .AtMost(10000),
      GroupMeans(),
      WithinSd(),
      Number("effect-d", "standardized difference d",
             "difference of the pair's means over the standard deviation; without a pair, of the two means farthest "
             "apart, with the others midway")
          .Alias("d")
          .AtLeast(-1e6)
          .AtMost(1e6),
      GroupSizes(),
      AllocationRatios(),
      GroupCount(),
  };
}

double LargestDifference(const Inputs& in) {
  const auto [least, largest] = std::minmax_element(in.List("means").begin(), in.List("means").end());
  return (*largest - *least) / in.Number("sd");
}

std::string Procedure(const Inputs& in) {
  return AreEqual(in, "n") && AreEqual(in, "ratios") ? "Tukey's test" : "the Tukey-Kramer test";
}

std::string PowerFor(const Inputs& in) {
  if (!in.Has("means") && !in.Has("effect-d")) return "";  // of an interval
  if (!in.Has("pair")) return "a difference between at least one pair of groups";
  const AskedPair pair = PairOf(in);
  return "the difference between groups " + std::to_string(pair.first + 1) + " and " + std::to_string(pair.second + 1);
}

/// A power looks for a critical value. That for any pair integrates over as many variables as there are different means.
double StepsOfPower(const Inputs& in) {
  constexpr double stepsOfCritical = 4e4;
  constexpr double stepsOfMean = 2e4;
  return stepsOfCritical + (IsAboutOnePair(in) ? 0 : stepsOfMean * static_cast<double>(in.Groups()));
}

}  // namespace

Test TukeyTest() {
  Test test{.name = "tukey",
            .title = "One-way analysis of variance: Tukey's test of all pairs",
            .about = "Tests which groups differ in their means, all pairs at one level for the whole family.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfTukey();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = ConditionsOfTukey();
  test.sizeExists = SizeExistsForTukey();
  test.derived = {
      {.name = "effect-d",
       .label = "standardized difference d",
       .needs = {"means", "sd", "pair"},
       .call = EffectOfTukeyPair},
      {.name = "largest-difference",
       .label = "largest standardized difference",
       .needs = {"means", "sd"},
       .call = LargestDifference},
  };
  test.assumptions = {
      {.name = "procedure", .label = "test", .needs = {}, .call = Procedure},
      {.name = "power-for", .label = "power to find", .needs = {}, .call = PowerFor},
  };
  test.steps = StepsOfPower;
  test.offers.comparisons = false;  // the level is that of all pairs together
  AddWordsOfTukey(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
