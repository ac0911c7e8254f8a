#include "catalogue/factorial.h"

#include <cmath>
#include <numeric>
#include <utility>

#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

/// The noncentrality of one observation, in the shares of the cells.
double SquaredFOfMeans(const Inputs& in) {
  const Numbers weights = in.Weights();
  return NoncentralityOfCells(in, weights) / std::accumulate(weights.begin(), weights.end(), 0.0);
}

double EffectFOfMeans(const Inputs& in) { return std::sqrt(SquaredFOfMeans(in)); }

double EtaSquaredOfMeans(const Inputs& in) {
  const double square = SquaredFOfMeans(in);
  return square / (1 + square);
}

/// "2 x 3"
std::string Layout(const Inputs& in) {
  std::string text;
  for (double level : in.List("levels")) {
    if (!text.empty()) text += " x ";
    text += std::to_string(static_cast<int>(level));
  }
  return text;
}

/// "main effect of factor 1", "interaction of factors 1, 2 and 3"
std::string Tested(const Inputs& in) {
  const Numbers& term = in.List("term");
  std::string text = term.size() == 1 ? "main effect of factor " : "interaction of factors ";
  for (std::size_t i = 0; i < term.size(); ++i) {
    if (i > 0) text += i + 1 == term.size() ? " and " : ", ";
    text += std::to_string(static_cast<int>(term[i]));
  }
  return text;
}

std::vector<Parameter> Parameters() {
  return {
      List("levels", "levels of the factors", "numbers of levels of the crossed factors: 2,3 makes 6 cells")
          .As(Role::Shape)
          .Spreads()
          .Whole()
          .AtLeast(2)
          .AtMost(1000),
      List("term", "factors of the effect", "factors of the effect to test: 1 for the first, 1,2 for an interaction")
          .As(Role::Layout)
          .Spreads()
          .Whole()
          .AtLeast(1)
          .AtMost(1000),
      PerGroup("means", "cell means", "mean expected in each cell, row by row, with the last factor fastest"),
      Number("sd", "standard deviation", "standard deviation within the cells").Above(0),
      EffectF(),
      Number("eta-squared", "partial eta squared", "variance of the effect over that and the variance within the cells")
          .AtLeast(0)
          .Below(1),
      GroupSizes(),
      AllocationRatios(),
  };
}

}  // namespace

Test FactorialTest() {
  Test test{.name = "factorial",
            .title = "Factorial analysis of variance: F test of one effect (type III)",
            .about = "Tests a main effect or an interaction of crossed factors.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfFactorial();
  test.unknowns = {UnknownEffect("effect-f"), UnknownEffect("eta-squared"), UnknownSd("sd")};
  test.conditions = ConditionsOfFactorial();
  test.sizeExists = SizeExistsOfFactorial();
  test.derived = {
      {.name = "effect-f", .label = "effect size f", .needs = {"means", "sd"}, .call = EffectFOfMeans},
      {.name = "eta-squared", .label = "partial eta squared", .needs = {"means", "sd"}, .call = EtaSquaredOfMeans},
  };
  test.assumptions = {
      {.name = "layout", .label = "design", .needs = {"levels"}, .call = Layout},
      {.name = "tested-effect", .label = "effect tested", .needs = {"levels", "term"}, .call = Tested},
  };
  AddWordsOfFactorial(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
