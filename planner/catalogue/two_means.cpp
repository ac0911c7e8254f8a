#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"
#include "means/independent.h"

namespace planner {
namespace {

namespace means = kelpower::means;

/// Equal standard deviations select the pooled test.
means::GroupSpreads SpreadsOf(double sd1, double sd2) { return {sd1, sd2, sd1 == sd2}; }

means::GroupSpreads SpreadsOf(const Inputs& in) { return SpreadsOf(in.List("sd")[0], in.List("sd")[1]); }

/// An effect size is a difference in the unit of the standard deviation.
means::TwoSampleDesign DesignOf(const Inputs& in) {
  if (in.Has("effect-d")) return {in.Number("effect-d"), SpreadsOf(1, 1), SidesOf(in), in.Alpha()};
  return {DifferenceOfMeans(in), SpreadsOf(in), SidesOf(in), in.Alpha()};
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
  return DifferenceOfMeans(in) / (std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
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
       .holds = [](const Inputs& in) { return DifferenceOfMeans(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"mean-difference"},
       .holds = [](const Inputs& in) { return DifferenceOfMeans(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sd"}, .call = EffectSize},
      {.name = "effect-d", .label = "effect size d", .needs = {"mean-difference", "sd"}, .call = EffectSize},
  };
  test.effect = [](const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : DifferenceOfMeans(in); };
  test.axes = {MeanDifferenceAxis(), SizeRatioAxis()};
  test.assumptions = {
      {.name = "variances",
       .label = "variances",
       .needs = {"sd"},
       .call =
           [](const Inputs& in) { return std::string(SpreadsOf(in).isPooled ? "pooled" : "unequal, Welch's test"); },
       .wording = " (variances <0>)"}};
  test.offers = OffersOfTwoMeans();
  AddWordsOfTwoMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
