#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "exact_proportions.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace planner {
namespace {

constexpr int wald = 0;
constexpr int wilson = 5;
constexpr int normal = 0;
constexpr int exact = 1;

OneProportion Hypotheses(const Inputs& in) {
  return {in.Number("proportion"), in.Number("null"), in.Flag("one-sided"), in.Alpha()};
}

// The exact test is handed no stop request, which it would ask once for each count below the size: that takes up to
// some thousand times as long as the power, and a search ends by itself in well under a second.
double PowerAt(const Inputs& in, int method) {
  return PowerOneSampBinom(in.Number("n"), in.Number("proportion"), in.Number("null"), method, in.Flag("one-sided"),
                           in.Alpha(), in.Flag("correction"), nullptr);
}

double SizeOf(const Inputs& in, int method) {
  return std::ceil(PowerReverseOneSampBinom(in.Number("power"), in.Number("proportion"), in.Number("null"), method,
                                            in.Flag("one-sided"), in.Alpha(), in.Flag("correction"), nullptr));
}

// Missing, and so not reported, where no count in that tail rejects.
double LargestLowRejection(const Inputs& in) {
  const double count = CriticalCounts(Hypotheses(in), in.Number("n")).lower;
  return count < 0 ? KelCommon::KelMV::Missing() : count;
}

double SmallestHighRejection(const Inputs& in) {
  const double count = CriticalCounts(Hypotheses(in), in.Number("n")).upper;
  return count > in.Number("n") ? KelCommon::KelMV::Missing() : count;
}

bool CorrectsWhatCanBe(const Inputs& in) {
  const int method = in.Choice("interval-method");
  return !in.Flag("correction") || method == wald || method == wilson;
}

Parameter Expected() { return Number("proportion", "proportion", "proportion expected").AtLeast(0).AtMost(1); }

Parameter Null() { return Number("null", "null proportion", "proportion under the null hypothesis").Above(0).Below(1); }

constexpr double mostCharted = 5000;  // the largest size that the exports of charts take

int Method(const Inputs& in) { return in.Flag("exact") ? exact : normal; }

Range Sizes(const Inputs& in) { return {2, std::min(std::max(4.0, 2 * in.Number("n")), mostCharted)}; }

/// The export's own range around the design; all sizes where that would reach too far.
Range SizesOfSurface(const Inputs& in) { return 2 * in.Number("n") <= mostCharted ? Range{} : Range{2, mostCharted}; }

Range AllProportions(const Inputs&) { return {0, 1}; }

Axis DifferenceAxis() {
  return {"difference of the proportions (expected minus null)",
          "difference",
          {-1, 1, true, true, false},
          [](const Inputs& in) { return in.Number("proportion") - in.Number("null"); },
          [](const Inputs&) -> Range {
            return {-1, 1};
          }};
}

/// The exports lay the grids of proportions over the whole scale, which is then cut to the range.
std::vector<Chart> Charts() {
  const Axis size = SizeAxis("sample size (observations)", 2, mostCharted);
  const Axis proportion = WithRange(
      ParameterAxis(Expected(), "p", [](const Inputs& in) { return in.Number("proportion"); }), AllProportions);
  const Axis null =
      WithRange(ParameterAxis(Null().AtLeast(0).AtMost(1), "p0", [](const Inputs& in) { return in.Number("null"); }),
                AllProportions);
  const Axis difference = DifferenceAxis();
  return {
      {"n",
       {WithRange(size, Sizes)},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --exact --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Cut(
             Curve(PlotNOneSampBinom(in.Number("n"), in.Number("proportion"), in.Number("null"), Method(in),
                                     in.Flag("one-sided"), in.Alpha(), r.x.First(), r.x.Last(), in.Flag("correction"))),
             r);
       }},
      {"null",
       {null},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNullOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart null --from 0.3 --to 0.7",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotNullOneSampBinom(in.Number("n"), in.Number("proportion"), Method(in),
                                               in.Flag("one-sided"), in.Alpha(), in.Flag("correction"), r.step)),
                    r);
       }},
      {"alternative",
       {proportion},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotAlterOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart alternative",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotAlterOneSampBinom(in.Number("n"), in.Number("null"), Method(in), in.Flag("one-sided"),
                                                in.Alpha(), in.Flag("correction"), r.step)),
                    r);
       }},
      {"difference",
       {difference},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotRiskDiffOneSampBionm",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart difference",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Curve(PlotRiskDiffOneSampBionm(in.Number("n"), in.Number("null"), Method(in), in.Flag("one-sided"),
                                                   in.Alpha(), in.Flag("correction"), r.step)),
                    r);
       }},
      {"n-difference",
       {WithRange(size, SizesOfSurface), difference},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNRiskDiffOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart n-difference",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Surface(PlotNRiskDiffOneSampBinom(in.Number("n"), in.Number("proportion"), in.Number("null"),
                                                      Method(in), in.Flag("one-sided"), in.Alpha(), r.x.First(),
                                                      r.x.Last(), in.Flag("correction"), r.step)),
                    r);
       }},
      {"n-null",
       {WithRange(size, SizesOfSurface), null},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNNullOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart n-null --from 20,0.3 --to 120,0.7",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Surface(PlotNNullOneSampBinom(in.Number("n"), in.Number("proportion"), in.Number("null"),
                                                  Method(in), in.Flag("one-sided"), in.Alpha(), r.x.First(), r.x.Last(),
                                                  in.Flag("correction"), r.step)),
                    r);
       }},
      {"n-alternative",
       {WithRange(size, SizesOfSurface), proportion},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNAlterOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart n-alternative --step 0.1",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Surface(PlotNAlterOneSampBinom(in.Number("n"), in.Number("proportion"), in.Number("null"),
                                                   Method(in), in.Flag("one-sided"), in.Alpha(), r.x.First(),
                                                   r.x.Last(), in.Flag("correction"), r.step)),
                    r);
       }},
      {"null-alternative",
       {null, proportion},
       {"proportion", "null", "n"},
       {"one-sided", "exact", "correction"},
       "PlotNullAlterOneSampBinom",
       "proportion --proportion 0.65 --null 0.5 --n 60 --chart null-alternative --step 0.05",
       [](const Inputs& in, const Ranges& r) {
         return Cut(Surface(PlotNullAlterOneSampBinom(in.Number("n"), Method(in), in.Flag("one-sided"), in.Alpha(),
                                                      in.Flag("correction"), r.step)),
                    r);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "proportion";
  test.title = "Test of one proportion";
  test.about = "Tests whether a proportion differs from a given value.";

  test.parameters = {
      Expected(),
      Null(),
      Number("n", "sample size", "number of observations").Whole().AtLeast(1).AtMost(1e9),
      Flag("exact", "exact test", "exact binomial test in place of the normal approximation"),
      Flag("one-sided", "one-sided test", "test in the direction of the proportion expected only"),
      Flag("correction", "continuity correction", "correct the normal approximation for continuity"),
      OneOf("interval-method", "interval", "confidence interval of the proportion",
            {{"wald", wald, "Wald"},
             {"adjusted-logit", 1, "adjusted logit"},
             {"logit", 2, "logit"},
             {"clopper-pearson", 3, "Clopper-Pearson"},
             {"jeffreys", 4, "Jeffreys"},
             {"wilson", wilson, "Wilson"},
             {"agresti-coull", 6, "Agresti-Coull"}})
          .Default(std::string("wilson")),
  };

  test.routes = {
      {Question::Power,
       {"proportion", "null", "n"},
       {"one-sided", "correction"},
       "PowerOneSampBinom",
       [](const Inputs& in) -> Numbers { return {PowerAt(in, normal)}; }},
      {Question::Power,
       {"proportion", "null", "n", "exact"},
       {"one-sided"},
       "PowerOneSampBinom",
       [](const Inputs& in) -> Numbers { return {PowerAt(in, exact)}; }},
      {Question::SampleSize,
       {"proportion", "null"},
       {"one-sided", "correction"},
       "PowerReverseOneSampBinom",
       [](const Inputs& in) -> Numbers { return {SizeOf(in, normal)}; }},
      {Question::SampleSize,
       {"proportion", "null", "exact"},
       {"one-sided", "power"},
       "PowerReverseOneSampBinom",
       [](const Inputs& in) -> Numbers { return {SizeOf(in, exact)}; }},
      {Question::HalfWidth,
       {"proportion", "n"},
       {"interval-method", "correction"},
       "HalfCIOneSampBinom",
       [](const Inputs& in) -> Numbers {
         return {HalfCIOneSampBinom(in.Number("n"), in.Number("proportion"), in.Choice("interval-method"), in.Alpha(),
                                    in.Flag("correction"))};
       }},
      {Question::SampleSizeForHalfWidth,
       {"proportion"},
       {"interval-method", "correction"},
       "PowerReversebyHalfCIOneSampBinom",
       [](const Inputs& in) -> Numbers {
         return {std::ceil(PowerReversebyHalfCIOneSampBinom(in.Number("half-width"), in.Number("proportion"),
                                                            in.Choice("interval-method"), in.Alpha(),
                                                            in.Flag("correction"), in.Stop()))};
       }},
  };

  test.conditions = {
      {{"interval-method", "correction"},
       CorrectsWhatCanBe,
       "--correction goes with the intervals wald and wilson only."},
      {{"exact", "correction"},
       [](const Inputs& in) { return !in.Flag("exact") || !in.Flag("correction"); },
       "--exact and --correction exclude each other."},
  };
  test.solvable = {
      {{"proportion", "null"},
       [](const Inputs& in) { return in.Number("proportion") != in.Number("null"); },
       "The proportion expected is the null proportion: without an effect, no sample size reaches the power."},
  };

  test.derived = {
      {"rejects-to", "rejects up to this count", {"proportion", "null", "n", "exact"}, LargestLowRejection},
      {"rejects-from", "rejects from this count", {"proportion", "null", "n", "exact"}, SmallestHighRejection},
      {"attained-level",
       "significance level attained",
       {"proportion", "null", "n", "exact"},
       [](const Inputs& in) { return AttainedLevel(Hypotheses(in), in.Number("n")); }},
      {"lasting-n",
       "from here on every sample size reaches the power",
       {"proportion", "null", "exact", "power"},
       [](const Inputs& in) { return LastingSize(Hypotheses(in), in.Number("power")); }},
  };

  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} {exact?exact test:normal approximation to the test} of a "
       "proportion of {null} at a significance level of {alpha} has a power of {power} to detect a proportion of "
       "{proportion}."},
      {Question::SampleSize,
       "To detect a proportion of {proportion} with a power of {target-power}, the {one-sided?one-sided:two-sided} "
       "{exact?exact test:normal approximation to the test} of a proportion of {null} at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the {confidence} {interval-method} confidence interval of a proportion of {proportion} has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of a proportion of {proportion} with a half-width of "
       "at most {target-half-width}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"proportion --proportion 0.65 --null 0.5 --n 60",
       "With 60 observations, the two-sided normal approximation to the test of a proportion of 0.5 at a significance "
       "level of 0.05 has a power of 0.6485 to detect a proportion of 0.65."},
      {"proportion --proportion 0.8 --null 0.65 --n 20 --exact --one-sided",
       "With 20 observations, the one-sided exact test of a proportion of 0.65 at a significance level of 0.05 has a "
       "power of 0.4114 to detect a proportion of 0.8."},
      {"proportion --proportion 0.65 --null 0.8 --power 0.8 --exact",
       "To detect a proportion of 0.65 with a power of 0.8, the two-sided exact test of a proportion of 0.8 at a "
       "significance level of 0.05 needs 72 observations; its power is then 0.8191."},
      {"proportion --proportion 0.2 --n 40 --interval --interval-method clopper-pearson",
       "With 40 observations, the 95% Clopper-Pearson confidence interval of a proportion of 0.2 has a half-width of "
       "0.133."},
      {"proportion --proportion 0.4 --half-width 0.07 --interval-method wald",
       "For a 95% Wald confidence interval of a proportion of 0.4 with a half-width of at most 0.07, the study needs "
       "189 observations; the half-width is then 0.06984."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test ProportionTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
