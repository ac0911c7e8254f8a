#include <cmath>

#include "anova/factorial.h"
#include "catalogue/group_parameters.h"
#include "catalogue/repeated_measures.h"

namespace planner {
namespace {

using kelpower::anova::FactorialTerm;
using kelpower::anova::RepeatedEffect;
using kelpower::anova::RepeatedF;

bool IsTable(const Inputs& in) {
  return static_cast<double>(in.List("means").size()) == in.Groups() * in.Number("measurements");
}

bool IsContrast(const Inputs& in) {
  const Numbers& coefficients = in.List("coefficients");
  double sum = 0;
  double magnitude = 0;
  for (double coefficient : coefficients) {
    sum += coefficient;
    magnitude += std::fabs(coefficient);
  }
  const bool isOfAll = static_cast<double>(coefficients.size()) == in.Number("measurements");
  return isOfAll && magnitude > 0 && std::fabs(sum) <= 1e-6 * magnitude;
}

bool NeedsCorrelation(const Inputs& in) { return RepeatedFOf(in) == RepeatedF::Means; }

}  // namespace

std::vector<Condition> ConditionsOfRepeatedMeasures() {
  return {
      {.code = "one-group",
       .about = {"effect"},
       .holds = [](const Inputs& in) { return RepeatedEffectOf(in) == RepeatedEffect::Within || in.Groups() > 1; },
       .sentence = "{effect} is an effect of groups: give {groups}, 2 or more."},
      {.code = "means-table",
       .about = {"means", "measurements"},
       .holds = IsTable,
       .sentence = "{means} must be a table row by row: for each group as many means as {measurements} says."},
      {.code = "too-many-means",
       .about = {"means"},
       .holds = [](const Inputs& in) { return in.List("means").size() <= FactorialTerm::mostCells; },
       .sentence = "{means} has more than 1000 means."},
      {.code = "correlation-needed",
       .about = {"f-of"},
       .holds = [](const Inputs& in) { return in.Has("correlation") || !NeedsCorrelation(in); },
       .sentence = "Also give {correlation}: an effect size of the means has not got it in itself."},
      {.code = "correlation-unused",
       .about = {"f-of", "correlation"},
       .holds = NeedsCorrelation,
       .sentence = "{correlation} changes nothing here: an effect size of the error has it in itself."},
      {.code = "no-such-correlation",
       .about = {"correlation", "measurements"},
       .holds = [](const Inputs& in) { return in.Number("correlation") * (in.Number("measurements") - 1) > -1; },
       .sentence = "{correlation} cannot be that of any two of so many measurements: it must be above -1 / "
                   "({measurements} - 1)."},
      {.code = "epsilon-of-between",
       .about = {"effect", "epsilon"},
       .holds =
           [](const Inputs& in) {
             return in.Number("epsilon") == 1 || RepeatedEffectOf(in) != RepeatedEffect::Between;
           },
       .sentence = "{epsilon} does not concern an effect between groups."},
      {.code = "no-such-epsilon",
       .about = {"epsilon", "measurements"},
       .holds = [](const Inputs& in) { return in.Number("epsilon") * (in.Number("measurements") - 1) >= 1 - 1e-9; },
       .sentence = "{epsilon} is at least 1 / ({measurements} - 1)."},
      {.code = "contrast-within",
       .about = {"coefficients", "effect"},
       .holds = [](const Inputs& in) { return RepeatedEffectOf(in) == RepeatedEffect::Within; },
       .sentence = "{coefficients} goes with an {effect} within subjects only, where correlations are equal."},
      {.code = "contrast-coefficients",
       .about = {"coefficients", "measurements"},
       .holds = IsContrast,
       .sentence = "{coefficients} must be as many as {measurements} says, not all 0, and sum to 0."},
      ErrorDegrees(),
  };
}

}  // namespace planner
