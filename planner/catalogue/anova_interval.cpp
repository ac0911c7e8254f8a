#include "anova/overall.h"
#include "catalogue/anova.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double HalfWidth(const Inputs& in) {
  return anova::HalfWidthOfGrandMean(in.Groups(), TotalSize(in), in.Number("sd"), in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  return SpreadByRatios(
      anova::TotalForHalfWidthOfGrandMean(in.Number("half-width"), in.Groups(), in.Number("sd"), in.Alpha()),
      in.Weights());
}

}  // namespace

std::vector<Route> IntervalRoutesOfAnova() {
  return {
      {.question = Question::HalfWidth,
       .needs = {"sd", "n"},
       .accepts = {"groups"},
       .exportName = "HalfCIOverallTest",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReversebyHalfCIOverallTest",
       .sizes = SizesForHalfWidth},
  };
}

}  // namespace planner
