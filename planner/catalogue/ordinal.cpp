#include "catalogue/ordinal.h"

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
          .As(Role::Layout)
          .AtLeast(0)
          .AtMost(1),
      List("probabilities2", "probabilities in the second group", "the same in the second group")
          .As(Role::Layout)
          .AtLeast(0)
          .AtMost(1),
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

double Superiority(const Inputs& in) { return 0.5 + OrdinalExcess(in); }

}  // namespace

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
  test.routes = RoutesOfOrdinal();
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
