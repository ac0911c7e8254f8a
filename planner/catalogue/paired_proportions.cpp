#include "catalogue/paired_proportions.h"

#include <utility>

#include "catalogue/charts.h"
#include "catalogue/core.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "proportions/related_interval.h"

namespace planner {
namespace {

using kelpower::proportions::RelatedMethod;

std::vector<Parameter> Parameters() {
  return {
      Number("p12", "first kind of discordant pairs", "proportion of pairs with success first and failure second")
          .AtLeast(0)
          .AtMost(1),
      Number("p21", "second kind of discordant pairs", "proportion of pairs with failure first and success second")
          .AtLeast(0)
          .AtMost(1),
      Number("proportion1", "first proportion", "proportion of successes in the first measure").Above(0).Below(1),
      Number("proportion2", "second proportion", "proportion of successes in the second measure").Above(0).Below(1),
      Number("correlation", "correlation", "correlation of the two outcomes of a pair").AtLeast(-1).AtMost(1),
      Number("n", "sample size", "number of pairs").Whole().AtLeast(2).AtMost(1e9),
      Flag("exact", "exact test", "exact test of the discordant pairs in place of the large-sample test"),
      Flag("one-sided", "one-sided test", "test in the direction of the difference only"),
      Flag("correction", "continuity correction", "correct the interval for continuity"),
      OneOf("interval-method", "interval", "confidence interval of the difference",
            {{"wald", CodeOf(RelatedMethod::Wald), "Wald"},
             {"agresti-min", CodeOf(RelatedMethod::AgrestiMin), "Agresti-Min"},
             {"bonett-price", CodeOf(RelatedMethod::BonettPrice), "Bonett-Price"}})
          .Default("wald"),
  };
}

}  // namespace

kelpower::proportions::McNemarDesign McNemarDesignOf(const Inputs& in) {
  return {in.Flag("exact"), in.Flag("one-sided"), in.Alpha()};
}

kelpower::proportions::DiscordantPairs DiscordantPairsOf(const Inputs& in) {
  if (in.Has("p12")) return {in.Number("p12"), in.Number("p21")};
  return kelpower::proportions::DiscordantPairs::FromMarginals(in.Number("proportion1"), in.Number("proportion2"),
                                                               in.Number("correlation"));
}

Test PairedProportionsTest() {
  Test test{.name = "paired-proportions",
            .title = "McNemar's test of two proportions measured on the same subjects",
            .about = "Tests whether two proportions measured on the same subjects differ.",
            .counted = "pairs"};
  test.parameters = Parameters();
  test.routes = RoutesOfPairedProportions();
  test.conditions = ConditionsOfPairedProportions();
  test.sizeExists = SizeExistsForPairedProportions();
  test.derived = FiguresOfPairedProportions();
  test.charts = ChartsOfPairedProportions();
  AddWordsOfPairedProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
