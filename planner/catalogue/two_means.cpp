#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

double PowerOfMeans(const Inputs& in) {
  const Numbers& n = in.List("n");
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  const auto power = in.Flag("one-sided") ? PowerIndependentDirectional : PowerIndependentNondirectional;
  return power(n[0], means[0], sds[0], n[1], means[1], sds[1], in.Alpha());
}

double PowerOfEffect(const Inputs& in) {
  const auto power = in.Flag("one-sided") ? PowerIndependentDirectionalES : PowerIndependentNondirectionalES;
  return power(in.List("n")[0], in.List("n")[1], in.Number("effect-d"), in.Alpha());
}

Numbers SizesOfMeans(const Inputs& in) {
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  const auto find = in.Flag("one-sided") ? PowerReverseIndependentDirectional : PowerReverseIndependentNondirectional;
  Numbers sizes;
  find(in.Number("power"), in.Number("ratio"), means[0], sds[0], means[1], sds[1], sizes, in.Alpha());
  return sizes;
}

Numbers SizesOfEffect(const Inputs& in) {
  const auto find =
      in.Flag("one-sided") ? PowerReverseIndependentDirectionalES : PowerReverseIndependentNondirectionalES;
  Numbers sizes;
  find(in.Number("power"), in.Number("ratio"), in.Number("effect-d"), sizes, in.Alpha());
  return sizes;
}

double HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  const Numbers& sds = in.List("sd");
  return HalfCIIndependentMeans(n[0], sds[0], n[1], sds[1], in.Alpha());
}

/// Asked in units of the larger standard deviation: the library's search ends at a fixed distance in the unit given.
Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  const double unit = std::max(sds[0], sds[1]);
  Numbers sizes;
  PowerReversebyHalfCIIndependentMeans(in.Number("half-width") / unit, in.Number("ratio"), sds[0] / unit, sds[1] / unit,
                                       sizes, in.Alpha());
  return sizes;
}

/// Over the root mean square of the standard deviations (Cohen 1988, formula 2.3.2).
double EffectSize(const Inputs& in) {
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  return EffectSizeIndependent(means[0], means[1], std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
}

std::vector<Parameter> Parameters() {
  return {
      GroupMeans(),
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
       .value = PowerOfMeans},
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerIndependentNondirectionalES",
       .oneSidedExport = "PowerIndependentDirectionalES",
       .value = PowerOfEffect},
      {.question = Question::SampleSize,
       .needs = {"means", "sd"},
       .accepts = {"ratio", "one-sided"},
       .exportName = "PowerReverseIndependentNondirectional",
       .oneSidedExport = "PowerReverseIndependentDirectional",
       .sizes = SizesOfMeans},
      {.question = Question::SampleSize,
       .needs = {"effect-d"},
       .accepts = {"ratio", "one-sided"},
       .exportName = "PowerReverseIndependentNondirectionalES",
       .oneSidedExport = "PowerReverseIndependentDirectionalES",
       .sizes = SizesOfEffect},
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

double Difference(const Inputs& in) { return in.List("means")[0] - in.List("means")[1]; }

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
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return Difference(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sd"}, .call = EffectSize},
  };
  test.charts = Charts();
  AddWordsOfTwoMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
