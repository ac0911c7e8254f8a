#include "catalogue/factorial.h"
#include "catalogue/group_parameters.h"

namespace planner {
namespace {

using kelpower::anova::FactorialTerm;

/// Names that are told apart by the core only where the levels themselves are allowed.
bool HasCells(const Inputs& in) { return FactorialTerm::Of(in.List("levels"), {1}).has_value(); }

}  // namespace

std::vector<Condition> ConditionsOfFactorial() {
  return {
      {.code = "too-many-cells",
       .about = {"levels"},
       .holds = HasCells,
       .sentence = "{levels} makes more than 1000 cells."},
      {.code = "term-of-factors",
       .about = {"levels", "term"},
       .holds = [](const Inputs& in) { return !HasCells(in) || TermOf(in).has_value(); },
       .sentence = "{term} names the factors of the effect by their places in {levels}, counted from 1, each once."},
      ErrorDegrees(),
  };
}

std::vector<Condition> SizeExistsOfFactorial() {
  constexpr const char* noEffect = "The effect size is zero: without an effect, no sample size reaches the power.";
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return NoncentralityOfCells(in, in.Weights()) > 0; },
       .sentence = "{means} has nothing of the effect of {term}: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f"},
       .holds = [](const Inputs& in) { return in.Number("effect-f") > 0; },
       .sentence = noEffect},
      {.code = "no-effect",
       .about = {"eta-squared"},
       .holds = [](const Inputs& in) { return in.Number("eta-squared") > 0; },
       .sentence = noEffect},
  };
}

}  // namespace planner
