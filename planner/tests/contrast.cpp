#include <cmath>

#include "catalogue.h"
#include "group_parameters.h"
#include "kelpower.h"

namespace planner {
namespace {

/// The coefficients with the last one set so that they sum to zero to the last digit, as the library wants them.
Numbers Coefficients(const Inputs& in) {
  Numbers coefficients = in.List("coefficients");
  double others = 0;
  for (std::size_t i = 0; i + 1 < coefficients.size(); ++i) others += coefficients[i];
  coefficients.back() = -others;
  return coefficients;
}

double EffectD(const Inputs& in) {
  Numbers coefficients = Coefficients(in);
  return EffectSizeSC(in.Groups(), in.List("means").data(), in.Number("sd"), coefficients.data());
}

bool SumToZero(const Inputs& in) {
  constexpr double typingError = 1e-6;  // allows thirds typed with seven digits
  double sum = 0;
  double size = 0;
  for (double coefficient : in.List("coefficients")) {
    sum += coefficient;
    size += std::abs(coefficient);
  }
  return size > 0 && std::abs(sum) <= typingError * size;
}

std::vector<Chart> Charts() {
  const Axis size = TotalSizeAxis();
  const Axis sd = ParameterAxis(WithinSd(), "SD", [](const Inputs& in) { return in.Number("sd"); });
  return {
      {"n",
       {size},
       {"coefficients", "means", "sd", "n"},
       {"one-sided"},
       "PlotNSC",
       "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                              Coefficients(in).data(), r.x.First(), r.x.Last(), in.Flag("one-sided"), in.Alpha()));
       }},
      {"n",
       {WithRange(size, AroundTotalSize)},
       {"coefficients", "effect-d", "n"},
       {"one-sided"},
       "PlotNSCFES",
       "contrast --coefficients 1,-1,0 --effect-d 0.5 --n 40 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNSCFES(in.Groups(), in.Number("effect-d"), in.List("n").data(), Coefficients(in).data(),
                                 r.x.First(), r.x.Last(), in.Flag("one-sided"), in.Alpha()));
       }},
      {"sd",
       {sd},
       {"coefficients", "means", "sd", "n"},
       {"one-sided"},
       "PlotSDSC",
       "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart sd --from 2 --to 12",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotSDSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                               Coefficients(in).data(), r.x.from, r.x.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
      {"n-sd",
       {size, sd},
       {"coefficients", "means", "sd", "n"},
       {"one-sided"},
       "PlotNaSDSC",
       "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n-sd --from 12,2 --to 150,12",
       [](const Inputs& in, const Ranges& r) {
         return Surface(PlotNaSDSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                   Coefficients(in).data(), r.x.First(), r.x.Last(), r.y.from, r.y.to,
                                   in.Flag("one-sided"), in.Alpha(), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "contrast";
  test.title = "One-way analysis of variance: specified contrast";
  test.about = "Tests whether a weighted sum of group means, with weights that sum to zero, is zero.";
  test.groups = groupsFromInputs;

  test.parameters = {
      PerGroup("coefficients", "contrast coefficients", "weight of each group's mean; they sum to zero")
          .AtLeast(-1e6)
          .AtMost(1e6),
      GroupMeans(),
      WithinSd(),
      Number("effect-d", "standardized contrast d", "contrast of the means over the standard deviation")
          .AtLeast(-1e6)
          .AtMost(1e6),
      GroupSizes(),
      AllocationRatios(),
      Flag("one-sided", "one-sided test", "test in the direction of the contrast only"),
  };

  test.routes = {
      {Question::Power,
       {"coefficients", "means", "sd", "n"},
       {"one-sided"},
       "PowerSC",
       [](const Inputs& in) -> Numbers {
         Numbers coefficients = Coefficients(in);
         return {PowerSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                         coefficients.data(), in.Flag("one-sided"), in.Alpha())};
       }},
      {Question::Power,
       {"coefficients", "effect-d", "n"},
       {"one-sided"},
       "PowerSCwES",
       [](const Inputs& in) -> Numbers {
         return {PowerSCwES(in.Groups(), in.Number("effect-d"), in.List("n").data(), Coefficients(in).data(),
                            in.Flag("one-sided"), in.Alpha())};
       }},
      {Question::SampleSize,
       {"coefficients", "means", "sd"},
       {"ratios", "one-sided"},
       "PowerReverseSC",
       [](const Inputs& in) {
         Numbers coefficients = Coefficients(in);
         Numbers sizes;
         PowerReverseSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(), coefficients.data(),
                        in.Number("power"), sizes, in.Flag("one-sided"), in.Alpha());
         return sizes;
       }},
      {Question::SampleSize,
       {"coefficients", "effect-d"},
       {"ratios", "one-sided"},
       "PowerReverseSCwES",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReverseSCwES(in.Groups(), in.Number("effect-d"), in.Weights().data(), Coefficients(in).data(),
                           in.Number("power"), sizes, in.Flag("one-sided"), in.Alpha());
         return sizes;
       }},
      {Question::HalfWidth,
       {"coefficients", "sd", "n"},
       {},
       "HalfCISCTest",
       [](const Inputs& in) -> Numbers {
         const double total = SampleSizeTotal(in.Groups(), in.List("n").data());
         return {HalfCISCTest(total, in.Groups(), in.List("n").data(), Coefficients(in).data(), in.Number("sd"),
                              in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"coefficients", "sd"},
       {"ratios"},
       "PowerReversebyHalfCISCTest",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReversebyHalfCISCTest(in.Number("half-width"), in.Groups(), in.Weights().data(), Coefficients(in).data(),
                                    in.Number("sd"), sizes, in.Alpha());
         return sizes;
       }},
  };

  test.conditions = {
      {{"coefficients"}, SumToZero, "--coefficients must sum to zero, and must not all be zero."},
      {{"n"}, LeavesErrorDegrees, noErrorDegrees},
  };
  test.solvable = {
      {{"means"},
       [](const Inputs& in) { return EffectD(in) != 0; },
       "The contrast of the means is zero: without an effect, no sample size reaches the power."},
      {{"effect-d"},
       [](const Inputs& in) { return in.Number("effect-d") != 0; },
       "The effect size is zero: without an effect, no sample size reaches the power."},
  };

  test.derived = {
      {"effect-d", "standardized contrast d", {"means", "sd", "coefficients"}, EffectD},
  };

  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-d", "a standardized contrast of {effect-d}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test of the contrast with coefficients {coefficients} at a "
       "significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} test of the contrast "
       "with coefficients {coefficients} at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "contrast with coefficients {coefficients} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the contrast with coefficients {coefficients} with a half-width of "
       "at most {target-half-width}, at a standard deviation of {sd} within the groups, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), the two-sided test of the contrast with coefficients "
       "-0.5, -0.5 and 1 at a significance level of 0.05 has a power of 0.6676 to detect group means of 10, 12 and 15 "
       "with a standard deviation of 6 within the groups."},
      {"contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --power 0.9 --one-sided",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the one-sided test of the contrast with coefficients -0.5, -0.5 and 1 at a significance level of 0.05 needs 30 "
       "observations in each of 3 groups (90 in total); its power is then 0.9055."},
      {"contrast --coefficients 1,-1,0 --effect-d 0.5 --power 0.8 --ratios 1,1,2",
       "To detect a standardized contrast of 0.5 with a power of 0.8, the two-sided test of the contrast with "
       "coefficients 1, -1 and 0 at a significance level of 0.05 needs 64, 64 and 127 observations in 3 groups (255 in "
       "total); its power is then 0.8045."},
      {"contrast --coefficients -0.5,-0.5,1 --sd 6 --n 20,20,30 --interval",
       "With 20, 20 and 30 observations in 3 groups (70 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the contrast with coefficients -0.5, -0.5 and 1 has a half-width of 2.892."},
      {"contrast --coefficients -0.5,-0.5,1 --sd 6 --half-width 2",
       "For a 95% confidence interval of the contrast with coefficients -0.5, -0.5 and 1 with a half-width of at most "
       "2, at a standard deviation of 6 within the groups, the study needs 53 observations in each of 3 groups (159 in "
       "total); the half-width is then 1.994."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test ContrastTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
