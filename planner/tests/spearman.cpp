#include <algorithm>

#include "catalogue.h"
#include "correlation_parameters.h"
#include "kelpower.h"
#include "window.h"

namespace planner {
namespace {

constexpr int carusoCliff = 2;

// The other variances divide by the size less 3.
double SmallestSize(const Inputs& in) { return in.Choice("variance") == carusoCliff ? 3 : 4; }

std::vector<Chart> Charts() {
  const Axis size = CaseAxis();
  const Axis null = NullAxis();
  const Axis alternative = AlternativeAxis();
  const Axis difference = DifferenceAxis();
  const std::vector<std::string> needs{"r", "n"};
  const std::vector<std::string> accepts{"null", "one-sided", "variance"};
  return {
      {"n",
       {size},
       needs,
       accepts,
       "PlotNOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotNOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                           in.Flag("one-sided"), in.Alpha(), r.x.First(), r.x.Last()));
       }},
      {"null",
       {null},
       needs,
       accepts,
       "PlotNullOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart null --from -0.5 --to 0.8",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotNullOneSampSpearman(in.Number("n"), in.Number("r"), in.Choice("variance"),
                                                     in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"r",
       {alternative},
       needs,
       accepts,
       "PlotAlterOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart r",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotAlterOneSampSpearman(in.Number("n"), in.Number("null"), in.Choice("variance"),
                                                      in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"difference",
       {difference},
       needs,
       accepts,
       "PlotRiskDiffOneSampSpearman",
       "spearman --r 0.5 --null 0.2 --n 84 --chart difference",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotRiskDiffOneSampSpearman(in.Number("n"), in.Number("null"), in.Choice("variance"),
                                                         in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"n-difference",
       {size, difference},
       needs,
       accepts,
       "PlotNRiskDiffOneSampSpearman",
       "spearman --r -0.3 --n 84 --chart n-difference",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(Surface(PlotNRiskDiffOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"),
                                                            in.Choice("variance"), in.Flag("one-sided"), in.Alpha(),
                                                            r.x.First(), r.x.Last(), step)),
                       {}, r.y);
       }},
      {"n-null",
       {size, null},
       needs,
       accepts,
       "PlotNNullOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart n-null",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(
             Surface(PlotNNullOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                              in.Flag("one-sided"), in.Alpha(), r.x.First(), r.x.Last(), step)),
             {}, r.y);
       }},
      {"n-r",
       {size, alternative},
       needs,
       accepts,
       "PlotNAlterOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart n-r --from 10,0 --to 200,0.8",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.y, r.step);
         return Window(
             Surface(PlotNAlterOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                               in.Flag("one-sided"), in.Alpha(), r.x.First(), r.x.Last(), step)),
             {}, r.y);
       }},
      {"null-r",
       {null, alternative},
       needs,
       accepts,
       "PlotNullAlterOneSampSpearman",
       "spearman --r 0.3 --n 84 --chart null-r",
       [](const Inputs& in, const Ranges& r) {
         const double step = std::min(CorrelationStep(r.x, r.step), CorrelationStep(r.y, r.step));
         return Window(Surface(PlotNullAlterOneSampSpearman(in.Number("n"), in.Choice("variance"), in.Flag("one-sided"),
                                                            in.Alpha(), step)),
                       r.x, r.y);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "spearman";
  test.title = "Test of a Spearman correlation";
  test.about = "Tests whether the Spearman correlation of two variables is a given value.";
  test.counted = "cases";

  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(3),
      TowardsCorrelation(),
      OneOf("variance", "variance of z", "approximation of the variance of Fisher's z of a rank correlation",
            {{"bonett-wright", 0, "Bonett and Wright"},
             {"fieller", 1, "Fieller, Hartley and Pearson"},
             {"caruso-cliff", carusoCliff, "Caruso and Cliff"}})
          .Default(std::string("bonett-wright")),
  };

  test.routes = {
      {Question::Power,
       {"r", "n"},
       {"null", "one-sided", "variance"},
       "PowerbyOneSampSpearman",
       [](const Inputs& in) -> Numbers {
         return {PowerbyOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                        in.Flag("one-sided"), in.Alpha())};
       }},
      {Question::SampleSize,
       {"r"},
       {"null", "one-sided", "variance"},
       "PowerReversebyOneSampSpearman",
       [](const Inputs& in) -> Numbers {
         return WholeSize(PowerReversebyOneSampSpearman(in.Number("power"), in.Number("r"), in.Number("null"),
                                                        in.Choice("variance"), in.Flag("one-sided"), in.Alpha()),
                          SmallestSize(in));
       }},
      {Question::HalfWidth,
       {"r", "n"},
       {"variance"},
       "HalfCIOneSampSpearman",
       [](const Inputs& in) -> Numbers {
         return {HalfCIOneSampSpearman(in.Number("n"), in.Number("r"), in.Choice("variance"), in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"r"},
       {"variance"},
       "PowerReversebyHalfCIOneSampSpearman",
       [](const Inputs& in) -> Numbers {
         return WholeSize(PowerReversebyHalfCIOneSampSpearman(in.Number("half-width"), in.Number("r"),
                                                              in.Choice("variance"), in.Alpha(), in.Stop()),
                          SmallestSize(in));
       }},
  };

  test.conditions = {
      {{"n", "variance"},
       [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       "--n is 3, but must be at least 4 unless --variance is caruso-cliff."},
  };
  test.solvable = {CorrelationsDiffer()};

  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test of a Spearman correlation of {null} by Fisher's "
       "z with the variance of {variance} at a significance level of {alpha} has a power of {power} to detect a "
       "correlation of {r}."},
      {Question::SampleSize,
       "To detect a correlation of {r} with a power of {target-power}, the {one-sided?one-sided:two-sided} test of a "
       "Spearman correlation of {null} by Fisher's z with the variance of {variance} at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the {confidence} confidence interval of a Spearman correlation of {r} by Fisher's "
       "z with the variance of {variance} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of a Spearman correlation of {r} by Fisher's z with the variance of "
       "{variance} with a half-width of at most {target-half-width}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"spearman --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Spearman correlation of 0 by Fisher's z with the variance of Bonett and "
       "Wright at a significance level of 0.05 has a power of 0.7779 to detect a correlation of 0.3."},
      {"spearman --r 0.5 --null 0.2 --n 84 --one-sided --variance fieller",
       "With 84 cases, the one-sided test of a Spearman correlation of 0.2 by Fisher's z with the variance of Fieller, "
       "Hartley and Pearson at a significance level of 0.05 has a power of 0.9169 to detect a correlation of 0.5."},
      {"spearman --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Spearman correlation of 0 by "
       "Fisher's z with the variance of Bonett and Wright at a significance level of 0.05 needs 118 cases; its power "
       "is then 0.9010."},
      {"spearman --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Spearman correlation of 0.3 by Fisher's z with the variance of "
       "Bonett and Wright has a half-width of 0.2002."},
      {"spearman --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Spearman correlation of 0.7 by Fisher's z with the variance of Bonett and "
       "Wright with a half-width of at most 0.05, the study needs 503 cases; the half-width is then 0.04995."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test SpearmanTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
