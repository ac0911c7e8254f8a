#include "catalogue/goodness_of_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace chi_square = kelpower::chi_square;

constexpr double mostEstimated = 1000;

double EffectSize(const Inputs& in) {
  const auto effect =
      chi_square::EffectOfFit(NullProportions(in), in.List("proportions"), chi_square::Statistic::Pearson);
  return std::sqrt(OrNaN(effect));
}

std::vector<Parameter> Parameters() {
  return {
      ProportionsOnAnyScale("proportions", "expected proportions",
                            "proportions expected in the categories, on any scale"),
      List("null-proportions", "null proportions", "proportions under the null hypothesis, on any scale; default equal")
          .Above(0)
          .AtMost(1e12),
      Number("estimated", "parameters estimated", "parameters of the null proportions that the data will estimate")
          .Whole()
          .AtLeast(0)
          .AtMost(mostEstimated)
          .Default(0.0),
      LikelihoodRatio(),
      EffectW(),
      DegreesOfFreedom(),
      SingleSize("observations in total"),
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "categories",
       .about = {"proportions"},
       .holds = [](const Inputs& in) { return in.List("proportions").size() >= 2; },
       .sentence = "{proportions} needs at least two categories."},
      {.code = "categories",
       .about = {"proportions", "null-proportions"},
       .holds = [](const Inputs& in) { return in.List("proportions").size() == in.List("null-proportions").size(); },
       .sentence = "{null-proportions} must have as many categories as {proportions}."},
      {.code = "no-proportion",
       .about = {"proportions"},
       .holds =
           [](const Inputs& in) {
             const Numbers& list = in.List("proportions");
             return std::any_of(list.begin(), list.end(), [](double proportion) { return proportion > 0; });
           },
       .sentence = "At least one of the {proportions} must be above 0."},
      {.code = "degrees-of-freedom",
       .about = {"proportions", "estimated"},
       .holds =
           [](const Inputs& in) {
             return in.Number("estimated") + 2 <= static_cast<double>(in.List("proportions").size());
           },
       .sentence = "{estimated} leaves no degree of freedom: it must be below the number of categories less 1."},
  };
}

}  // namespace

Test GoodnessOfFitTest() {
  Test test{.name = "goodness-of-fit",
            .title = "Chi-square test of goodness of fit",
            .about = "Tests whether the categories of a variable have fixed proportions."};
  test.parameters = Parameters();
  test.routes = RoutesOfGoodnessOfFit();
  test.unknowns = {UnknownEffect("effect-w")};
  test.conditions = Conditions();
  test.sizeExists = {
      HasChiSquareEffect({"effect-w"}, [](const Inputs& in) { return in.Number("effect-w") > 0; }),
      HasChiSquareEffect({"proportions"},
                         [](const Inputs& in) { return DesignOfGoodnessOfFit(in).effect(in) > leastEffect; }),
  };
  test.derived = {{.name = "effect-w", .label = "effect size w", .needs = {"proportions"}, .call = EffectSize}};
  AddWordsOfGoodnessOfFit(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
