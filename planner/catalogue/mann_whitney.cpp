#include "catalogue/mann_whitney.h"

#include <cmath>
#include <utility>

#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/ranks.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;

std::vector<Parameter> Parameters() {
  return {
      EffectD("shift of the first group from the second over the standard deviation of the values"),
      ParentDistribution(),
      Number("superiority", "probability of superiority",
             "probability that a value of the first group exceeds one of the second; ties count half")
          .AtLeast(0)
          .AtMost(1),
      RankMethods(),
      GroupSizes(),
      RatioOfSizes(),
      OneSided(),
  };
}

kelpower::Answer PowerOf(const Inputs& in) {
  const ranks::TwoGroupTest design = MannWhitneyTestOf(in);
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  switch (RankMethodOf(in)) {
    case RankMethod::Efficiency: return ranks::PowerByEfficiency(design, ParentOf(in), in.Number("effect-d"), n1, n2);
    case RankMethod::Noether: return ranks::PowerByNoether(design, SuperiorityOf(in), n1, n2);
    case RankMethod::Lehmann: break;
  }
  return ranks::PowerByMoments(design, ParentOf(in), in.Number("effect-d"), n1, n2);
}

double Power(const Inputs& in) { return OrNaN(PowerOf(in)); }

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"parent", "method", "one-sided"},
       .value = Power},
      {.question = Question::Power, .needs = {"superiority", "n"}, .accepts = {"method", "one-sided"}, .value = Power},
      {.question = Question::SampleSize, .needs = {"effect-d"}, .accepts = {"parent", "method", "ratio", "one-sided"}},
      {.question = Question::SampleSize, .needs = {"superiority"}, .accepts = {"method", "ratio", "one-sided"}},
  };
}

}  // namespace

ranks::TwoGroupTest MannWhitneyTestOf(const Inputs& in) { return {RankSidesOf(in), in.Alpha()}; }

double SuperiorityOf(const Inputs& in) {
  if (in.Has("superiority")) return in.Number("superiority");
  return ranks::Superiority(ParentOf(in), in.Number("effect-d"));
}

Test MannWhitneyTest() {
  Test test{.name = "mann-whitney",
            .title = "Wilcoxon-Mann-Whitney test of two independent groups",
            .about = "Tests by ranks whether the values of one of two independent groups tend to be larger.",
            .groups = 2};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = {UnknownEffectD(), UnknownProbability("superiority"), UnknownRatioOfRanks()};
  test.conditions = {
      OnlyNoetherFor("superiority"),
      {.code = "too-small",
       .about = {"n"},
       .holds = [](const Inputs& in) { return !std::isnan(Power(in)); },
       .sentence = "{n} is too small for {alpha}: not even groups that do not overlap would be rejected."}};
  test.sizeExists = {HasEffectD(), HasProbability("superiority")};
  test.derived = {{.name = "superiority",
                   .label = "probability of superiority",
                   .needs = {"effect-d", "parent"},
                   .call = SuperiorityOf}};
  test.effect = [](const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : SuperiorityOf(in) - 0.5; };
  test.axes = {SizeRatioAxis()};
  test.assumptions = {NamedApproximation()};
  AddWordsOfMannWhitney(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
