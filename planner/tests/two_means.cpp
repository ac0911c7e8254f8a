#include <algorithm>
#include <cmath>

#include "catalogue.h"
#include "group_parameters.h"
#include "kelpower.h"
#include "mean_parameters.h"

namespace planner {
namespace {

double Ratio(const Inputs& in) { return in.Number("ratio"); }

template <auto power>
Numbers PowerOfMeans(const Inputs& in) {
  const Numbers& n = in.List("n");
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  return {power(n[0], means[0], sds[0], n[1], means[1], sds[1], in.Alpha())};
}

template <auto power>
Numbers PowerOfEffect(const Inputs& in) {
  return {power(in.List("n")[0], in.List("n")[1], in.Number("effect-d"), in.Alpha())};
}

template <auto size>
Numbers SizesOfMeans(const Inputs& in) {
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  Numbers sizes;
  size(in.Number("power"), Ratio(in), means[0], sds[0], means[1], sds[1], sizes, in.Alpha());
  return sizes;
}

template <auto size>
Numbers SizesOfEffect(const Inputs& in) {
  Numbers sizes;
  size(in.Number("power"), Ratio(in), in.Number("effect-d"), sizes, in.Alpha());
  return sizes;
}

Numbers HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  const Numbers& sds = in.List("sd");
  return {HalfCIIndependentMeans(n[0], sds[0], n[1], sds[1], in.Alpha())};
}

/// Asked in units of the larger standard deviation: the library's search ends at a fixed distance in the unit given.
Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers& sds = in.List("sd");
  const double unit = std::max(sds[0], sds[1]);
  Numbers sizes;
  PowerReversebyHalfCIIndependentMeans(in.Number("half-width") / unit, Ratio(in), sds[0] / unit, sds[1] / unit, sizes,
                                       in.Alpha());
  return sizes;
}

/// Over the root mean square of the standard deviations (Cohen 1988, formula 2.3.2).
double EffectSize(const Inputs& in) {
  const Numbers& means = in.List("means");
  const Numbers& sds = in.List("sd");
  return EffectSizeIndependent(means[0], means[1], std::hypot(sds[0], sds[1]) / std::sqrt(2.0));
}

double Total(const Inputs& in) { return in.List("n")[0] + in.List("n")[1]; }

double Difference(const Inputs& in) { return in.List("means")[0] - in.List("means")[1]; }

double SizeRatio(const Inputs& in) { return in.List("n")[1] / in.List("n")[0]; }

/// Whether the ratios leave each group more than one observation.
bool LeaveTwoGroups(const Inputs& in, const Range& ratios) {
  const double most = Total(in) - 1;
  return ratios.from > 1 / most && ratios.to < most;
}

/// Four times to either side of the design and of equal sizes, as far as the groups keep more than one observation. The
/// export's own range is so wide that its even steps jump over the part of interest.
Range RatiosAroundDesign(const Inputs& in) {
  const double most = 0.8 * (Total(in) - 2);
  return {std::max(std::min(SizeRatio(in), 1.0) / 4, 1 / most), std::min(std::max(SizeRatio(in), 1.0) * 4, most)};
}

Axis RatioAxis() {
  return {"ratio of the sizes (second group over first)",
          "ratio",
          {0.001, 1000, true, true, false},
          SizeRatio,
          RatiosAroundDesign};
}

/// From -5 to 5 times the design's difference, or -100 to 100 for a design without one, as the surface has it.
Axis DifferenceAxis() {
  constexpr double widest = 1e6;
  const auto usual = [](const Inputs& in) -> Range {
    const double end = Difference(in) != 0 ? 5 * std::abs(Difference(in)) : 100;
    return {-end, end};
  };
  return {"difference of the means (first minus second)",
          "difference",
          {-widest, widest, true, true, false},
          Difference,
          usual};
}

std::vector<Chart> Charts() {
  const Axis ratio = RatioAxis();
  const Axis effect = EffectDAxis();
  const Axis difference = DifferenceAxis();
  return {
      {"ratio",
       {ratio},
       {"means", "sd", "n"},
       {"one-sided"},
       "PlotRatioIndependent",
       "two-means --means 52,47 --sd 10,14 --n 40,60 --chart ratio --from 0.2 --to 5",
       [](const Inputs& in, const Ranges& r) {
         const Numbers& means = in.List("means");
         const Numbers& sds = in.List("sd");
         return Curve(PlotRatioIndependent(Total(in), means[0], sds[0], means[1], sds[1], r.x.from, r.x.to,
                                           in.Flag("one-sided"), in.Alpha(), r.step));
       }},
      {"ratio",
       {ratio},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotRatioIndependentFES",
       "two-means --effect-d 0.6 --n 90,60 --chart ratio",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotRatioIndependentFES(Total(in), in.Number("effect-d"), r.x.from, r.x.to, in.Flag("one-sided"),
                                              in.Alpha(), r.step));
       }},
      {"effect",
       {effect},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotESIndepended",
       "two-means --effect-d 0.6 --n 90,60 --one-sided --chart effect",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotESIndepended(in.List("n")[0], in.List("n")[1], r.x.from, r.x.to, in.Flag("one-sided"),
                                       in.Alpha(), r.step));
       }},
      {"difference",
       {difference},
       {"means", "sd", "n"},
       {"one-sided"},
       "PlotMeanDiffIndepended",
       "two-means --means 52,47 --sd 10,14 --n 40 --chart difference --from 0 --to 12",
       [](const Inputs& in, const Ranges& r) {
         const Numbers& n = in.List("n");
         const Numbers& means = in.List("means");
         const Numbers& sds = in.List("sd");
         const double step = r.step * (r.x.to - r.x.from);
         return Curve(PlotMeanDiffIndepended(n[0], means[0], sds[0], n[1], means[1], sds[1], r.x.from, r.x.to,
                                             in.Flag("one-sided"), in.Alpha(), step));
       }},
      {"ratio-effect",
       {ratio, effect},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotRatioaESIndependent",
       "two-means --effect-d 0.6 --n 90,60 --chart ratio-effect --from 0.2,0 --to 5,1",
       [](const Inputs& in, const Ranges& r) {
         if (!LeaveTwoGroups(in, r.x)) return Series{};
         return Surface(PlotRatioaESIndependent(Total(in), r.x.from, r.x.to, r.y.from, r.y.to, in.Flag("one-sided"),
                                                in.Alpha(), r.step));
       }},
      {"ratio-difference",
       {ratio, difference},
       {"means", "sd", "n"},
       {"one-sided"},
       "PlotRatioaMeanDiffIndependent",
       "two-means --means 52,47 --sd 10,14 --n 40 --chart ratio-difference --from 0.2,0 --to 5,12",
       [](const Inputs& in, const Ranges& r) {
         if (!LeaveTwoGroups(in, r.x)) return Series{};
         const Numbers& means = in.List("means");
         const Numbers& sds = in.List("sd");
         return Surface(PlotRatioaMeanDiffIndependent(Total(in), means[0], sds[0], means[1], sds[1], r.x.from, r.x.to,
                                                      r.y.from, r.y.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "two-means";
  test.title = "Independent-samples t test of two means";
  test.about =
      "Tests whether two independent groups have the same mean: pooled when their standard deviations are equal, and "
      "in "
      "the form of Welch when they differ.";
  test.groups = 2;

  test.parameters = {
      GroupMeans(),
      PerGroup("sd", "standard deviations", "standard deviation in each group").Alias("sds").Spreads().Above(0),
      EffectD("difference of the means over the common standard deviation"),
      GroupSizes().AtLeast(2),
      Number("ratio", "ratio of the sizes", "size of the second group over that of the first, in the sizes to find")
          .AtLeast(0.001)
          .AtMost(1000)
          .Default(1.0),
      OneSided(),
  };

  test.routes = {
      {Question::Power,
       {"means", "sd", "n"},
       {},
       "PowerIndependentNondirectional",
       PowerOfMeans<PowerIndependentNondirectional>},
      {Question::Power,
       {"means", "sd", "n"},
       {"one-sided"},
       "PowerIndependentDirectional",
       PowerOfMeans<PowerIndependentDirectional>},
      {Question::Power,
       {"effect-d", "n"},
       {},
       "PowerIndependentNondirectionalES",
       PowerOfEffect<PowerIndependentNondirectionalES>},
      {Question::Power,
       {"effect-d", "n"},
       {"one-sided"},
       "PowerIndependentDirectionalES",
       PowerOfEffect<PowerIndependentDirectionalES>},
      {Question::SampleSize,
       {"means", "sd"},
       {"ratio"},
       "PowerReverseIndependentNondirectional",
       SizesOfMeans<PowerReverseIndependentNondirectional>},
      {Question::SampleSize,
       {"means", "sd"},
       {"ratio", "one-sided"},
       "PowerReverseIndependentDirectional",
       SizesOfMeans<PowerReverseIndependentDirectional>},
      {Question::SampleSize,
       {"effect-d"},
       {"ratio"},
       "PowerReverseIndependentNondirectionalES",
       SizesOfEffect<PowerReverseIndependentNondirectionalES>},
      {Question::SampleSize,
       {"effect-d"},
       {"ratio", "one-sided"},
       "PowerReverseIndependentDirectionalES",
       SizesOfEffect<PowerReverseIndependentDirectionalES>},
      {Question::HalfWidth, {"sd", "n"}, {}, "HalfCIIndependentMeans", HalfWidth},
      {Question::SampleSizeForHalfWidth, {"sd"}, {"ratio"}, "PowerReversebyHalfCIIndependentMeans", SizesForHalfWidth},
  };

  test.solvable = {
      {{"means"},
       [](const Inputs& in) { return in.List("means")[0] != in.List("means")[1]; },
       "The two means are equal: without a difference, no sample size reaches the power."},
      {{"effect-d"}, [](const Inputs& in) { return in.Number("effect-d") != 0; }, noEffectD},
  };

  test.derived = {
      {"effect-d", "effect size d", {"means", "sd"}, EffectSize},
  };

  test.phrases = {
      {"effect",
       {{"means", "means of {means} with standard deviations of {sd}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} independent-samples t test at a significance level of "
       "{alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} independent-samples t "
       "test at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and standard deviations of {sd}, the {confidence} confidence interval of the difference of means "
       "has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the difference of means with a half-width of at most "
       "{target-half-width}, at standard deviations of {sd}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"two-means --means 52,47 --sd 10,14 --n 40",
       "With 40 observations in each of 2 groups (80 in total), the two-sided independent-samples t test at a "
       "significance level of 0.05 has a power of 0.4417 to detect means of 52 and 47 with standard deviations of 10 "
       "and 14."},
      {"two-means --effect-d 0.6 --n 90,60 --one-sided",
       "With 90 and 60 observations in 2 groups (150 in total), the one-sided independent-samples t test at a "
       "significance level of 0.05 has a power of 0.9737 to detect an effect size d of 0.6."},
      {"two-means --means 52,47 --sd 10,14 --power 0.8 --ratio 2",
       "To detect means of 52 and 47 with standard deviations of 10 and 14 with a power of 0.8, the two-sided "
       "independent-samples t test at a significance level of 0.05 needs 63 and 126 observations in 2 groups (189 in "
       "total); its power is then 0.8006."},
      {"two-means --effect-d 0.5 --power 0.8",
       "To detect an effect size d of 0.5 with a power of 0.8, the two-sided independent-samples t test at a "
       "significance level of 0.05 needs 64 observations in each of 2 groups (128 in total); its power is then "
       "0.8015."},
      {"two-means --sd 10,14 --n 40 --interval",
       "With 40 observations in each of 2 groups (80 in total) and standard deviations of 10 and 14, the 95% "
       "confidence "
       "interval of the difference of means has a half-width of 5.425."},
      {"two-means --sd 10,14 --half-width 4",
       "For a 95% confidence interval of the difference of means with a half-width of at most 4, at standard "
       "deviations "
       "of 10 and 14, the study needs 73 observations in each of 2 groups (146 in total); the half-width is then "
       "3.984."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test TwoMeansTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
