#include "catalogue/effects_parts.h"

namespace planner {
namespace {

void AddOfMeans(std::vector<Parameter>& parameters) {
  parameters.insert(
      parameters.end(),
      {List("means", "group means", "means of two groups, or of the two measurements of pairs").Length(2),
       Number("mean-difference", "difference of the means",
              "first mean minus the second, or mean of the differences of pairs"),
       List("sd", "standard deviation", "standard deviation within the groups, or one for each").Above(0).Spreads(),
       Number("sd-difference", "SD of the differences", "standard deviation of the differences of pairs").Above(0),
       Number("correlation", "correlation of the pairs", "correlation of the two measurements of pairs")
           .Above(-1)
           .Below(1),
       Number("mean", "mean", "mean of one sample"),
       Number("test-value", "mean compared with", "what the mean of one sample is compared with").Default(0.0)});
}

void AddStatistics(std::vector<Parameter>& parameters) {
  parameters.insert(
      parameters.end(),
      {Number("t", "t statistic", "t of two groups, or of one sample or pairs with {one-sample}"),
       Number("f-statistic", "F statistic", "F of an analysis of variance or a regression").Alias("F").AtLeast(0),
       List("df", "degrees of freedom", "degrees of freedom: of t one number, of an F test two").Above(0).Spreads(),
       Flag("one-sample", "one sample", "the effect is that of one sample, or of the differences of pairs")
           .Alias("paired")});
}

void AddEffects(std::vector<Parameter>& parameters) {
  parameters.insert(
      parameters.end(),
      {Number("effect-d", "effect size d", "Cohen's d: first mean minus the second, in standard deviations")
           .Alias("d")
           .AtLeast(-1e6)
           .AtMost(1e6),
       Number("hedges-g", "Hedges' g", "Hedges' g: d corrected for its bias").Alias("g").AtLeast(-1e6).AtMost(1e6),
       Number("superiority", "probability of superiority",
              "probability that someone of the first group has more than someone of the second")
           .Above(0)
           .Below(1),
       Number("effect-f", "effect size f", "Cohen's f of group means").AtLeast(0).AtMost(1e6),
       Number("effect-f2", "effect size f squared", "Cohen's f squared of a regression")
           .Alias("f2")
           .AtLeast(0)
           .AtMost(1e12),
       Number("eta-squared", "eta squared", "share of the variance that groups explain").AtLeast(0).Below(1),
       Number("r-squared", "R squared", "share of the variance that predictors explain").AtLeast(0).Below(1),
       Number("predictors", "predictors", "number of predictors of a regression").Whole().AtLeast(1).AtMost(1e6)});
}

void AddCorrelations(std::vector<Parameter>& parameters) {
  parameters.insert(
      parameters.end(),
      {Number("r", "correlation", "correlation; with {effect-q} the first of two").Above(-1).Below(1),
       List("correlations", "two correlations", "correlations in two independent groups").Length(2).Above(-1).Below(1),
       Number("effect-q", "effect size q", "Cohen's q: difference of two correlations as Fisher's z").Alias("q")});
}

}  // namespace

std::vector<Parameter> ParametersOfEffects() {
  std::vector<Parameter> parameters;
  AddOfMeans(parameters);
  AddStatistics(parameters);
  AddEffects(parameters);
  AddCorrelations(parameters);
  AddParametersOfProportions(parameters);
  parameters.push_back(List("n", "sample size", "size of the study: of two groups one for each, or one that both have")
                           .Whole()
                           .AtLeast(1)
                           .AtMost(1e9)
                           .Spreads());
  parameters.push_back(
      Number("confidence", "confidence", "confidence of the intervals, which need the sizes of the study")
          .Above(0)
          .Below(1)
          .Default(0.95));
  return parameters;
}

}  // namespace planner
