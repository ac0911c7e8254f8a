#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"
#include "means/independent.h"

namespace planner {
namespace {

namespace means = kelpower::means;

double Difference(const Inputs& in) {
  return in.Has("means") ? in.List("means")[0] - in.List("means")[1] : in.Number("mean-difference");
}

/// Equal standard deviations select the pooled test.
means::GroupSpreads SpreadsOf(double sd1, double sd2) { return {sd1, sd2, sd1 == sd2}; }

means::GroupSpreads SpreadsOf(const Inputs& in) { return SpreadsOf(in.List("sd")[0], in.List("sd")[1]); }

/// An effect size is a difference in the unit of the standard deviation.
means::TwoSampleDesign DesignOf(const Inputs& in) {
  if (in.Has("effect-d")) return {in.Number("effect-d"), SpreadsOf(1, 1), SidesOf(in), in.Alpha()};
  return {Difference(in), SpreadsOf(in), SidesOf(in), in.Alpha()};
}

constexpr double smallestSecond = 2;

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.List("n")[0], in.List("n")[1])); }

Numbers Sizes(const Inputs& in) {
  const double ratio = in.Number("ratio");
  return RoundedUp(means::FirstSizeForPower(DesignOf(in), ratio, in.Number("power")), ratio, smallestSecond);
}

double HalfWidth(const Inputs& in) {
  return means::HalfWidth({SpreadsOf(in), in.Alpha()}, in.List("n")[0], in.List("n")[1]);
}

/// Asked in units of the larger standard deviation: the core's search ends at a fixed distance in the unit given.
Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  const double unit = std::max(sds[0], sds[1]);
  const double ratio = in.Number("ratio");
  const means::TwoSampleInterval interval{SpreadsOf(sds[0] / unit, sds[1] / unit), in.Alpha()};
  return RoundedUp(means::FirstSizeForHalfWidth(interval, ratio, in.Number("half-width") / unit), ratio,
                   smallestSecond);
}

/// Over the root mean square of the standard deviations (Cohen 1988, formula 2.3.2).
double EffectSize(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  return Difference(in) / (std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
}

std::vector<Parameter> Parameters() {
  return {
      GroupMeans(),
      Number("mean-difference", "difference of the means", "first mean minus the second, in place of {means}")
          .Alias("difference")
          .Alias("delta"),
      PerGroup("sd", "standard deviations", "standard deviation in each group").Alias("sds").Spreads().Above(0),
      EffectD("difference of the means over the common standard deviation"),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneSided(),
  };
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"means", "sd", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerIndependentNondirectional",
       .oneSidedExport = "PowerIndependentDirectional",
       .value = Power},
      {.question = Question::Power,
       .needs = {"mean-difference", "sd", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerIndependentNondirectional",
       .oneSidedExport = "PowerIndependentDirectional",
       .value = Power},
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerIndependentNondirectionalES",
       .oneSidedExport = "PowerIndependentDirectionalES",
       .value = Power},
      {.question = Question::SampleSize,
       .needs = {"means", "sd"},
       .accepts = {"ratio", "one-sided"},
       .exportName = "PowerReverseIndependentNondirectional",
       .oneSidedExport = "PowerReverseIndependentDirectional",
       .sizes = Sizes},
      {.question = Question::SampleSize,
       .needs = {"mean-difference", "sd"},
       .accepts = {"ratio", "one-sided"},
       .exportName = "PowerReverseIndependentNondirectional",
       .oneSidedExport = "PowerReverseIndependentDirectional",
       .sizes = Sizes},
      {.question = Question::SampleSize,
       .needs = {"effect-d"},
       .accepts = {"ratio", "one-sided"},
       .exportName = "PowerReverseIndependentNondirectionalES",
       .oneSidedExport = "PowerReverseIndependentDirectionalES",
       .sizes = Sizes},
      {.question = Question::HalfWidth,
       .needs = {"sd", "n"},
       .exportName = "HalfCIIndependentMeans",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"sd"},
       .accepts = {"ratio"},
       .exportName = "PowerReversebyHalfCIIndependentMeans",
       .sizes = SizesForHalfWidth},
  };
}

std::vector<Unknown> Unknowns() {
  return {
      UnknownEffectD(),
      {.input = "mean-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "the noncentrality grows with the difference",
       .piece = [](const Inputs&) -> Piece {
         return {0, std::numeric_limits<double>::infinity()};
       }},
      UnknownSd("sd"),
      UnknownRatio(),
      UnknownSdOfInterval("sd"),
  };
}

/// Four times to either side of the design and of equal sizes, as far as the groups keep more than one observation.
Range RatiosAroundDesign(const Inputs& in, double) {
  const double ratio = SizeRatio(in);
  const double most = 0.8 * (TotalSize(in) - 2);
  return {std::max(std::min(ratio, 1.0) / 4, 1 / most), std::min(std::max(ratio, 1.0) * 4, most)};
}

/// Ratios of a surface must leave each group more than one observation.
std::optional<Problem> RefuseRatios(const Inputs& in, const Range& ratios) {
  const double most = TotalSize(in) - 1;
  if (ratios.from > 1 / most && ratios.to < most) return std::nullopt;
  return Problem{.code = Code::ChartEmpty};
}

/// From -5 to 5 times the design's difference, or -100 to 100 for a design without one.
Axis DifferenceAxis() {
  constexpr double widest = 1e6;
  return {.title = "difference of the means (first minus second)",
          .symbol = "difference",
          .limits = {-widest, widest, true, true, false},
          .design = Difference,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { in.SetEntry("means", 0, design.List("means")[1] + at); },
          .usual = [](const Inputs& in, double) -> Range {
            const double end = Difference(in) != 0 ? 5 * std::abs(Difference(in)) : 100;
            return {-end, end};
          }};
}

std::vector<Chart> Charts() {
  const Names ofMeans{"means", "sd", "n"};
  const Names ofEffect{"effect-d", "n"};
  const Axis ratio = SizeRatioAxis(RatiosAroundDesign);
  Axis ratioOfSurface = ratio;
  ratioOfSurface.refuse = RefuseRatios;
  const Axis effect = EffectDAxis();
  const Axis difference = DifferenceAxis();
  return {
      {.name = "ratio",
       .axes = {ratio},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40,60 --chart ratio --from 0.2 --to 5"},
      {.name = "ratio",
       .axes = {ratio},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --chart ratio"},
      {.name = "effect",
       .axes = {effect},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --one-sided --chart effect"},
      {.name = "difference",
       .axes = {difference},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40 --chart difference --from 0 --to 12"},
      {.name = "ratio-effect",
       .axes = {ratioOfSurface, effect},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --chart ratio-effect --from 0.2,0 --to 5,1"},
      {.name = "ratio-difference",
       .axes = {ratioOfSurface, difference},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40 --chart ratio-difference --from 0.2,0 --to 5,12"},
  };
}

}  // namespace

Test TwoMeansTest() {
  Test test{.name = "two-means",
            .title = "Independent-samples t test of two means",
            .about =
                "Tests whether two independent groups have the same mean: pooled when their standard deviations are "
                "equal, and in the form of Welch when they differ.",
            .groups = 2};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return Difference(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"mean-difference"},
       .holds = [](const Inputs& in) { return Difference(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sd"}, .call = EffectSize},
      {.name = "effect-d", .label = "effect size d", .needs = {"mean-difference", "sd"}, .call = EffectSize},
  };
  test.assumptions = {
      {.name = "variances",
       .label = "variances",
       .needs = {"sd"},
       .call =
           [](const Inputs& in) { return std::string(SpreadsOf(in).isPooled ? "pooled" : "unequal, Welch's test"); },
       .wording = " (variances <0>)"}};
  test.charts = Charts();
  AddWordsOfTwoMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
