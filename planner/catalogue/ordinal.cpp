#include "catalogue/ordinal.h"

#include <algorithm>
#include <utility>

#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/ranks.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;
using ranks::OrdinalMethod;

std::vector<Parameter> Parameters() {
  return {
      List("probabilities1", "probabilities in the first group",
           "probability of each category in the first group, from the lowest category to the highest")
          .AtLeast(0)
          .AtMost(1),
      List("probabilities2", "probabilities in the second group", "the same in the second group").AtLeast(0).AtMost(1),
      Number("odds-ratio", "odds ratio",
             "odds of a higher category in the second group over those in the first, the same at each cut "
             "(proportional odds)")
          .Above(0)
          .AtMost(1e6),
      OneOf("method", "method", "approximation of the power",
            {{"obrien-castelloe", CodeOf(OrdinalMethod::LogOdds), "O'Brien and Castelloe's formula"},
             {"whitehead", CodeOf(OrdinalMethod::ProportionalOdds), "Whitehead's formula"},
             {"happ-bathke-brunner", CodeOf(OrdinalMethod::Probability), "Happ, Bathke and Brunner's formula"}})
          .Default("obrien-castelloe"),
      GroupSizes(),
      RatioOfSizes(),
      OneSided(),
  };
}

double Power(const Inputs& in) {
  return OrNaN(ranks::Power(OrdinalTestOf(in), OrderedGroupsOf(in), in.List("n")[0], in.List("n")[1]));
}

std::vector<Route> Routes() {
  std::vector<Route> routes;
  for (Name second : {Name("probabilities2"), Name("odds-ratio")}) {
    routes.push_back({.question = Question::Power,
                      .needs = {"probabilities1", second, "n"},
                      .accepts = {"method", "one-sided"},
                      .value = Power});
    routes.push_back({.question = Question::SampleSize,
                      .needs = {"probabilities1", second},
                      .accepts = {"method", "ratio", "one-sided"}});
  }
  return routes;
}

double Superiority(const Inputs& in) { return 0.5 + OrdinalExcess(in); }

}  // namespace

ranks::OrdinalTest OrdinalTestOf(const Inputs& in) {
  return {OrdinalMethod(in.Choice("method")), RankSidesOf(in), in.Alpha()};
}

ranks::OrderedGroups OrderedGroupsOf(const Inputs& in) {
  const Numbers& first = in.List("probabilities1");
  if (!in.Has("probabilities2")) return {first.data(), nullptr, in.Number("odds-ratio"), first.size()};
  const Numbers& second = in.List("probabilities2");
  return {first.data(), second.data(), 0, std::min(first.size(), second.size())};
}

double OrdinalExcess(const Inputs& in) {
  const auto moments = ranks::MomentsOf(OrderedGroupsOf(in), 0.5);
  return moments ? moments->excess : OrNaN(kelpower::NoValue::Refused);
}

Test OrdinalTest() {
  Test test{.name = "ordinal",
            .title = "Wilcoxon-Mann-Whitney test of ordered categories",
            .about =
                "Tests by ranks whether one of two independent groups tends to higher categories of an ordinal "
                "outcome.",
            .groups = 2};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = UnknownsOfOrdinal();
  test.conditions = ConditionsOfOrdinal();
  test.sizeExists = SizeExistsForOrdinal();
  test.derived = {{"superiority", "probability of superiority", {"probabilities1"}, Superiority}};
  test.effect = OrdinalExcess;
  test.axes = {SizeRatioAxis()};
  AddWordsOfOrdinal(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
