#include "catalogue/mean.h"
#include "catalogue/mean_parameters.h"
#include "means/margins.h"

namespace planner {
namespace {

constexpr const char* difference = "difference of the mean from the test value";

MeanQuestion QuestionOf(const Inputs& in) {
  return {DifferenceOfMean(in), false, kelpower::means::SingleMean(in.Number("n"), in.Number("sd"))};
}

double PowerWithMargins(const Inputs& in) { return PowerOfMeans(in, QuestionOf(in)); }

}  // namespace

std::string HypothesisOfMean(const Inputs& in) { return HypothesisOfMargins(in, difference, noDifference); }

std::vector<Route> RoutesOfMeanWithMargins() {
  return WithMargins({
      {.question = Question::Power, .needs = {"mean", "sd", "n"}, .accepts = {"test-value"}, .value = PowerWithMargins},
      {.question = Question::SampleSize, .needs = {"mean", "sd"}, .accepts = {"test-value"}},
  });
}

std::vector<Condition> ConditionsOfMean() {
  std::vector<Condition> conditions = CertainEffect({"margin", "equivalence"});
  conditions.push_back(LimitsInOrder());
  return conditions;
}

std::vector<Condition> SizeExistsForMean() {
  std::vector<Condition> conditions = {
      {.code = "no-effect",
       .about = {"mean", "test-value"},
       .holds = [](const Inputs& in) { return HasMargins(in) || in.Number("mean") != in.Number("test-value"); },
       .sentence = "The mean is the test value: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  const auto within = [](const Inputs& in) { return IsWithinMargins(in, DifferenceOfMean(in), noDifference); };
  const std::vector<Condition> ofMargins = WithinMargins("mean", difference, within);
  conditions.insert(conditions.end(), ofMargins.begin(), ofMargins.end());
  return conditions;
}

Details DetailsOfMeanWithMargins(const Inputs& in) {
  return DetailsOfMeanMargins(
      in, QuestionOf(in), "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 2");
}

}  // namespace planner
