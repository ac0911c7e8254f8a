#include "catalogue/paired_proportions.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "frame/counts.h"
#include "proportions/related_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::RelatedMethod;

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
      Flag("correction", "continuity correction", "correct the interval for continuity").Alias("continuity-correction"),
      OneOf("interval-method", "interval", "confidence interval of the difference",
            {{"wald", CodeOf(RelatedMethod::Wald), "Wald"},
             {"agresti-min", CodeOf(RelatedMethod::AgrestiMin), "Agresti-Min"},
             {"bonett-price", CodeOf(RelatedMethod::BonettPrice), "Bonett-Price"}})
          .Default("wald"),
  };
}

double EffectOfPairs(const Inputs& in) {
  const proportions::DiscordantPairs pairs = DiscordantPairsOf(in);
  return pairs.p12 - pairs.p21;
}

Unevenness UnevennessOf(const Inputs& in) { return in.Flag("exact") ? Unevenness::Uneven : Unevenness::Even; }

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
  test.unknowns = UnknownsOfPairedProportions();
  test.unevenness = UnevennessOf;
  test.conditions = ConditionsOfPairedProportions();
  test.sizeExists = SizeExistsForPairedProportions();
  test.derived = FiguresOfPairedProportions();
  test.effect = EffectOfPairs;
  test.axes = AxesOfPairedProportions();
  test.assumptions = {{.name = "tails",
                       .label = "tails of the test",
                       .needs = {"exact", "one-sided"},
                       .call = [](const Inputs& in) -> std::string {
                         if (!in.Flag("exact") || in.Flag("one-sided")) return "";
                         return "at most half of the level in each tail";
                       },
                       .wording = ", with <0>,"}};
  test.largestExactSearch = kelpower::largestCount;
  AddWordsOfPairedProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
