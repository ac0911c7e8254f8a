#include "catalogue/paired_proportions.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "frame/counts.h"
#include "proportions/lasting_size.h"
#include "proportions/mcnemar.h"
#include "proportions/related_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::RelatedMethod;

proportions::McNemarDesign DesignOf(const Inputs& in) { return {in.Flag("exact"), in.Flag("one-sided"), in.Alpha()}; }

/// The discordant pairs, whichever way they are given.
proportions::DiscordantPairs PairsOf(const Inputs& in) {
  if (in.Has("p12")) return {in.Number("p12"), in.Number("p21")};
  return proportions::DiscordantPairs::FromMarginals(in.Number("proportion1"), in.Number("proportion2"),
                                                     in.Number("correlation"));
}

/// The power; designs at one level share the test, which keeps its critical values.
///
/// The exact test is handed no stop request. It would ask it once for each pair, which takes up to some hundred times
/// as long as the power, and a search ends by itself within a second or so.
class PowerOfMcNemar {
public:
  double operator()(const Inputs& in) {
    const proportions::McNemarDesign design = DesignOf(in);
    proportions::McNemarTest& test =
        kept_.For({double(design.isExact), double(design.isOneSided), design.alpha}, design);
    return OrNaN(test.Power(in.Number("n"), PairsOf(in)));
  }

private:
  Kept<proportions::McNemarTest, 3> kept_;
};

double EffectOfPairs(const Inputs& in) {
  const proportions::DiscordantPairs pairs = PairsOf(in);
  return pairs.p12 - pairs.p21;
}

Numbers Size(const Inputs& in) {
  return RoundedUp(proportions::SizeForPower(DesignOf(in), PairsOf(in), in.Number("power")));
}

proportions::RelatedInterval IntervalOf(const Inputs& in) {
  return proportions::RelatedInterval(
      {RelatedMethod(in.Choice("interval-method")), PairsOf(in), in.Alpha(), in.Flag("correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(IntervalOf(in).SizeFor(in.Number("half-width"), StopOf(in)));
}

double AttainedLevel(const Inputs& in) {
  if (!in.Flag("exact")) return OrNaN(kelpower::NoValue::Refused);
  return OrNaN(proportions::McNemarTest(DesignOf(in)).AttainedLevel(in.Number("n"), PairsOf(in)));
}

double LastingSize(const Inputs& in) {
  return OrNaN(proportions::LastingSize(DesignOf(in), PairsOf(in), in.Number("power")));
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
      Flag("correction", "continuity correction", "correct the interval for continuity").Alias("continuity-correction"),
      OneOf("interval-method", "interval", "confidence interval of the difference",
            {{"wald", CodeOf(RelatedMethod::Wald), "Wald"},
             {"agresti-min", CodeOf(RelatedMethod::AgrestiMin), "Agresti-Min"},
             {"bonett-price", CodeOf(RelatedMethod::BonettPrice), "Bonett-Price"}})
          .Default("wald"),
  };
}

std::vector<Route> PowerRoutes() {
  return {
      {.question = Question::Power,
       .needs = {"p12", "p21", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"p12", "p21", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = PowerOfMcNemar()},
  };
}

std::vector<Route> SizeRoutes() {
  return {
      {.question = Question::SampleSize,
       .needs = {"p12", "p21"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyPRelSampBionm",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"p12", "p21", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyPRelSampBionm",
       .lastingSize = LastingSize,
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .lastingSize = LastingSize,
       .sizes = Size},
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

Unevenness UnevennessOf(const Inputs& in) { return in.Flag("exact") ? Unevenness::Uneven : Unevenness::Even; }

std::vector<Unknown> Unknowns() {
  constexpr const char* reason = "the difference grows faster than its standard error";
  const auto discordant = [&](Name input, Piece (*piece)(const Inputs&), Piece (*below)(const Inputs&)) {
    return Unknown{.input = input,
                   .target = Question::Power,
                   .trend = Trend::Rises,
                   .reason = reason,
                   .piece = piece,
                   .pieceBelow = below};
  };
  return {
      discordant(
          "p12",
          [](const Inputs& in) -> Piece {
            return {in.Number("p21"), 1 - in.Number("p21")};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("p21")};
          }),
      discordant(
          "p21",
          [](const Inputs& in) -> Piece {
            return {in.Number("p12"), 1 - in.Number("p12")};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("p12")};
          }),
      discordant(
          "proportion1",
          [](const Inputs& in) -> Piece {
            return {in.Number("proportion2"), 1};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("proportion2")};
          }),
      discordant(
          "proportion2",
          [](const Inputs& in) -> Piece {
            return {in.Number("proportion1"), 1};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("proportion1")};
          }),
      {.input = "correlation",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "fewer pairs are discordant, of which as many more are of one kind"},
  };
}

bool HaveACommonDistribution(const Inputs& in) {
  if (proportions::RejectsMarginals(in.Number("proportion1"), in.Number("proportion2"))) return false;
  const proportions::DiscordantPairs pairs = PairsOf(in);
  return pairs.p12 >= 0 && pairs.p21 >= 0 && pairs.p12 + pairs.p21 <= 1;
}

bool CorrectsWhatCanBe(const Inputs& in) {
  return !in.Flag("correction") || in.Choice("interval-method") == CodeOf(RelatedMethod::Wald);
}

/// An interval can be asked for without them: there it is the difference that is estimated.
bool HasDiscordantPairs(const Inputs& in) {
  if (in.Has("half-width") || in.Flag("interval")) return true;
  return in.Number("p12") > 0 || in.Number("p21") > 0;
}

std::vector<Condition> Conditions() {
  return {
      {.code = "no-discordant-pairs",
       .about = {"p12", "p21"},
       .holds = HasDiscordantPairs,
       .sentence = "{p12} and {p21} are both 0: the test goes by the discordant pairs, and there would be none."},
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
  test.unknowns = Unknowns();
  test.unevenness = UnevennessOf;
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"p12", "p21", "n", "exact"},
       .call = AttainedLevel},
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"proportion1", "proportion2", "correlation", "n", "exact"},
       .call = AttainedLevel},
      {.name = "p12",
       .label = "first kind of discordant pairs",
       .needs = {"proportion1", "proportion2", "correlation"},
       .call = [](const Inputs& in) { return PairsOf(in).p12; }},
      {.name = "p21",
       .label = "second kind of discordant pairs",
       .needs = {"proportion1", "proportion2", "correlation"},
       .call = [](const Inputs& in) { return PairsOf(in).p21; }},
  };
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
