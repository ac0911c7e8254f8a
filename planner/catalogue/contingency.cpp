#include "catalogue/contingency.h"

#include <utility>

#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

constexpr double mostRows = 1000;

Parameter Side(Name name, std::string label, std::string meaning) {
  return Number(name, std::move(label), std::move(meaning)).As(Role::Layout).Whole().AtLeast(2).AtMost(mostRows);
}

std::vector<Parameter> Parameters() {
  return {
      ProportionsOnAnyScale("table", "table", "joint proportions expected, row by row, on any scale").Rows("rows"),
      ProportionsOnAnyScale("profiles", "row profiles",
                            "proportions expected within each row, row by row, in place of {table}")
          .Rows("rows"),
      Side("rows", "rows", "number of rows"),
      Side("columns", "columns", "number of columns, where no list tells it"),
      List("ratios", "allocation ratios", "shares of the rows in the study, on any scale; default equal")
          .As(Role::Layout)
          .AtLeast(0.001)
          .AtMost(1000),
      LikelihoodRatio(),
      EffectW(),
      Number("cramers-v", "Cramer's V", "w over the root of the smaller number of rows or columns less 1")
          .Alias("v")
          .AtLeast(0)
          .AtMost(1),
      DegreesOfFreedom(),
      SingleSize("observations in total"),
  };
}

}  // namespace

Test ContingencyTest() {
  Test test{.name = "contingency",
            .title = "Chi-square test of independence in a contingency table",
            .about =
                "Tests whether two categorical variables are independent, or several groups have the same "
                "proportions of categories."};
  test.parameters = Parameters();
  test.routes = RoutesOfContingency();
  test.unknowns = {UnknownEffect("effect-w"), UnknownEffect("cramers-v")};
  test.conditions = ConditionsOfContingency();
  test.sizeExists = SizeExistsForContingency();
  test.derived = FiguresOfContingency();
  AddWordsOfContingency(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
