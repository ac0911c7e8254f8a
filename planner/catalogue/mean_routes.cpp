#include "catalogue/core.h"
#include "catalogue/mean.h"
#include "catalogue/mean_parameters.h"
#include "means/one_sample.h"

namespace planner {
namespace {

namespace means = kelpower::means;

means::OneSampleDesign DesignOf(const Inputs& in) { return {EffectOfMean(in), SidesOf(in), in.Alpha()}; }

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.Number("n"))); }

Numbers Size(const Inputs& in) { return RoundedUp(means::SizeForPower(DesignOf(in), in.Number("power"))); }

means::MeanInterval IntervalOf(const Inputs& in) { return {in.Number("sd"), in.Alpha()}; }

double HalfWidth(const Inputs& in) { return means::HalfWidth(IntervalOf(in), in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(means::SizeForHalfWidth(IntervalOf(in), in.Number("half-width")));
}

}  // namespace

std::vector<Route> RoutesOfMean() {
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

}  // namespace planner
