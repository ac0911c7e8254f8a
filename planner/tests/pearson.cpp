#include <algorithm>

#include "catalogue.h"
#include "correlation_parameters.h"
#include "kelpower.h"
#include "window.h"

namespace planner {
namespace {

constexpr double smallestSize = 4;

std::vector<Chart> Charts() {
  const Axis size = CaseAxis();
  const Axis null = NullAxis();
  const Axis alternative = AlternativeAxis();
  const Axis difference = DifferenceAxis();
  const std::vector<std::string> needs{"r", "n"};
  const std::vector<std::string> accepts{"null", "one-sided", "adjust-bias"};
  return {
      {"n",
       {size},
       needs,
       accepts,
       "PlotNOneSampPearson",
       "pearson --r 0.3 --n 84 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                          in.Flag("adjust-bias"), in.Alpha(), r.x.First(), r.x.Last()));
       }},
      {"null",
       {null},
       needs,
       accepts,
       "PlotNullOneSampPearson",
       "pearson --r 0.3 --n 84 --chart null --from -0.5 --to 0.8",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotNullOneSampPearson(in.Number("n"), in.Number("r"), in.Flag("one-sided"),
                                                    in.Flag("adjust-bias"), in.Alpha(), step)),
                       r.x);
       }},
      {"r",
       {alternative},
       needs,
       accepts,
       "PlotAlterOneSampPearson",
       "pearson --r 0.3 --n 84 --chart r",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotAlterOneSampPearson(in.Number("n"), in.Number("null"), in.Flag("one-sided"),
                                                     in.Flag("adjust-bias"), in.Alpha(), step)),
                       r.x);
       }},
      {"difference",
       {difference},
       needs,
       accepts,
       "PlotRiskDiffOneSampPearson",
       "pearson --r 0.5 --null 0.2 --n 84 --chart difference",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotRiskDiffOneSampPearson(in.Number("n"), in.Number("null"), in.Flag("one-sided"),
                                                        in.Flag("adjust-bias"), in.Alpha(), step)),
                       r.x);
       }},
      {"n-difference",
       {size, difference},
       needs,
       accepts,
       "PlotNRiskDiffOneSampPearson",
       "pearson --r -0.3 --n 84 --chart n-difference",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(Surface(PlotNRiskDiffOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"),
                                                           in.Flag("one-sided"), in.Flag("adjust-bias"), in.Alpha(),
                                                           r.x.First(), r.x.Last(), step)),
                       {}, r.y);
       }},
      {"n-null",
       {size, null},
       needs,
       accepts,
       "PlotNNullOneSampPearson",
       "pearson --r 0.3 --n 84 --chart n-null",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(
             Surface(PlotNNullOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                             in.Flag("adjust-bias"), in.Alpha(), r.x.First(), r.x.Last(), step)),
             {}, r.y);
       }},
      {"n-r",
       {size, alternative},
       needs,
       accepts,
       "PlotNAlterOneSampPearson",
       "pearson --r 0.3 --n 84 --chart n-r --from 10,0 --to 200,0.8",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(
             Surface(PlotNAlterOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                              in.Flag("adjust-bias"), in.Alpha(), r.x.First(), r.x.Last(), step)),
             {}, r.y);
       }},
      {"null-r",
       {null, alternative},
       needs,
       accepts,
       "PlotNullAlterOneSampPearson",
       "pearson --r 0.3 --n 84 --chart null-r",
       [](const Inputs& in, const Ranges& r) {
         const double step = std::min(CorrelationStep(r.x, r.step), CorrelationStep(r.y, r.step));
         return Window(Surface(PlotNullAlterOneSampPearson(in.Number("n"), in.Flag("one-sided"), in.Flag("adjust-bias"),
                                                           in.Alpha(), step)),
                       r.x, r.y);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "pearson";
  test.title = "Test of a Pearson correlation";
  test.about = "Tests whether the Pearson correlation of two variables is a given value.";
  test.counted = "cases";

  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(smallestSize),
      TowardsCorrelation(),
      Flag("adjust-bias", "bias adjustment", "correct Fisher's z for its bias in small samples"),
  };

  test.routes = {
      {Question::Power,
       {"r", "n"},
       {"null", "one-sided", "adjust-bias"},
       "PowerbyOneSampPearson",
       [](const Inputs& in) -> Numbers {
         return {PowerbyOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                       in.Flag("adjust-bias"), in.Alpha())};
       }},
      {Question::SampleSize,
       {"r"},
       {"null", "one-sided", "adjust-bias"},
       "PowerReversebyOneSampPearson",
       [](const Inputs& in) -> Numbers {
         return WholeSize(
             PowerReversebyOneSampPearson(in.Number("power"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                          in.Flag("adjust-bias"), in.Alpha(), in.Stop()),
             smallestSize);
       }},
      {Question::HalfWidth,
       {"r", "n"},
       {"adjust-bias"},
       "HalfCIOneSampPearson",
       [](const Inputs& in) -> Numbers {
         return {HalfCIOneSampPearson(in.Number("n"), in.Number("r"), in.Flag("adjust-bias"), in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"r"},
       {"adjust-bias"},
       "PowerReversebyHalfCIOneSampPearson",
       [](const Inputs& in) -> Numbers {
         return WholeSize(PowerReversebyHalfCIOneSampPearson(in.Number("half-width"), in.Number("r"),
                                                             in.Flag("adjust-bias"), in.Alpha(), in.Stop()),
                          smallestSize);
       }},
  };

  test.solvable = {CorrelationsDiffer()};

  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test of a Pearson correlation of {null} by Fisher's "
       "z{adjust-bias?, corrected for bias,} at a significance level of {alpha} has a power of {power} to detect a "
       "correlation of {r}."},
      {Question::SampleSize,
       "To detect a correlation of {r} with a power of {target-power}, the {one-sided?one-sided:two-sided} test of a "
       "Pearson correlation of {null} by Fisher's z{adjust-bias?, corrected for bias,} at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the {confidence} confidence interval of a Pearson correlation of {r} by Fisher's "
       "z{adjust-bias?, corrected for bias,} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of a Pearson correlation of {r} by Fisher's z{adjust-bias?, corrected "
       "for bias,} with a half-width of at most {target-half-width}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"pearson --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Pearson correlation of 0 by Fisher's z at a significance level of 0.05 "
       "has a power of 0.7955 to detect a correlation of 0.3."},
      {"pearson --r 0.5 --null 0.2 --n 84 --one-sided --adjust-bias",
       "With 84 cases, the one-sided test of a Pearson correlation of 0.2 by Fisher's z, corrected for bias, at a "
       "significance level of 0.05 has a power of 0.9322 to detect a correlation of 0.5."},
      {"pearson --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Pearson correlation of 0 by "
       "Fisher's z at a significance level of 0.05 needs 113 cases; its power is then 0.9008."},
      {"pearson --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Pearson correlation of 0.3 by Fisher's z has a half-width of "
       "0.1959."},
      {"pearson --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Pearson correlation of 0.7 by Fisher's z with a half-width of at most 0.05, "
       "the study needs 404 cases; the half-width is then 0.04999."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test PearsonTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
