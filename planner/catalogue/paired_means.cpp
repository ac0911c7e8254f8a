#include <cmath>
#include <limits>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"
#include "means/one_sample.h"
#include "means/paired.h"

namespace planner {
namespace {

namespace means = kelpower::means;

/// Where the standard deviation of the differences is given, it stands for a first measurement, and the second one has
/// no spread.
means::PairedSpread SpreadOf(const Inputs& in) {
  if (in.Has("sd-difference")) return {in.Number("sd-difference"), 0, 0};
  return {in.List("sds")[0], in.List("sds")[1], in.Number("correlation")};
}

double MeanDifference(const Inputs& in) {
  return in.Has("means") ? in.List("means")[0] - in.List("means")[1] : in.Number("mean-difference");
}

/// The mean of the differences over their standard deviation.
double EffectSize(const Inputs& in) {
  return MeanDifference(in) / means::DifferenceVariance::Of(SpreadOf(in)).StandardDeviation();
}

double Effect(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectSize(in); }

means::OneSampleDesign DesignOf(const Inputs& in) { return {Effect(in), SidesOf(in), in.Alpha()}; }

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.Number("n"))); }

Numbers Size(const Inputs& in) { return RoundedUp(means::SizeForPower(DesignOf(in), in.Number("power"))); }

double HalfWidth(const Inputs& in) {
  return means::HalfWidth(means::PairedInterval{SpreadOf(in), in.Alpha()}, in.Number("n"));
}

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(means::SizeForHalfWidth(means::PairedInterval{SpreadOf(in), in.Alpha()}, in.Number("half-width")));
}

std::vector<Parameter> Parameters() {
  return {
      List("means", "means", "means expected of the two measurements").Length(2),
      List("sds", "standard deviations", "standard deviations of the two measurements").Length(2).Above(0),
      Number("correlation", "correlation", "correlation between the two measurements").AtLeast(-1).AtMost(1),
      Number("mean-difference", "mean difference", "mean expected of the differences, in place of {means}"),
      Number("sd-difference", "standard deviation of the differences", "in place of {sds} and {correlation}").Above(0),
      EffectD("mean of the differences over their standard deviation"),
      SingleSize("pairs of measurements"),
      OneSided(),
  };
}

Route PowerRoute(Names needs) {
  return {.question = Question::Power,
          .needs = std::move(needs),
          .accepts = {"one-sided"},
          .exportName = "PowerRelatedNondirectional",
          .oneSidedExport = "PowerRelatedDirectional",
          .value = Power};
}

Route SizeRoute(Names needs) {
  return {.question = Question::SampleSize,
          .needs = std::move(needs),
          .accepts = {"one-sided"},
          .exportName = "PowerReverseRelatedNondirectional",
          .oneSidedExport = "PowerReverseRelatedDirectional",
          .sizes = Size};
}

Route HalfWidthRoute(Names needs) {
  return {.question = Question::HalfWidth,
          .needs = std::move(needs),
          .exportName = "HalfCIRelatedMeans",
          .value = HalfWidth};
}

Route SizeForHalfWidthRoute(Names needs) {
  return {.question = Question::SampleSizeForHalfWidth,
          .needs = std::move(needs),
          .exportName = "PowerReversebyHalfCIRelatedMeans",
          .sizes = SizeForHalfWidth};
}

std::vector<Route> Routes() {
  return {
      PowerRoute({"means", "sds", "correlation", "n"}),
      PowerRoute({"mean-difference", "sd-difference", "n"}),
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerRelatedNondirectionalES",
       .oneSidedExport = "PowerRelatedDirectionalES",
       .value = Power},
      SizeRoute({"means", "sds", "correlation"}),
      SizeRoute({"mean-difference", "sd-difference"}),
      {.question = Question::SampleSize,
       .needs = {"effect-d"},
       .accepts = {"one-sided"},
       .exportName = "PowerReverseRelatedNondirectionalES",
       .oneSidedExport = "PowerReverseRelatedDirectionalES",
       .sizes = Size},
      HalfWidthRoute({"sds", "correlation", "n"}),
      HalfWidthRoute({"sd-difference", "n"}),
      SizeForHalfWidthRoute({"sds", "correlation"}),
      SizeForHalfWidthRoute({"sd-difference"}),
  };
}

bool DifferencesSpread(const Inputs& in) {
  const Numbers& sds = in.List("sds");
  return sds[0] != sds[1] || in.Number("correlation") != 1;
}

std::vector<Condition> Conditions() {
  return {
      {.code = "differences-spread",
       .about = {"means", "correlation"},
       .holds = DifferencesSpread,
       .sentence = "{sds} are equal and {correlation} is 1: the differences do not vary, so that there is nothing to "
                   "test."},
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return in.List("means")[0] != in.List("means")[1]; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"mean-difference"},
       .holds = [](const Inputs& in) { return in.Number("mean-difference") != 0; },
       .sentence = "The mean difference is zero: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
}

std::vector<Unknown> Unknowns() {
  constexpr const char* spread = "the differences spread less, the closer the two measurements are correlated";
  return {
      UnknownEffectD(),
      {.input = "mean-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "the noncentrality grows with the difference",
       .piece = [](const Inputs&) -> Piece {
         return {0, std::numeric_limits<double>::infinity()};
       }},
      UnknownSd("sd-difference"),
      {.input = "correlation", .target = Question::Power, .trend = Trend::Rises, .reason = spread},
      UnknownSdOfInterval("sd-difference"),
      {.input = "correlation", .target = Question::HalfWidth, .trend = Trend::Falls, .reason = spread},
  };
}

}  // namespace

Test PairedMeansTest() {
  Test test{.name = "paired-means",
            .title = "Paired-samples t test of means",
            .about = "Tests whether two measurements on the same units have the same mean.",
            .counted = "pairs"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sds", "correlation"}, .call = EffectSize},
      {.name = "effect-d", .label = "effect size d", .needs = {"mean-difference", "sd-difference"}, .call = EffectSize},
  };
  test.offers = OffersOfPairedMeans();
  test.effect = Effect;
  test.axes = {MeanDifferenceAxis()};
  AddWordsOfPairedMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
