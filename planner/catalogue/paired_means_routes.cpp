#include <utility>

#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/paired_means.h"
#include "means/one_sample.h"
#include "means/paired.h"

namespace planner {
namespace {

namespace means = kelpower::means;

means::OneSampleDesign DesignOf(const Inputs& in) { return {EffectOfPairedMeans(in), SidesOf(in), in.Alpha()}; }

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.Number("n"))); }

Numbers Size(const Inputs& in) { return RoundedUp(means::SizeForPower(DesignOf(in), in.Number("power"))); }

double HalfWidth(const Inputs& in) {
  return means::HalfWidth(means::PairedInterval{SpreadOfPairedMeans(in), in.Alpha()}, in.Number("n"));
}

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(
      means::SizeForHalfWidth(means::PairedInterval{SpreadOfPairedMeans(in), in.Alpha()}, in.Number("half-width")));
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

}  // namespace

std::vector<Route> RoutesOfPairedMeans() {
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

}  // namespace planner
