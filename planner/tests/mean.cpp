#include <cmath>

#include "catalogue.h"
#include "kelpower.h"
#include "mean_parameters.h"

namespace planner {
namespace {

template <auto power>
Numbers PowerOfMean(const Inputs& in) {
  return {power(in.Number("n"), in.Number("mean"), in.Number("sd"), in.Number("test-value"), in.Alpha())};
}

template <auto power>
Numbers PowerOfEffect(const Inputs& in) {
  return {power(in.Number("n"), in.Number("effect-d"), in.Alpha())};
}

template <auto size>
Numbers SizeOfMean(const Inputs& in) {
  return {std::ceil(size(in.Number("power"), in.Number("mean"), in.Number("sd"), in.Number("test-value"), in.Alpha()))};
}

template <auto size>
Numbers SizeOfEffect(const Inputs& in) {
  return {std::ceil(size(in.Number("power"), in.Number("effect-d"), in.Alpha()))};
}

std::vector<Chart> Charts() {
  const Axis size = SingleSizeAxis("sample size (observations)");
  const Axis effect = EffectDAxis();
  return {
      {"n",
       {size},
       {"mean", "sd", "n"},
       {"test-value", "one-sided"},
       "PlotNOneSample",
       "mean --mean 104 --test-value 100 --sd 10 --n 40 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOneSample(in.Number("n"), in.Number("mean"), in.Number("sd"), r.x.First(), r.x.Last(),
                                     in.Flag("one-sided"), in.Number("test-value"), in.Alpha()));
       }},
      {"n",
       {size},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotNOneSampleFES",
       "mean --effect-d 0.4 --n 40 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(
             PlotNOneSampleFES(in.Number("effect-d"), r.x.First(), r.x.Last(), in.Flag("one-sided"), in.Alpha()));
       }},
      {"effect",
       {effect},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotESOneSample",
       "mean --effect-d 0.4 --n 40 --chart effect --from 0 --to 1",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotESOneSample(in.Number("n"), r.x.from, r.x.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
      {"effect-n",
       {effect, size},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotNaESOneSample",
       "mean --effect-d 0.4 --n 40 --one-sided --chart effect-n --from 0,5 --to 1,80",
       [](const Inputs& in, const Ranges& r) {
         return Surface(
             PlotNaESOneSample(r.y.First(), r.y.Last(), r.x.from, r.x.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "mean";
  test.title = "One-sample t test of a mean";
  test.about = "Tests whether the mean of a population is a fixed value.";

  test.parameters = {
      Number("mean", "mean", "mean expected in the population"),
      Number("test-value", "test value", "mean under the null hypothesis").Default(0.0),
      Number("sd", "standard deviation", "standard deviation in the population").Above(0),
      EffectD("difference of the mean from the test value over the standard deviation"),
      SingleSize("observations in the sample"),
      OneSided(),
  };

  test.routes = {
      {Question::Power,
       {"mean", "sd", "n"},
       {"test-value"},
       "PowerOneSampleNondirectional",
       PowerOfMean<PowerOneSampleNondirectional>},
      {Question::Power,
       {"mean", "sd", "n"},
       {"test-value", "one-sided"},
       "PowerOneSampleDirectional",
       PowerOfMean<PowerOneSampleDirectional>},
      {Question::Power,
       {"effect-d", "n"},
       {},
       "PowerOneSampleNondirectionalES",
       PowerOfEffect<PowerOneSampleNondirectionalES>},
      {Question::Power,
       {"effect-d", "n"},
       {"one-sided"},
       "PowerOneSampleDirectionalES",
       PowerOfEffect<PowerOneSampleDirectionalES>},
      {Question::SampleSize,
       {"mean", "sd"},
       {"test-value"},
       "PowerReverseOneSampleNondirectional",
       SizeOfMean<PowerReverseOneSampleNondirectional>},
      {Question::SampleSize,
       {"mean", "sd"},
       {"test-value", "one-sided"},
       "PowerReverseOneSampleDirectional",
       SizeOfMean<PowerReverseOneSampleDirectional>},
      {Question::SampleSize,
       {"effect-d"},
       {},
       "PowerReverseOneSampleNondirectionalES",
       SizeOfEffect<PowerReverseOneSampleNondirectionalES>},
      {Question::SampleSize,
       {"effect-d"},
       {"one-sided"},
       "PowerReverseOneSampleDirectionalES",
       SizeOfEffect<PowerReverseOneSampleDirectionalES>},
      {Question::HalfWidth,
       {"sd", "n"},
       {},
       "HalfCIOneSampleMeans",
       [](const Inputs& in) -> Numbers { return {HalfCIOneSampleMeans(in.Number("n"), in.Number("sd"), in.Alpha())}; }},
      {Question::SampleSizeForHalfWidth,
       {"sd"},
       {},
       "PowerReversebyHalfCIOneSampleMeans",
       [](const Inputs& in) -> Numbers {
         return {PowerReversebyHalfCIOneSampleMeans(in.Number("half-width"), in.Number("sd"), in.Alpha())};
       }},
  };

  test.solvable = {
      {{"mean", "test-value"},
       [](const Inputs& in) { return in.Number("mean") != in.Number("test-value"); },
       "The mean is the test value: without a difference, no sample size reaches the power."},
      {{"effect-d"}, [](const Inputs& in) { return in.Number("effect-d") != 0; }, noEffectD},
  };

  test.derived = {
      {"effect-d",
       "effect size d",
       {"mean", "test-value", "sd"},
       [](const Inputs& in) {
         return EffectSizeOneSample(in.Number("mean"), in.Number("sd"), in.Number("test-value"));
       }},
  };

  test.phrases = {
      {"effect",
       {{"mean", "a mean of {mean} against {test-value} with a standard deviation of {sd}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} one-sample t test at a significance level of {alpha} has a "
       "power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} one-sample t test at a "
       "significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd}, the {confidence} confidence interval of the mean has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the mean with a half-width of at most {target-half-width}, at a "
       "standard deviation of {sd}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"mean --mean 104 --test-value 100 --sd 10 --n 40",
       "With 40 observations, the two-sided one-sample t test at a significance level of 0.05 has a power of 0.6940 to "
       "detect a mean of 104 against 100 with a standard deviation of 10."},
      {"mean --mean 104 --test-value 100 --sd 10 --power 0.8",
       "To detect a mean of 104 against 100 with a standard deviation of 10 with a power of 0.8, the two-sided "
       "one-sample t test at a significance level of 0.05 needs 52 observations; its power is then 0.8078."},
      {"mean --effect-d 0.4 --power 0.8 --one-sided",
       "To detect an effect size d of 0.4 with a power of 0.8, the one-sided one-sample t test at a significance level "
       "of 0.05 needs 41 observations; its power is then 0.8086."},
      {"mean --sd 10 --n 40 --interval",
       "With 40 observations and a standard deviation of 10, the 95% confidence interval of the mean has a half-width "
       "of 3.198."},
      {"mean --sd 10 --half-width 2.5",
       "For a 95% confidence interval of the mean with a half-width of at most 2.5, at a standard deviation of 10, the "
       "study needs 64 observations; the half-width is then 2.498."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test MeanTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
