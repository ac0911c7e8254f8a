#include <cmath>

#include "catalogue.h"
#include "kelpower.h"
#include "mean_parameters.h"

namespace planner {
namespace {

/// Two measurements on the same units. Where the differences are described themselves, the second one has no spread,
/// which the library reads so; any correlation that it accepts will do then.
struct Pair {
  double mean1;
  double sd1;
  double mean2;
  double sd2;
  double correlation;
};

Pair PairOf(const Inputs& in) {
  if (in.Has("sd-difference")) {
    const double difference = in.Has("mean-difference") ? in.Number("mean-difference") : 0;
    return {difference, in.Number("sd-difference"), 0, 0, 0.5};
  }
  const Numbers means = in.Has("means") ? in.List("means") : Numbers{0, 0};
  const Numbers& sds = in.List("sds");
  return {means[0], sds[0], means[1], sds[1], in.Number("correlation")};
}

template <auto power>
Numbers PowerOfMeans(const Inputs& in) {
  const Pair pair = PairOf(in);
  return {power(in.Number("n"), pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation, in.Alpha())};
}

template <auto power>
Numbers PowerOfEffect(const Inputs& in) {
  return {power(in.Number("n"), in.Number("effect-d"), in.Alpha())};
}

template <auto size>
Numbers SizeOfMeans(const Inputs& in) {
  const Pair pair = PairOf(in);
  return {
      std::ceil(size(in.Number("power"), pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation, in.Alpha()))};
}

template <auto size>
Numbers SizeOfEffect(const Inputs& in) {
  return {std::ceil(size(in.Number("power"), in.Number("effect-d"), in.Alpha()))};
}

Numbers HalfWidth(const Inputs& in) {
  const Pair pair = PairOf(in);
  return {HalfCIRelatedMeans(in.Number("n"), pair.sd1, pair.sd2, pair.correlation, in.Alpha())};
}

Numbers SizeForHalfWidth(const Inputs& in) {
  const Pair pair = PairOf(in);
  return {PowerReversebyHalfCIRelatedMeans(in.Number("half-width"), pair.sd1, pair.sd2, pair.correlation, in.Alpha())};
}

double EffectSize(const Inputs& in) {
  const Pair pair = PairOf(in);
  return EffectSizeRelated(pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation);
}

/// The routes to one answer from means, from the differences and from an effect size.
template <auto fromMeans, auto fromEffect>
void AddRoutes(Test& test, Question question, const std::vector<std::string>& alsoNeeded,
               const std::vector<std::string>& accepted, const std::string& exportName) {
  const auto with = [&](std::vector<std::string> names) {
    names.insert(names.end(), alsoNeeded.begin(), alsoNeeded.end());
    return names;
  };
  test.routes.push_back({question, with({"means", "sds", "correlation"}), accepted, exportName, fromMeans});
  test.routes.push_back({question, with({"mean-difference", "sd-difference"}), accepted, exportName, fromMeans});
  test.routes.push_back({question, with({"effect-d"}), accepted, exportName + "ES", fromEffect});
}

void AddRoutes(Test& test) {
  AddRoutes<PowerOfMeans<PowerRelatedNondirectional>, PowerOfEffect<PowerRelatedNondirectionalES>>(
      test, Question::Power, {"n"}, {}, "PowerRelatedNondirectional");
  AddRoutes<PowerOfMeans<PowerRelatedDirectional>, PowerOfEffect<PowerRelatedDirectionalES>>(
      test, Question::Power, {"n"}, {"one-sided"}, "PowerRelatedDirectional");
  AddRoutes<SizeOfMeans<PowerReverseRelatedNondirectional>, SizeOfEffect<PowerReverseRelatedNondirectionalES>>(
      test, Question::SampleSize, {}, {}, "PowerReverseRelatedNondirectional");
  AddRoutes<SizeOfMeans<PowerReverseRelatedDirectional>, SizeOfEffect<PowerReverseRelatedDirectionalES>>(
      test, Question::SampleSize, {}, {"one-sided"}, "PowerReverseRelatedDirectional");
  test.routes.push_back({Question::HalfWidth, {"sds", "correlation", "n"}, {}, "HalfCIRelatedMeans", HalfWidth});
  test.routes.push_back({Question::HalfWidth, {"sd-difference", "n"}, {}, "HalfCIRelatedMeans", HalfWidth});
  test.routes.push_back({Question::SampleSizeForHalfWidth,
                         {"sds", "correlation"},
                         {},
                         "PowerReversebyHalfCIRelatedMeans",
                         SizeForHalfWidth});
  test.routes.push_back(
      {Question::SampleSizeForHalfWidth, {"sd-difference"}, {}, "PowerReversebyHalfCIRelatedMeans", SizeForHalfWidth});
}

bool IsCorrelated(const Inputs& in) { return in.Number("correlation") != 0; }

bool IsOneSidedBelowOne(const Inputs& in) {
  return in.Number("correlation") < 1 || !in.Has("one-sided") || !in.Flag("one-sided");
}

bool DifferencesSpread(const Inputs& in) {
  const Numbers& sds = in.List("sds");
  return sds[0] != sds[1] || std::abs(in.Number("correlation")) != 1;
}

Series PowerAgainstPairs(const Inputs& in, const Ranges& r) {
  const Pair pair = PairOf(in);
  return Curve(PlotNRelated(in.Number("n"), pair.mean1, pair.sd1, pair.mean2, pair.sd2, r.x.First(), r.x.Last(),
                            pair.correlation, in.Flag("one-sided"), in.Alpha()));
}

std::vector<Chart> Charts() {
  const Axis size = SingleSizeAxis("number of pairs");
  const Axis effect = EffectDAxis();
  return {
      {"n",
       {size},
       {"means", "sds", "correlation", "n"},
       {"one-sided"},
       "PlotNRelated",
       "paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30 --chart n",
       PowerAgainstPairs},
      {"n",
       {size},
       {"mean-difference", "sd-difference", "n"},
       {"one-sided"},
       "PlotNRelated",
       "paired-means --mean-difference 4 --sd-difference 8 --n 44 --chart n --from 10 --to 100",
       PowerAgainstPairs},
      {"n",
       {size},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotNRelatedFES",
       "paired-means --effect-d 0.4 --n 40 --chart n",
       [](const Inputs& in, const Ranges& r) {
         return Curve(
             PlotNRelatedFES(in.Number("effect-d"), r.x.First(), r.x.Last(), in.Flag("one-sided"), in.Alpha()));
       }},
      {"effect",
       {effect},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotESRelated",
       "paired-means --effect-d 0.4 --n 40 --chart effect --from 0 --to 1",
       [](const Inputs& in, const Ranges& r) {
         return Curve(PlotESRelated(in.Number("n"), r.x.from, r.x.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
      {"effect-n",
       {effect, size},
       {"effect-d", "n"},
       {"one-sided"},
       "PlotNaESRelated",
       "paired-means --effect-d 0.4 --n 40 --one-sided --chart effect-n --from 0,5 --to 1,80",
       [](const Inputs& in, const Ranges& r) {
         return Surface(
             PlotNaESRelated(r.y.First(), r.y.Last(), r.x.from, r.x.to, in.Flag("one-sided"), in.Alpha(), r.step));
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "paired-means";
  test.title = "Paired-samples t test of means";
  test.about = "Tests whether two measurements on the same units have the same mean.";
  test.counted = "pairs";

  test.parameters = {
      List("means", "means", "means expected of the two measurements").Length(2),
      List("sds", "standard deviations", "standard deviations of the two measurements").Length(2).Above(0),
      Number("correlation", "correlation", "correlation between the two measurements").AtLeast(-1).AtMost(1),
      Number("mean-difference", "mean difference", "mean expected of the differences, in place of --means"),
      Number("sd-difference", "standard deviation of the differences", "in place of --sds and --correlation").Above(0),
      EffectD("mean of the differences over their standard deviation"),
      SingleSize("pairs of measurements"),
      OneSided(),
  };
  AddRoutes(test);

  test.conditions = {
      {{"means", "correlation"},
       IsCorrelated,
       "--correlation is 0: measurements that do not correlate are not pairs; two-means tests them."},
      {{"means", "correlation"}, IsOneSidedBelowOne, "--correlation of a one-sided test must be below 1."},
      {{"means", "correlation"},
       DifferencesSpread,
       "--sds are equal and --correlation is 1 or -1, which the test refuses: give --sd-difference instead."},
  };
  test.solvable = {
      {{"means"},
       [](const Inputs& in) { return in.List("means")[0] != in.List("means")[1]; },
       "The two means are equal: without a difference, no sample size reaches the power."},
      {{"mean-difference"},
       [](const Inputs& in) { return in.Number("mean-difference") != 0; },
       "The mean difference is zero: without a difference, no sample size reaches the power."},
      {{"effect-d"}, [](const Inputs& in) { return in.Number("effect-d") != 0; }, noEffectD},
  };

  test.derived = {
      {"effect-d", "effect size d", {"means", "sds", "correlation"}, EffectSize},
      {"effect-d", "effect size d", {"mean-difference", "sd-difference"}, EffectSize},
  };

  test.phrases = {
      {"effect",
       {{"means", "means of {means} {spread}"},
        {"mean-difference", "a mean difference of {mean-difference} {spread}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
      {"spread",
       {{"sds", "with standard deviations of {sds} and a correlation of {correlation}"},
        {"sd-difference", "with a standard deviation of {sd-difference} of the differences"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} paired-samples t test at a significance level of {alpha} has "
       "a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} paired-samples t test "
       "at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} of measurements {spread}, the {confidence} confidence interval of the mean difference has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the mean difference with a half-width of at most "
       "{target-half-width}, from measurements {spread}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30",
       "With 30 pairs, the two-sided paired-samples t test at a significance level of 0.05 has a power of 0.8787 to "
       "detect means of 25 and 21 with standard deviations of 8 and 7 and a correlation of 0.6."},
      {"paired-means --means 25,21 --sds 8,7 --correlation 0.6 --power 0.9 --one-sided",
       "To detect means of 25 and 21 with standard deviations of 8 and 7 and a correlation of 0.6 with a power of 0.9, "
       "the one-sided paired-samples t test at a significance level of 0.05 needs 26 pairs; its power is then 0.9007."},
      {"paired-means --mean-difference 4 --sd-difference 8 --power 0.9",
       "To detect a mean difference of 4 with a standard deviation of 8 of the differences with a power of 0.9, the "
       "two-sided paired-samples t test at a significance level of 0.05 needs 44 pairs; its power is then 0.9000."},
      {"paired-means --sds 8,7 --correlation 0.6 --n 30 --interval",
       "With 30 pairs of measurements with standard deviations of 8 and 7 and a correlation of 0.6, the 95% confidence "
       "interval of the mean difference has a half-width of 2.527."},
      {"paired-means --sds 8,7 --correlation 0.6 --half-width 2",
       "For a 95% confidence interval of the mean difference with a half-width of at most 2, from measurements with "
       "standard deviations of 8 and 7 and a correlation of 0.6, the study needs 47 pairs; the half-width is then "
       "1.987."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test PairedMeansTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
