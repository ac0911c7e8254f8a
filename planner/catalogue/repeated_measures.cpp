#include "catalogue/repeated_measures.h"

#include <cmath>
#include <numeric>
#include <utility>

#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

using kelpower::anova::RepeatedEffect;
using kelpower::anova::RepeatedF;

/// The f of the means that has the noncentrality of the table, at the shares of the groups.
double EffectFOfMeans(const Inputs& in) {
  const Numbers weights = in.Weights();
  const double total = std::accumulate(weights.begin(), weights.end(), 0.0);
  const double perSquare = RepeatedDesignOf(in).NoncentralityOfF(1, RepeatedF::Means, total);
  return std::sqrt(NoncentralityOfTable(in, weights) / perSquare);
}

std::string MeaningOfF(const Inputs& in) {
  switch (RepeatedFOf(in)) {
    case RepeatedF::Means: return "standard deviation of the means over that of one measurement";
    case RepeatedF::Sample: return "partial eta squared as the analysis of a sample gives it";
    case RepeatedF::Cohen: break;
  }
  return "Cohen's, in units of the error, with the correlation in it";
}

std::string Method(const Inputs& in) {
  if (EpsilonOf(in) < 1) return "approximate, degrees of freedom and noncentrality times epsilon";
  if (RepeatedEffectOf(in) == RepeatedEffect::Between) return "exact";
  return "exact for equal correlations";
}

std::vector<Condition> SizeExists() {
  constexpr const char* noEffect = "The effect size is zero: without an effect, no sample size reaches the power.";
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return NoncentralityOfTable(in, in.Weights()) > 0; },
       .sentence = "{means} has nothing of {effect}: without an effect, no sample size reaches the power."},
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

}  // namespace

Test RepeatedMeasuresTest() {
  Test test{
      .name = "repeated-measures",
      .title = "Repeated-measures analysis of variance: F test of one effect",
      .about = "Tests an effect between groups, within subjects, or the interaction of both, of repeated measures.",
      .groups = groupsFromInputs,
      .counted = "subjects"};
  test.parameters = ParametersOfRepeatedMeasures();
  test.routes = RoutesOfRepeatedMeasures();
  test.unknowns = {UnknownEffect("effect-f"), UnknownEffect("eta-squared"), UnknownSd("sd")};
  test.conditions = ConditionsOfRepeatedMeasures();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f", .label = "effect size f of the means", .needs = {"means", "sd"}, .call = EffectFOfMeans}};
  test.assumptions = {
      {.name = "meaning-of-f", .label = "the effect size is", .needs = {"f-of"}, .call = MeaningOfF},
      {.name = "method", .label = "method", .needs = {"effect"}, .call = Method, .wording = " (<0>)"},
  };
  AddWordsOfRepeatedMeasures(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
