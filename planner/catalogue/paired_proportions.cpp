#include "catalogue/paired_proportions.h"

#include <cmath>
#include <utility>

#include "catalogue/exact_proportions.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

constexpr int wald = 0;
constexpr int largeSample = 0;
constexpr int exact = 1;

DiscordantProportions Hypotheses(const Inputs& in) {
  return {in.Number("p12"), in.Number("p21"), in.Flag("one-sided"), in.Alpha()};
}

// The exact test is handed no stop request, which it would ask once for each pair: that takes up to some hundred times
// as long as the power, and a search ends by itself within a second or so.
double PowerOfPairs(const Inputs& in, int method) {
  return PowerbyPRelSampBionm(in.Number("n"), in.Number("p12"), in.Number("p21"), in.Flag("one-sided"), method,
                              in.Alpha(), nullptr);
}

double PowerOfMarginals(const Inputs& in, double n, int method) {
  return PowerbyMargPRelSampBionm(n, in.Number("proportion1"), in.Number("proportion2"), in.Number("correlation"),
                                  in.Flag("one-sided"), method, in.Alpha());
}

Numbers SizeOfPairs(const Inputs& in, int method) {
  return {std::ceil(PowerReversebyPRelSampBionm(in.Number("power"), in.Number("p12"), in.Number("p21"),
                                                in.Flag("one-sided"), method, in.Alpha(), nullptr))};
}

Numbers SizeOfMarginals(const Inputs& in, int method) {
  return {std::ceil(PowerReversebyMargPRelSampBionm(in.Number("power"), in.Number("proportion1"),
                                                    in.Number("proportion2"), in.Number("correlation"),
                                                    in.Flag("one-sided"), method, in.Alpha(), nullptr))};
}

double HalfWidth(const Inputs& in) {
  return HalfCIRelSampBinom(in.Number("n"), in.Number("p12"), in.Number("p21"), in.Choice("interval-method"),
                            in.Alpha(), in.Flag("correction"));
}

Numbers SizeForHalfWidth(const Inputs& in) {
  return {PowerReversebyHalfCIRelSampBinom(in.Number("half-width"), in.Number("p12"), in.Number("p21"),
                                           in.Choice("interval-method"), in.Alpha(), in.Flag("correction"), in.Stop())};
}

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
            {{"wald", wald, "Wald"}, {"agresti-min", 1, "Agresti-Min"}, {"bonett-price", 2, "Bonett-Price"}})
          .Default("wald"),
  };
}

std::vector<Route> PowerRoutes() {
  return {
      {.question = Question::Power,
       .needs = {"p12", "p21", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = [](const Inputs& in) { return PowerOfPairs(in, largeSample); }},
      {.question = Question::Power,
       .needs = {"p12", "p21", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = [](const Inputs& in) { return PowerOfPairs(in, exact); }},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = [](const Inputs& in) { return PowerOfMarginals(in, in.Number("n"), largeSample); }},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = [](const Inputs& in) { return PowerOfMarginals(in, in.Number("n"), exact); }},
  };
}

std::vector<Route> SizeRoutes() {
  return {
      {.question = Question::SampleSize,
       .needs = {"p12", "p21"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyPRelSampBionm",
       .sizes = [](const Inputs& in) { return SizeOfPairs(in, largeSample); }},
      {.question = Question::SampleSize,
       .needs = {"p12", "p21", "exact"},
       .accepts = {"one-sided", "power"},
       .exportName = "PowerReversebyPRelSampBionm",
       .sizes = [](const Inputs& in) { return SizeOfPairs(in, exact); }},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .sizes = [](const Inputs& in) { return SizeOfMarginals(in, largeSample); }},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .sizes = [](const Inputs& in) { return SizeOfMarginals(in, exact); }},
  };
}

std::vector<Route> Routes() {
  std::vector<Route> routes = PowerRoutes();
  for (Route& route : SizeRoutes()) routes.push_back(std::move(route));
  routes.push_back({.question = Question::HalfWidth,
                    .needs = {"p12", "p21", "n"},
                    .accepts = {"interval-method", "correction"},
                    .exportName = "HalfCIRelSampBinom",
                    .value = HalfWidth});
  routes.push_back({.question = Question::SampleSizeForHalfWidth,
                    .needs = {"p12", "p21"},
                    .accepts = {"interval-method", "correction"},
                    .exportName = "PowerReversebyHalfCIRelSampBinom",
                    .sizes = SizeForHalfWidth});
  return routes;
}

bool HaveACommonDistribution(const Inputs& in) { return PowerOfMarginals(in, 2, largeSample) != -1; }

bool CorrectsWhatCanBe(const Inputs& in) { return !in.Flag("correction") || in.Choice("interval-method") == wald; }

std::vector<Condition> Conditions() {
  return {
      {.code = "discordant-sum",
       .about = {"p12", "p21"},
       .holds = [](const Inputs& in) { return in.Number("p12") + in.Number("p21") <= 1; },
       .sentence = "{p12} and {p21} must add up to at most 1."},
      {.code = "correlation-possible",
       .about = {"proportion1", "proportion2", "correlation"},
       .holds = HaveACommonDistribution,
       .sentence = "{correlation} is beyond what outcomes with these proportions can have."},
      {.code = "corrected-interval",
       .about = {"interval-method", "correction"},
       .holds = CorrectsWhatCanBe,
       .sentence = "{correction} goes with the interval wald only."},
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"p12", "p21"},
       .holds = [](const Inputs& in) { return in.Number("p12") != in.Number("p21"); },
       .sentence =
           "Both kinds of discordant pairs are equally likely: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"proportion1", "proportion2"},
       .holds = [](const Inputs& in) { return in.Number("proportion1") != in.Number("proportion2"); },
       .sentence = "The proportions are equal: without an effect, no sample size reaches the power."},
  };
}

}  // namespace

Test PairedProportionsTest() {
  Test test{.name = "paired-proportions",
            .title = "McNemar's test of two proportions measured on the same subjects",
            .about = "Tests whether two proportions measured on the same subjects differ.",
            .counted = "pairs"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"p12", "p21", "n", "exact"},
       .call = [](const Inputs& in) { return AttainedLevel(Hypotheses(in), in.Number("n")); }},
      {.name = "lasting-n",
       .label = "from here on every sample size reaches the power",
       .needs = {"p12", "p21", "exact", "power"},
       .call = [](const Inputs& in) { return LastingSize(Hypotheses(in), in.Number("power")); }},
  };
  test.charts = ChartsOfPairedProportions();
  AddWordsOfPairedProportions(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
