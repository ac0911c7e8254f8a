#include <algorithm>

#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_means.h"
#include "means/independent.h"

namespace planner {
namespace {

namespace means = kelpower::means;

/// Equal standard deviations select the pooled test.
means::GroupSpreads SpreadsOf(double sd1, double sd2) { return {sd1, sd2, sd1 == sd2}; }

/// An effect size is a difference in the unit of the standard deviation.
means::TwoSampleDesign DesignOf(const Inputs& in) {
  if (in.Has("effect-d")) return {in.Number("effect-d"), SpreadsOf(1, 1), SidesOf(in), in.Alpha()};
  return {DifferenceOfMeans(in), SpreadsOfTwoMeans(in), SidesOf(in), in.Alpha()};
}

double Power(const Inputs& in) { return OrNaN(means::Power(DesignOf(in), in.List("n")[0], in.List("n")[1])); }

Numbers Sizes(const Inputs& in) {
  const double ratio = in.Number("ratio");
  return RoundedUp(means::FirstSizeForPower(DesignOf(in), ratio, in.Number("power")), ratio, smallestSecondGroup);
}

double HalfWidth(const Inputs& in) {
  return means::HalfWidth({SpreadsOfTwoMeans(in), in.Alpha()}, in.List("n")[0], in.List("n")[1]);
}

/// Asked in units of the larger standard deviation: the core's search ends at a fixed distance in the unit given.
Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  const double unit = std::max(sds[0], sds[1]);
  const double ratio = in.Number("ratio");
  const means::TwoSampleInterval interval{SpreadsOf(sds[0] / unit, sds[1] / unit), in.Alpha()};
  return RoundedUp(means::FirstSizeForHalfWidth(interval, ratio, in.Number("half-width") / unit), ratio,
                   smallestSecondGroup);
}

}  // namespace

std::vector<Route> RoutesOfTwoMeans() {
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

}  // namespace planner
