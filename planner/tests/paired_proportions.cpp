#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue.h"
#include "exact_proportions.h"
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

double SizeOfPairs(const Inputs& in, int method) {
  return std::ceil(PowerReversebyPRelSampBionm(in.Number("power"), in.Number("p12"), in.Number("p21"),
                                               in.Flag("one-sided"), method, in.Alpha(), nullptr));
}

double SizeOfMarginals(const Inputs& in, int method) {
  return std::ceil(PowerReversebyMargPRelSampBionm(in.Number("power"), in.Number("proportion1"),
                                                   in.Number("proportion2"), in.Number("correlation"),
                                                   in.Flag("one-sided"), method, in.Alpha(), nullptr));
}

bool HaveACommonDistribution(const Inputs& in) { return PowerOfMarginals(in, 2, largeSample) != -1; }

bool CorrectsWhatCanBe(const Inputs& in) { return !in.Flag("correction") || in.Choice("interval-method") == wald; }

constexpr double mostCharted = 2500;    // the largest number of pairs that the export of the chart takes
constexpr double correlationScale = 2;  // from -1 to 1

double Odds(double proportion) { return proportion / (1 - proportion); }

Range Sizes(const Inputs& in) { return {2, std::min(2 * in.Number("n"), mostCharted)}; }

Range AllProportions(const Inputs&) { return {0, 1}; }

Range MinusOneToOne(const Inputs&) { return {-1, 1}; }

Axis ProportionAxis(std::string title, std::string symbol, double (*design)(const Inputs&)) {
  return {std::move(title), std::move(symbol), {0, 1, true, true, false}, design, AllProportions};
}

/// The exports of all charts but those of sizes and ratios lay their grids over the whole scale, which is then cut to
/// the range.
std::vector<Chart> Charts() {
  const Axis size = WithRange(SizeAxis("number of pairs", 2, mostCharted), Sizes);
  const Axis difference{"difference p12 - p21",
                        "difference",
                        {-1, 1, true, true, false},
                        [](const Inputs& in) { return in.Number("p12") - in.Number("p21"); },
                        MinusOneToOne};
  const Axis ratio{"ratio p12 / p21",
                   "ratio",
                   {0.1, 10, true, true, false},
                   [](const Inputs& in) { return in.Number("p12") / in.Number("p21"); },
                   nullptr};
  const Axis oddsRatio{"odds ratio of p12 to p21",
                       "odds ratio",
                       {0, 1e6, false, true, false},
                       [](const Inputs& in) { return Odds(in.Number("p12")) / Odds(in.Number("p21")); },
                       nullptr};
  const Axis correlation{"correlation of the two outcomes",
                         "correlation",
                         {-1, 1, true, true, false},
                         [](const Inputs& in) { return in.Number("correlation"); },
                         MinusOneToOne};
  const Axis p12 =
      ProportionAxis("p12 (success first; failure second)", "p12", [](const Inputs& in) { return in.Number("p12"); });
  const Axis p21 =
      ProportionAxis("p21 (failure first; success second)", "p21", [](const Inputs& in) { return in.Number("p21"); });
  const Axis proportion1 =
      ProportionAxis("first proportion", "p1", [](const Inputs& in) { return in.Number("proportion1"); });
  const Axis proportion2 =
      ProportionAxis("second proportion", "p2", [](const Inputs& in) { return in.Number("proportion2"); });
  return {
      {"n",
       {size},
       {"p12", "p21", "n"},
       {"one-sided", "exact"},
       "PlotNRelSampBionm",
       "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotNRelSampBionm(in.Number("n"), in.Number("p12"), in.Number("p21"), r.x.First(), r.x.Last(),
                                            in.Flag("one-sided"), in.Flag("exact"), in.Alpha())),
                    r);
       }},
      {"difference",
       {difference},
       {"p12", "p21", "n"},
       {"one-sided", "exact"},
       "PlotRiskDiffRelSampBionm",
       "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart difference",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotRiskDiffRelSampBionm(in.Number("n"), in.Number("p12"), in.Flag("one-sided"),
                                                   in.Flag("exact"), in.Alpha(), r.step)),
                    r);
       }},
      {"ratio",
       {ratio},
       {"p12", "p21", "n"},
       {"one-sided", "exact"},
       "PlotRiskRatioRelSampBionm",
       "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart ratio --from 0.5 --to 5 --exact",
       [](const Inputs& in, const Ranges& r) {
         return Cut(
             Curve(PlotRiskRatioRelSampBionm(in.Number("n"), in.Number("p12"), in.Number("p21"), r.x.from, r.x.to,
                                             in.Flag("one-sided"), in.Flag("exact"), in.Alpha(), r.step)),
             r);
       }},
      {"odds-ratio",
       {oddsRatio},
       {"p12", "p21", "n"},
       {"one-sided", "exact"},
       "PlotOddsRatioRelSampBionm",
       "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart odds-ratio --from 0.5 --to 8",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotOddsRatioRelSampBionm(in.Number("n"), in.Number("p12"), r.x.from, r.x.to,
                                                    in.Flag("one-sided"), in.Flag("exact"), in.Alpha(), r.step)),
                    r);
       }},
      {"correlation",
       {correlation},
       {"proportion1", "proportion2", "correlation", "n"},
       {"one-sided", "exact"},
       "PlotCorrRelSampBionm",
       "paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --chart correlation --exact",
       [](const Inputs& in, const Ranges& r) {
         return Cut(
             Curve(PlotCorrRelSampBionm(in.Number("n"), in.Number("proportion1"), in.Number("proportion2"),
                                        in.Flag("one-sided"), in.Flag("exact"), in.Alpha(), correlationScale * r.step)),
             r);
       }},
      {"discordant",
       {p12, p21},
       {"p12", "p21", "n"},
       {"one-sided", "exact"},
       "PlotPropRelSampBionm",
       "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart discordant --step 0.05",
       [](const Inputs& in, const Ranges& r) {
         return Cut(
             Surface(PlotPropRelSampBionm(in.Number("n"), in.Flag("one-sided"), in.Flag("exact"), in.Alpha(), r.step)),
             r);
       }},
      {"marginal",
       {proportion1, proportion2},
       {"proportion1", "proportion2", "correlation", "n"},
       {"one-sided", "exact"},
       "PlotMargPropRelSampBionm",
       "paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --chart marginal --one-sided",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Surface(PlotMargPropRelSampBionm(in.Number("n"), in.Number("correlation"), in.Flag("one-sided"),
                                                     in.Flag("exact"), in.Alpha(), r.step)),
                    r);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "paired-proportions";
  test.title = "McNemar's test of two proportions measured on the same subjects";
  test.about = "Tests whether two proportions measured on the same subjects differ.";
  test.counted = "pairs";

  test.parameters = {
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
          .Default(std::string("wald")),
  };

  test.routes = {
      {Question::Power,
       {"p12", "p21", "n"},
       {"one-sided"},
       "PowerbyPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {PowerOfPairs(in, largeSample)}; }},
      {Question::Power,
       {"p12", "p21", "n", "exact"},
       {"one-sided"},
       "PowerbyPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {PowerOfPairs(in, exact)}; }},
      {Question::Power,
       {"proportion1", "proportion2", "correlation", "n"},
       {"one-sided"},
       "PowerbyMargPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {PowerOfMarginals(in, in.Number("n"), largeSample)}; }},
      {Question::Power,
       {"proportion1", "proportion2", "correlation", "n", "exact"},
       {"one-sided"},
       "PowerbyMargPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {PowerOfMarginals(in, in.Number("n"), exact)}; }},
      {Question::SampleSize,
       {"p12", "p21"},
       {"one-sided"},
       "PowerReversebyPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {SizeOfPairs(in, largeSample)}; }},
      {Question::SampleSize,
       {"p12", "p21", "exact"},
       {"one-sided", "power"},
       "PowerReversebyPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {SizeOfPairs(in, exact)}; }},
      {Question::SampleSize,
       {"proportion1", "proportion2", "correlation"},
       {"one-sided"},
       "PowerReversebyMargPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {SizeOfMarginals(in, largeSample)}; }},
      {Question::SampleSize,
       {"proportion1", "proportion2", "correlation", "exact"},
       {"one-sided"},
       "PowerReversebyMargPRelSampBionm",
       [](const Inputs& in) -> Numbers { return {SizeOfMarginals(in, exact)}; }},
      {Question::HalfWidth,
       {"p12", "p21", "n"},
       {"interval-method", "correction"},
       "HalfCIRelSampBinom",
       [](const Inputs& in) -> Numbers {
         return {HalfCIRelSampBinom(in.Number("n"), in.Number("p12"), in.Number("p21"), in.Choice("interval-method"),
                                    in.Alpha(), in.Flag("correction"))};
       }},
      {Question::SampleSizeForHalfWidth,
       {"p12", "p21"},
       {"interval-method", "correction"},
       "PowerReversebyHalfCIRelSampBinom",
       [](const Inputs& in) -> Numbers {
         return {PowerReversebyHalfCIRelSampBinom(in.Number("half-width"), in.Number("p12"), in.Number("p21"),
                                                  in.Choice("interval-method"), in.Alpha(), in.Flag("correction"),
                                                  in.Stop())};
       }},
  };

  test.conditions = {
      {{"p12", "p21"},
       [](const Inputs& in) { return in.Number("p12") + in.Number("p21") <= 1; },
       "--p12 and --p21 must add up to at most 1."},
      {{"proportion1", "proportion2", "correlation"},
       HaveACommonDistribution,
       "--correlation is beyond what outcomes with these proportions can have."},
      {{"interval-method", "correction"}, CorrectsWhatCanBe, "--correction goes with the interval wald only."},
  };
  test.solvable = {
      {{"p12", "p21"},
       [](const Inputs& in) { return in.Number("p12") != in.Number("p21"); },
       "Both kinds of discordant pairs are equally likely: without an effect, no sample size reaches the power."},
      {{"proportion1", "proportion2"},
       [](const Inputs& in) { return in.Number("proportion1") != in.Number("proportion2"); },
       "The proportions are equal: without an effect, no sample size reaches the power."},
  };

  test.derived = {
      {"attained-level",
       "significance level attained",
       {"p12", "p21", "n", "exact"},
       [](const Inputs& in) { return AttainedLevel(Hypotheses(in), in.Number("n")); }},
      {"lasting-n",
       "from here on every sample size reaches the power",
       {"p12", "p21", "exact", "power"},
       [](const Inputs& in) { return LastingSize(Hypotheses(in), in.Number("power")); }},
  };

  test.phrases = {
      {"effect",
       {{"p12", "discordant pairs with proportions of {p12} and {p21}"},
        {"proportion1", "proportions of {proportion1} and {proportion2} with a correlation of {correlation}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} {exact?exact:large-sample} McNemar test at a significance "
       "level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} "
       "{exact?exact:large-sample} McNemar test at a significance level of {alpha} needs {sizes}; its power is then "
       "{power}."},
      {Question::HalfWidth,
       "With {sizes} and discordant pairs with proportions of {p12} and {p21}, the {confidence} {interval-method} "
       "confidence interval of the difference has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of the difference with a half-width of at most "
       "{target-half-width}, at discordant pairs with proportions of {p12} and {p21}, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"paired-proportions --p12 0.08 --p21 0.32 --n 50 --exact --one-sided",
       "With 50 pairs, the one-sided exact McNemar test at a significance level of 0.05 has a power of 0.8394 to "
       "detect "
       "discordant pairs with proportions of 0.08 and 0.32."},
      {"paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --exact",
       "With 60 pairs, the two-sided exact McNemar test at a significance level of 0.05 has a power of 0.6692 to "
       "detect "
       "proportions of 0.6 and 0.4 with a correlation of 0.3."},
      {"paired-proportions --p12 0.08 --p21 0.32 --power 0.8 --one-sided",
       "To detect discordant pairs with proportions of 0.08 and 0.32 with a power of 0.8, the one-sided large-sample "
       "McNemar test at a significance level of 0.05 needs 41 pairs; its power is then 0.8019."},
      {"paired-proportions --p12 0.3 --p21 0.1 --n 100 --interval",
       "With 100 pairs and discordant pairs with proportions of 0.3 and 0.1, the 95% Wald confidence interval of the "
       "difference has a half-width of 0.1176."},
      {"paired-proportions --p12 0.3 --p21 0.1 --half-width 0.1 --interval-method bonett-price",
       "For a 95% Bonett-Price confidence interval of the difference with a half-width of at most 0.1, at discordant "
       "pairs with proportions of 0.3 and 0.1, the study needs 140 pairs; the half-width is then 0.09999."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test PairedProportionsTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
