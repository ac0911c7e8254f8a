#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/exact_proportions.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
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

Numbers SizeOf(const Inputs& in, int method) {
  return {std::ceil(PowerReverseOneSampBinom(in.Number("power"), in.Number("proportion"), in.Number("null"), method,
                                             in.Flag("one-sided"), in.Alpha(), in.Flag("correction"), nullptr))};
}

double HalfWidth(const Inputs& in) {
  return HalfCIOneSampBinom(in.Number("n"), in.Number("proportion"), in.Choice("interval-method"), in.Alpha(),
                            in.Flag("correction"));
}

Numbers SizeForHalfWidth(const Inputs& in) {
  return {std::ceil(PowerReversebyHalfCIOneSampBinom(in.Number("half-width"), in.Number("proportion"),
                                                     in.Choice("interval-method"), in.Alpha(), in.Flag("correction"),
                                                     in.Stop()))};
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

std::vector<Parameter> Parameters() {
  return {
      Number("proportion", "proportion", "proportion expected").AtLeast(0).AtMost(1),
      Number("null", "null proportion", "proportion under the null hypothesis").Above(0).Below(1),
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
          .Default("wilson"),
  };
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"proportion", "null", "n"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerOneSampBinom",
       .value = [](const Inputs& in) { return PowerAt(in, normal); }},
      {.question = Question::Power,
       .needs = {"proportion", "null", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerOneSampBinom",
       .value = [](const Inputs& in) { return PowerAt(in, exact); }},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerReverseOneSampBinom",
       .sizes = [](const Inputs& in) { return SizeOf(in, normal); }},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null", "exact"},
       .accepts = {"one-sided", "power"},
       .exportName = "PowerReverseOneSampBinom",
       .sizes = [](const Inputs& in) { return SizeOf(in, exact); }},
      {.question = Question::HalfWidth,
       .needs = {"proportion", "n"},
       .accepts = {"interval-method", "correction"},
       .exportName = "HalfCIOneSampBinom",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"proportion"},
       .accepts = {"interval-method", "correction"},
       .exportName = "PowerReversebyHalfCIOneSampBinom",
       .sizes = SizeForHalfWidth},
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "corrected-interval",
       .about = {"interval-method", "correction"},
       .holds = CorrectsWhatCanBe,
       .sentence = "{correction} goes with the intervals wald and wilson only."},
      {.code = "exact-correction",
       .about = {"exact", "correction"},
       .holds = [](const Inputs& in) { return !in.Flag("exact") || !in.Flag("correction"); },
       .sentence = "{exact} and {correction} exclude each other."},
  };
}

constexpr double mostCharted = 5000;  // observations

Range UsualSizes(const Inputs& in, double) { return {2, std::min(std::max(4.0, 2 * in.Number("n")), mostCharted)}; }

/// All sizes where those around the design would reach too far.
Range UsualSizesOfSurface(const Inputs& in, double power) {
  return 2 * in.Number("n") <= mostCharted ? AroundSizeByPower(in, power) : Range{2, mostCharted};
}

/// The differences that the null proportion leaves.
Range AllDifferences(const Inputs& in) { return {-in.Number("null"), 1 - in.Number("null")}; }

Axis DifferenceAxis() {
  return {.title = "difference of the proportions (expected minus null)",
          .symbol = "difference",
          .limits = {-1, 1, true, true, false},
          .design = [](const Inputs& in) { return in.Number("proportion") - in.Number("null"); },
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("proportion", at + design.Number("null")); },
          .usual = [](const Inputs&, double) -> Range {
            return {-1, 1};
          },
          .scale = AllDifferences,
          .scaleEnds = ScaleEnds::None,
          .stepIsOfScale = true};
}

std::vector<Chart> Charts() {
  const Axis size = SizeAxis("sample size (observations)", 2, mostCharted, UsualSizes);
  const Axis sizeOfSurface = WithUsual(size, UsualSizesOfSurface);
  const Axis proportion = ProportionAxis("proportion", "p", "proportion");
  const Axis null = ProportionAxis("null proportion", "p0", "null");
  const Axis difference = DifferenceAxis();
  const std::string design = "proportion --proportion 0.65 --null 0.5 --n 60 ";
  const auto chart = [&](const std::string& name, std::vector<Axis> axes, const std::string& options) -> Chart {
    return {.name = name,
            .axes = std::move(axes),
            .needs = {"proportion", "null", "n"},
            .accepts = {"one-sided", "exact", "correction"},
            .example = design + options};
  };
  return {
      chart("n", {size}, "--exact --chart n"),
      chart("null", {null}, "--chart null --from 0.3 --to 0.7"),
      chart("alternative", {proportion}, "--chart alternative"),
      chart("difference", {difference}, "--chart difference"),
      chart("n-difference", {sizeOfSurface, difference}, "--chart n-difference"),
      chart("n-null", {sizeOfSurface, null}, "--chart n-null --from 20,0.3 --to 120,0.7"),
      chart("n-alternative", {sizeOfSurface, proportion}, "--chart n-alternative --step 0.1"),
      chart("null-alternative", {null, proportion}, "--chart null-alternative --step 0.05"),
  };
}

std::vector<Derived> DerivedFigures() {
  return {
      {.name = "rejects-to",
       .label = "rejects up to this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = LargestLowRejection},
      {.name = "rejects-from",
       .label = "rejects from this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = SmallestHighRejection},
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"proportion", "null", "n", "exact"},
       .call = [](const Inputs& in) { return AttainedLevel(Hypotheses(in), in.Number("n")); }},
      {.name = "lasting-n",
       .label = "from here on every sample size reaches the power",
       .needs = {"proportion", "null", "exact", "power"},
       .call = [](const Inputs& in) { return LastingSize(Hypotheses(in), in.Number("power")); }},
  };
}

}  // namespace

Test ProportionTest() {
  Test test{.name = "proportion",
            .title = "Test of one proportion",
            .about = "Tests whether a proportion differs from a given value."};
  test.parameters = Parameters();
  test.routes = Routes();
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"proportion", "null"},
       .holds = [](const Inputs& in) { return in.Number("proportion") != in.Number("null"); },
       .sentence =
           "The proportion expected is the null proportion: without an effect, no sample size reaches the power."},
  };
  test.derived = DerivedFigures();
  test.charts = Charts();
  AddWordsOfProportion(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
