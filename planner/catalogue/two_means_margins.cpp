#include "catalogue/mean_parameters.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_means.h"
#include "means/margins.h"

namespace planner {
namespace {

namespace means = kelpower::means;

double PowerWithMargins(const Inputs& in) { return PowerOfMeans(in, QuestionOfTwoMeans(in)); }

Condition HasEffect(Name about, bool (*holds)(const Inputs&)) {
  return {.code = "no-effect",
          .about = {about},
          .holds = [holds](const Inputs& in) { return HasMargins(in) || holds(in); },
          .sentence = "The two means are equal: without a difference, no sample size reaches the power."};
}

}  // namespace

bool IsWithinMarginsOfTwoMeans(const Inputs& in) {
  const bool isRatio = in.Has("mean-ratio");
  return IsWithinMargins(in, isRatio ? in.Number("mean-ratio") : DifferenceOfMeans(in),
                         isRatio ? noRatio : noDifference);
}

MeanQuestion QuestionOfTwoMeans(const Inputs& in) {
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  if (!in.Has("cv")) return {DifferenceOfMeans(in), false, SpreadsOfTwoMeans(in).At(n1, n2)};
  return {in.Number("mean-ratio"), true, means::PooledDifference(n1, n2, means::SdOfLogarithms(in.Number("cv")))};
}

std::vector<Route> RoutesOfTwoMeansWithMargins() {
  std::vector<Route> routes = {
      {.question = Question::Power,
       .needs = {"mean-ratio", "cv", "n"},
       .accepts = {"one-sided"},
       .value = PowerWithMargins},
      {.question = Question::SampleSize, .needs = {"mean-ratio", "cv"}, .accepts = {"ratio", "one-sided"}},
  };
  std::vector<Route> plain;
  for (const Names& effect : {Names{"means", "sd"}, Names{"mean-difference", "sd"}, Names{"mean-ratio", "cv"}}) {
    plain.push_back({.question = Question::Power, .needs = {effect[0], effect[1], "n"}, .value = PowerWithMargins});
    plain.push_back({.question = Question::SampleSize, .needs = effect, .accepts = {"ratio"}});
  }
  const std::vector<Route> withMargins = WithMargins(plain);
  routes.insert(routes.end(), withMargins.begin(), withMargins.end());
  return routes;
}

std::vector<Condition> ConditionsOfTwoMeans() {
  std::vector<Condition> conditions = RatioMarginsAboveZero("mean-ratio");
  conditions.push_back(LimitsInOrder());
  const std::vector<Condition> certain = CertainEffect({"margin", "equivalence", "mean-ratio"});
  conditions.insert(conditions.end(), certain.begin(), certain.end());
  return conditions;
}

std::vector<Condition> SizeExistsForTwoMeans() {
  std::vector<Condition> conditions = {
      HasEffect("means", [](const Inputs& in) { return DifferenceOfMeans(in) != 0; }),
      HasEffect("mean-difference", [](const Inputs& in) { return DifferenceOfMeans(in) != 0; }),
      HasEffect("mean-ratio", [](const Inputs& in) { return in.Number("mean-ratio") != noRatio; }),
      HasEffectD(),
  };
  for (Name effect : {Name("means"), Name("mean-difference"), Name("mean-ratio")}) {
    const std::string words = effect == Name("mean-ratio") ? "ratio of the means" : "difference of the means";
    const std::vector<Condition> within = WithinMargins(effect, words, IsWithinMarginsOfTwoMeans);
    conditions.insert(conditions.end(), within.begin(), within.end());
  }
  return conditions;
}

Details DetailsOfTwoMeansWithMargins(const Inputs& in) {
  const bool isPooled = in.Has("cv") || SpreadsOfTwoMeans(in).isPooled;
  Details details =
      DetailsOfMeanMargins(in, QuestionOfTwoMeans(in),
                           isPooled ? "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., "
                                      "sections 2.2 and 2.3"
                                    : "Welch (1938), Biometrika 29, 350-362; Satterthwaite (1946), Biometrics Bulletin "
                                      "2, 110-114; degrees of freedom at the standard deviations expected");
  if (isPooled) AddPowerTost(details, in, "{sd1}", "parallel");
  return details;
}

}  // namespace planner
