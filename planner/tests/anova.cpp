#include "catalogue.h"
#include "group_parameters.h"
#include "kelpower.h"

namespace planner {
namespace {

bool MeansDiffer(const Inputs& in) {
  for (double mean : in.List("means")) {
    if (mean != in.List("means").front()) return true;
  }
  return false;
}

Parameter EffectF() {
  return Number("effect-f", "effect size f", "standard deviation of the group means over that within the groups")
      .AtLeast(0)
      .AtMost(1e6);
}

Parameter EtaSquared() {
  return Number("eta-squared", "eta squared", "proportion of variance explained by the groups").AtLeast(0).Below(1);
}

std::vector<Chart> Charts() {
  const Axis size = TotalSizeAxis();
  const Axis sd = ParameterAxis(WithinSd(), "SD", [](const Inputs& in) { return in.Number("sd"); });
  const Axis f = ParameterAxis(EffectF(), "f", [](const Inputs& in) { return in.Number("effect-f"); });
  const Axis eta =
      ParameterAxis(EtaSquared(), "eta squared", [](const Inputs& in) { return in.Number("eta-squared"); });
  return {
      {"n",
       {size},
       {"means", "sd", "n"},
       {"groups"},
       "PlotNOverallTest",
       "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                       r.x.First(), r.x.Last(), in.Alpha()));
       }},
      {"n",
       {size},
       {"effect-f", "n"},
       {"groups"},
       "PlotNOverallTestFES",
       "anova --effect-f 0.25 --n 30,30,40 --chart n --from 30 --to 300",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOverallTestFES(in.Groups(), in.Number("effect-f"), 0, in.List("n").data(), r.x.First(),
                                          r.x.Last(), in.Alpha()));
       }},
      {"n",
       {size},
       {"eta-squared", "n"},
       {"groups"},
       "PlotNOverallTestFES",
       "anova --eta-squared 0.06 --n 30 --groups 4 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOverallTestFES(in.Groups(), in.Number("eta-squared"), 1, in.List("n").data(), r.x.First(),
                                          r.x.Last(), in.Alpha()));
       }},
      {"effect",
       {f},
       {"effect-f", "n"},
       {"groups"},
       "PlotESOverallTest",
       "anova --effect-f 0.25 --n 30,30,40 --chart effect --from 0 --to 1",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotESOverallTest(in.Groups(), 0, in.List("n").data(), r.x.from, r.x.to, in.Alpha(), r.step));
       }},
      {"effect",
       {eta},
       {"eta-squared", "n"},
       {"groups"},
       "PlotESOverallTest",
       "anova --eta-squared 0.06 --n 30 --groups 4 --chart effect",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotESOverallTest(in.Groups(), 1, in.List("n").data(), r.x.from, r.x.to, in.Alpha(), r.step));
       }},
      {"sd",
       {sd},
       {"means", "sd", "n"},
       {"groups"},
       "PlotSDOverallTest",
       "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart sd --from 2 --to 12",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotSDOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                        r.x.from, r.x.to, in.Alpha(), r.step));
       }},
      {"n-sd",
       {size, sd},
       {"means", "sd", "n"},
       {"groups"},
       "PlotNaSDOverallTest",
       "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart n-sd --from 12,2 --to 150,12",
       [](const Inputs& in, const Ranges& r) {
         return Surface(PlotNaSDOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(),
                                            r.x.First(), r.x.Last(), r.y.from, r.y.to, in.Alpha(), r.step));
       }},
      {"n-effect",
       {size, f},
       {"effect-f", "n"},
       {"groups"},
       "PlotNaESOverallTest",
       "anova --effect-f 0.25 --n 30,30,40 --chart n-effect --from 12,0 --to 200,1",
       [](const Inputs& in, const Ranges& r) {
         return Surface(PlotNaESOverallTest(in.Groups(), in.Number("effect-f"), 0, in.List("n").data(), r.x.First(),
                                            r.x.Last(), r.y.from, r.y.to, in.Alpha(), r.step));
       }},
      {"n-effect",
       {size, eta},
       {"eta-squared", "n"},
       {"groups"},
       "PlotNaESOverallTest",
       "anova --eta-squared 0.06 --n 30 --groups 4 --chart n-effect",
       [](const Inputs& in, const Ranges& r) {
         return Surface(PlotNaESOverallTest(in.Groups(), in.Number("eta-squared"), 1, in.List("n").data(), r.x.First(),
                                            r.x.Last(), r.y.from, r.y.to, in.Alpha(), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "anova";
  test.title = "One-way analysis of variance: overall F test";
  test.about = "Tests whether the means of several independent groups are all equal.";
  test.groups = groupsFromInputs;

  test.parameters = {
      GroupMeans(), WithinSd(), EffectF(), EtaSquared(), GroupSizes(), AllocationRatios(), GroupCount(),
  };

  test.routes = {
      {Question::Power,
       {"means", "sd", "n"},
       {"groups"},
       "PowerOverallTest",
       [](const Inputs& in) -> Numbers {
         return {
             PowerOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(), in.Alpha())};
       }},
      {Question::Power,
       {"effect-f", "n"},
       {"groups"},
       "PowerOverallTestwES",
       [](const Inputs& in) -> Numbers {
         return {PowerOverallTestwES(in.Groups(), in.Number("effect-f"), 0, in.List("n").data(), in.Alpha())};
       }},
      {Question::Power,
       {"eta-squared", "n"},
       {"groups"},
       "PowerOverallTestwES",
       [](const Inputs& in) -> Numbers {
         return {PowerOverallTestwES(in.Groups(), in.Number("eta-squared"), 1, in.List("n").data(), in.Alpha())};
       }},
      {Question::SampleSize,
       {"means", "sd"},
       {"ratios", "groups"},
       "PowerReverseOverallTest",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReverseOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(),
                                 in.Number("power"), sizes, in.Alpha());
         return sizes;
       }},
      {Question::SampleSize,
       {"effect-f"},
       {"ratios", "groups"},
       "PowerReverseOverallTestwES",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReverseOverallTestwES(in.Groups(), in.Number("effect-f"), 0, in.Weights().data(), in.Number("power"),
                                    sizes, in.Alpha());
         return sizes;
       }},
      {Question::SampleSize,
       {"eta-squared"},
       {"ratios", "groups"},
       "PowerReverseOverallTestwES",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReverseOverallTestwES(in.Groups(), in.Number("eta-squared"), 1, in.Weights().data(), in.Number("power"),
                                    sizes, in.Alpha());
         return sizes;
       }},
      {Question::HalfWidth,
       {"sd", "n"},
       {"groups"},
       "HalfCIOverallTest",
       [](const Inputs& in) -> Numbers {
         const double total = SampleSizeTotal(in.Groups(), in.List("n").data());
         return {HalfCIOverallTest(total, in.Groups(), in.Number("sd"), in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"sd"},
       {"ratios", "groups"},
       "PowerReversebyHalfCIOverallTest",
       [](const Inputs& in) {
         Numbers sizes;
         PowerReversebyHalfCIOverallTest(in.Number("half-width"), in.Groups(), in.Weights().data(), in.Number("sd"),
                                         sizes, in.Alpha());
         return sizes;
       }},
  };

  test.conditions = {{{"n"}, LeavesErrorDegrees, noErrorDegrees}};
  test.solvable = {
      {{"means"}, MeansDiffer, "The means are all equal: without an effect, no sample size reaches the power."},
      {{"effect-f"},
       [](const Inputs& in) { return in.Number("effect-f") > 0; },
       "The effect size is zero: without an effect, no sample size reaches the power."},
      {{"eta-squared"},
       [](const Inputs& in) { return in.Number("eta-squared") > 0; },
       "The effect size is zero: without an effect, no sample size reaches the power."},
  };

  test.derived = {
      {"rmsse",
       "root-mean-square standardized effect",
       {"means", "sd"},
       [](const Inputs& in) {
         return RMSSEOverallTest(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(),
                                 in.Alpha());
       }},
  };

  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-f", "an effect size f of {effect-f}"},
        {"eta-squared", "an eta squared of {eta-squared}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the overall F test of a one-way analysis of variance at a significance level of {alpha} has a "
       "power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the overall F test of a one-way analysis of variance at a "
       "significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "grand mean has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the grand mean with a half-width of at most {target-half-width}, at "
       "a standard deviation of {sd} within the groups, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"anova --means 10,12,15 --sd 6 --n 20,20,20",
       "With 20 observations in each of 3 groups (60 in total), the overall F test of a one-way analysis of variance "
       "at a significance level of 0.05 has a power of 0.6332 to detect group means of 10, 12 and 15 with a standard "
       "deviation of 6 within the groups."},
      {"anova --means 10,12,15 --sd 6 --power 0.9",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the overall F test of a one-way analysis of variance at a significance level of 0.05 needs 37 observations in "
       "each of 3 groups (111 in total); its power is then 0.9001."},
      {"anova --effect-f 0.25 --power 0.8 --ratios 2,1,1",
       "To detect an effect size f of 0.25 with a power of 0.8, the overall F test of a one-way analysis of variance "
       "at a significance level of 0.05 needs 79, 40 and 40 observations in 3 groups (159 in total); its power is then "
       "0.8049."},
      {"anova --sd 6 --n 20 --groups 3 --interval",
       "With 20 observations in each of 3 groups (60 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the grand mean has a half-width of 1.551."},
      {"anova --sd 6 --half-width 1.5 --groups 3",
       "For a 95% confidence interval of the grand mean with a half-width of at most 1.5, at a standard deviation of 6 "
       "within the groups, the study needs 22 observations in each of 3 groups (66 in total); the half-width is then "
       "1.476."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test AnovaTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
