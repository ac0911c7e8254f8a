#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "group_parameters.h"
#include "kelpower.h"

namespace planner {
namespace {

// The library wants the smaller group number first; the test does not depend on the order.
int First(const Inputs& in) { return static_cast<int>(std::min(in.List("pair")[0], in.List("pair")[1])); }

int Second(const Inputs& in) { return static_cast<int>(std::max(in.List("pair")[0], in.List("pair")[1])); }

double EffectD(const Inputs& in) {
  return EffectSizePairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), nullptr, First(in), Second(in));
}

// The charts are those of the contrast of the two groups at the adjusted level.
Numbers PairContrast(const Inputs& in) {
  Numbers contrast(static_cast<std::size_t>(in.Groups()), 0.0);
  contrast[static_cast<std::size_t>(First(in)) - 1] = 1;
  contrast[static_cast<std::size_t>(Second(in)) - 1] = -1;
  return contrast;
}

double AdjustedAlpha(const Inputs& in) {
  const double pairs = in.Groups() * (in.Groups() - 1) / 2.0;
  switch (in.Choice("adjust")) {
    case 0: return in.Alpha() / pairs;
    case 1: return -std::expm1(std::log1p(-in.Alpha()) / pairs);
    default: return in.Alpha();
  }
}

std::vector<Chart> Charts() {
  const Axis size = TotalSizeAxis();
  const Axis sd = ParameterAxis(WithinSd(), "SD", [](const Inputs& in) { return in.Number("sd"); });
  constexpr int twoSided = 0;
  return {
      {"n",
       {size},
       {"pair", "means", "sd", "n"},
       {"groups", "adjust"},
       "PlotNSC",
       "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                              PairContrast(in).data(), r.x.First(), r.x.Last(), twoSided, AdjustedAlpha(in)));
       }},
      {"sd",
       {sd},
       {"pair", "means", "sd", "n"},
       {"groups", "adjust"},
       "PlotSDSC",
       "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart sd --from 2 --to 12",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotSDSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                               PairContrast(in).data(), r.x.from, r.x.to, twoSided, AdjustedAlpha(in), r.step));
       }},
      {"n-sd",
       {size, sd},
       {"pair", "means", "sd", "n"},
       {"groups", "adjust"},
       "PlotNaSDSC",
       "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart n-sd --from 12,2 --to 150,12",
       [](const Inputs& in, const Ranges& r) {
         return Surface(PlotNaSDSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                   PairContrast(in).data(), r.x.First(), r.x.Last(), r.y.from, r.y.to, twoSided,
                                   AdjustedAlpha(in), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "pairwise";
  test.title = "One-way analysis of variance: pairwise difference";
  test.about = "Tests whether two of the groups have equal means, at a level adjusted for all pairs of groups.";
  test.groups = groupsFromInputs;

  test.parameters = {
      List("pair", "groups compared", "numbers of the two groups compared").Length(2).Whole().AtLeast(1).AtMost(10000),
      GroupMeans(),
      WithinSd(),
      GroupSizes(),
      AllocationRatios(),
      GroupCount(),
      OneOf("adjust", "adjustment", "adjustment of the significance level for all pairs of groups",
            {{"bonferroni", 0, "with Bonferroni's adjustment for all pairs of groups"},
             {"sidak", 1, "with Sidak's adjustment for all pairs of groups"},
             {"none", 2, "without adjustment for other pairs of groups"}})
          .Default("bonferroni"),
  };

  test.routes = {
      {Question::Power,
       {"pair", "means", "sd", "n"},
       {"groups", "adjust"},
       "PowerPairwiseDiff",
       [](const Inputs& in) -> Numbers {
         return {PowerPairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                   First(in), Second(in), in.Choice("adjust"), in.Alpha())};
       }},
      {Question::SampleSize,
       {"pair", "means", "sd"},
       {"ratios", "groups", "adjust"},
       "PowerReversePairwiseDiff",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReversePairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(), First(in),
                                  Second(in), in.Number("power"), sizes, in.Choice("adjust"), in.Alpha());
         return sizes;
       }},
      {Question::HalfWidth,
       {"pair", "sd", "n"},
       {"groups", "adjust"},
       "HalfCIPairwiseDiff",
       [](const Inputs& in) -> Numbers {
         const double total = SampleSizeTotal(in.Groups(), in.List("n").data());
         return {HalfCIPairwiseDiff(total, in.Groups(), in.List("n").data(), First(in), Second(in), in.Number("sd"),
                                    in.Choice("adjust"), in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"pair", "sd"},
       {"ratios", "groups", "adjust"},
       "PowerReversebyHalfCIPairwiseDiff",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReversebyHalfCIPairwiseDiff(in.Number("half-width"), in.Groups(), in.Weights().data(), First(in),
                                          Second(in), in.Number("sd"), sizes, in.Choice("adjust"), in.Alpha());
         return sizes;
       }},
  };

  test.conditions = {
      {{"pair"}, [](const Inputs& in) { return First(in) < Second(in); }, "--pair must name two different groups."},
      {{"pair"},
       [](const Inputs& in) { return Second(in) <= in.Groups(); },
       "--pair names a group beyond the number of groups."},
      {{"n"}, LeavesErrorDegrees, noErrorDegrees},
  };
  test.solvable = {
      {{"means"},
       [](const Inputs& in) { return EffectD(in) != 0; },
       "The two means are equal: without a difference, no sample size reaches the power."},
  };

  test.derived = {
      {"effect-d", "standardized difference d", {"means", "sd", "pair"}, EffectD},
  };

  test.phrases = {};
  test.sentences = {
      {Question::Power,
       "With {sizes}, the test of the difference between groups {pair} at a significance level of {alpha} {adjust} has "
       "a "
       "power of {power} to detect group means of {means} with a standard deviation of {sd} within the groups."},
      {Question::SampleSize,
       "To detect group means of {means} with a standard deviation of {sd} within the groups with a power of "
       "{target-power}, the test of the difference between groups {pair} at a significance level of {alpha} {adjust} "
       "needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "difference between groups {pair} {adjust} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the difference between groups {pair} {adjust} with a half-width of "
       "at most {target-half-width}, at a standard deviation of {sd} within the groups, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), the test of the difference between groups 1 and 3 at a "
       "significance level of 0.05 with Bonferroni's adjustment for all pairs of groups has a power of 0.5694 to "
       "detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups."},
      {"pairwise --pair 1,3 --means 10,12,15 --sd 6 --power 0.9 --adjust sidak",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the test of the difference between groups 1 and 3 at a significance level of 0.05 with Sidak's adjustment for "
       "all pairs of groups needs 40 observations in each of 3 groups (120 in total); its power is then 0.9021."},
      {"pairwise --pair 1,2 --groups 3 --sd 6 --n 20 --interval",
       "With 20 observations in each of 3 groups (60 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the difference between groups 1 and 2 with Bonferroni's adjustment for all pairs of "
       "groups has a half-width of 4.68."},
      {"pairwise --pair 1,2 --groups 3 --sd 6 --half-width 4 --adjust none",
       "For a 95% confidence interval of the difference between groups 1 and 2 without adjustment for other pairs of "
       "groups with a half-width of at most 4, at a standard deviation of 6 within the groups, the study needs 19 "
       "observations in each of 3 groups (57 in total); the half-width is then 3.903."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test PairwiseTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
