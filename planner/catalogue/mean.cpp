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

namespace planner {
namespace {

namespace means = kelpower::means;

double EffectSize(const Inputs& in) { return (in.Number("mean") - in.Number("test-value")) / in.Number("sd"); }

double Effect(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectSize(in); }

means::OneSampleDesign DesignOf(const Inputs& in) { return {Effect(in), SidesOf(in), in.Alpha()}; }

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.Number("n"))); }

Numbers Size(const Inputs& in) { return RoundedUp(means::SizeForPower(DesignOf(in), in.Number("power"))); }

means::MeanInterval IntervalOf(const Inputs& in) { return {in.Number("sd"), in.Alpha()}; }

double HalfWidth(const Inputs& in) { return means::HalfWidth(IntervalOf(in), in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(means::SizeForHalfWidth(IntervalOf(in), in.Number("half-width")));
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"mean", "sd", "n"},
       .accepts = {"test-value", "one-sided"},
       .exportName = "PowerOneSampleNondirectional",
       .oneSidedExport = "PowerOneSampleDirectional",
       .value = Power},
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerOneSampleNondirectionalES",
       .oneSidedExport = "PowerOneSampleDirectionalES",
       .value = Power},
      {.question = Question::SampleSize,
       .needs = {"mean", "sd"},
       .accepts = {"test-value", "one-sided"},
       .exportName = "PowerReverseOneSampleNondirectional",
       .oneSidedExport = "PowerReverseOneSampleDirectional",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"effect-d"},
       .accepts = {"one-sided"},
       .exportName = "PowerReverseOneSampleNondirectionalES",
       .oneSidedExport = "PowerReverseOneSampleDirectionalES",
       .sizes = Size},
      {.question = Question::HalfWidth, .needs = {"sd", "n"}, .exportName = "HalfCIOneSampleMeans", .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"sd"},
       .exportName = "PowerReversebyHalfCIOneSampleMeans",
       .sizes = SizeForHalfWidth},
  };
}

std::vector<Unknown> Unknowns() {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr const char* reason = "the noncentrality grows with the distance of the mean from the test value";
  return {
      UnknownEffectD(),
      {.input = "mean",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("test-value"), infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {-infinity, in.Number("test-value")};
       }},
      UnknownSd("sd"),
      {.input = "test-value",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {-infinity, in.Number("mean")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("mean"), infinity};
       }},
      UnknownSdOfInterval("sd"),
  };
}

}  // namespace

Test MeanTest() {
  Test test{.name = "mean",
            .title = "One-sample t test of a mean",
            .about = "Tests whether the mean of a population is a fixed value."};
  test.parameters = {
      Number("mean", "mean", "mean expected in the population"),
      Number("test-value", "test value", "mean under the null hypothesis").Default(0.0),
      Number("sd", "standard deviation", "standard deviation in the population").Above(0),
      EffectD("difference of the mean from the test value over the standard deviation"),
      SingleSize("observations in the sample"),
      OneSided(),
  };
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"mean", "test-value"},
       .holds = [](const Inputs& in) { return in.Number("mean") != in.Number("test-value"); },
       .sentence = "The mean is the test value: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"mean", "test-value", "sd"}, .call = EffectSize},
  };
  test.offers = OffersOfMean();
  test.effect = Effect;
  AddWordsOfMean(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
