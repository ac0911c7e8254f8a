#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

/// Two measurements on the same units. Where the differences are described themselves, the second one has no spread,
/// which the library reads so; any correlation that it accepts will do then.
struct Pair {
  double mean1 = 0;
  double sd1;
  double mean2 = 0;
  double sd2;
  double correlation;
};

Pair PairOf(const Inputs& in) {
  if (in.Has("sd-difference")) {
    const double difference = in.Has("mean-difference") ? in.Number("mean-difference") : 0;
    return {.mean1 = difference, .sd1 = in.Number("sd-difference"), .sd2 = 0, .correlation = 0.5};
  }
  const Numbers& sds = in.List("sds");
  Pair pair{.sd1 = sds[0], .sd2 = sds[1], .correlation = in.Number("correlation")};
  if (!in.Has("means")) return pair;
  pair.mean1 = in.List("means")[0];
  pair.mean2 = in.List("means")[1];
  return pair;
}

double PowerOfMeans(const Inputs& in) {
  const Pair pair = PairOf(in);
  const auto power = in.Flag("one-sided") ? PowerRelatedDirectional : PowerRelatedNondirectional;
  return power(in.Number("n"), pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation, in.Alpha());
}

double PowerOfEffect(const Inputs& in) {
  const auto power = in.Flag("one-sided") ? PowerRelatedDirectionalES : PowerRelatedNondirectionalES;
  return power(in.Number("n"), in.Number("effect-d"), in.Alpha());
}

Numbers SizeOfMeans(const Inputs& in) {
  const Pair pair = PairOf(in);
  const auto size = in.Flag("one-sided") ? PowerReverseRelatedDirectional : PowerReverseRelatedNondirectional;
  return {
      std::ceil(size(in.Number("power"), pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation, in.Alpha()))};
}

Numbers SizeOfEffect(const Inputs& in) {
  const auto size = in.Flag("one-sided") ? PowerReverseRelatedDirectionalES : PowerReverseRelatedNondirectionalES;
  return {std::ceil(size(in.Number("power"), in.Number("effect-d"), in.Alpha()))};
}

double HalfWidth(const Inputs& in) {
  const Pair pair = PairOf(in);
  return HalfCIRelatedMeans(in.Number("n"), pair.sd1, pair.sd2, pair.correlation, in.Alpha());
}

Numbers SizeForHalfWidth(const Inputs& in) {
  const Pair pair = PairOf(in);
  return {PowerReversebyHalfCIRelatedMeans(in.Number("half-width"), pair.sd1, pair.sd2, pair.correlation, in.Alpha())};
}

double EffectSize(const Inputs& in) {
  const Pair pair = PairOf(in);
  return EffectSizeRelated(pair.mean1, pair.sd1, pair.mean2, pair.sd2, pair.correlation);
}

std::vector<Parameter> Parameters() {
  return {
      List("means", "means", "means expected of the two measurements").Length(2),
      List("sds", "standard deviations", "standard deviations of the two measurements").Length(2).Above(0),
      Number("correlation", "correlation", "correlation between the two measurements").AtLeast(-1).AtMost(1),
      Number("mean-difference", "mean difference", "mean expected of the differences, in place of {means}"),
      Number("sd-difference", "standard deviation of the differences", "in place of {sds} and {correlation}").Above(0),
      EffectD("mean of the differences over their standard deviation"),
      SingleSize("pairs of measurements"),
      OneSided(),
  };
}

Route PowerRoute(Names needs) {
  return {.question = Question::Power,
          .needs = std::move(needs),
          .accepts = {"one-sided"},
          .exportName = "PowerRelatedNondirectional",
          .oneSidedExport = "PowerRelatedDirectional",
          .value = PowerOfMeans};
}

Route SizeRoute(Names needs) {
  return {.question = Question::SampleSize,
          .needs = std::move(needs),
          .accepts = {"one-sided"},
          .exportName = "PowerReverseRelatedNondirectional",
          .oneSidedExport = "PowerReverseRelatedDirectional",
          .sizes = SizeOfMeans};
}

Route HalfWidthRoute(Names needs) {
  return {.question = Question::HalfWidth,
          .needs = std::move(needs),
          .exportName = "HalfCIRelatedMeans",
          .value = HalfWidth};
}

Route SizeForHalfWidthRoute(Names needs) {
  return {.question = Question::SampleSizeForHalfWidth,
          .needs = std::move(needs),
          .exportName = "PowerReversebyHalfCIRelatedMeans",
          .sizes = SizeForHalfWidth};
}

std::vector<Route> Routes() {
  return {
      PowerRoute({"means", "sds", "correlation", "n"}),
      PowerRoute({"mean-difference", "sd-difference", "n"}),
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerRelatedNondirectionalES",
       .oneSidedExport = "PowerRelatedDirectionalES",
       .value = PowerOfEffect},
      SizeRoute({"means", "sds", "correlation"}),
      SizeRoute({"mean-difference", "sd-difference"}),
      {.question = Question::SampleSize,
       .needs = {"effect-d"},
       .accepts = {"one-sided"},
       .exportName = "PowerReverseRelatedNondirectionalES",
       .oneSidedExport = "PowerReverseRelatedDirectionalES",
       .sizes = SizeOfEffect},
      HalfWidthRoute({"sds", "correlation", "n"}),
      HalfWidthRoute({"sd-difference", "n"}),
      SizeForHalfWidthRoute({"sds", "correlation"}),
      SizeForHalfWidthRoute({"sd-difference"}),
  };
}

bool DifferencesSpread(const Inputs& in) {
  const Numbers& sds = in.List("sds");
  return sds[0] != sds[1] || std::abs(in.Number("correlation")) != 1;
}

std::vector<Condition> Conditions() {
  return {
      {.code = "uncorrelated-pairs",
       .about = {"means", "correlation"},
       .holds = [](const Inputs& in) { return in.Number("correlation") != 0; },
       .sentence = "{correlation} is 0: measurements that do not correlate are not pairs; two-means tests them."},
      {.code = "one-sided-correlation",
       .about = {"means", "correlation"},
       .holds = [](const Inputs& in) { return in.Number("correlation") < 1 || !in.Flag("one-sided"); },
       .sentence = "{correlation} of a one-sided test must be below 1."},
      {.code = "differences-spread",
       .about = {"means", "correlation"},
       .holds = DifferencesSpread,
       .sentence =
           "{sds} are equal and {correlation} is 1 or -1, which the test refuses: give {sd-difference} instead."},
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return in.List("means")[0] != in.List("means")[1]; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"mean-difference"},
       .holds = [](const Inputs& in) { return in.Number("mean-difference") != 0; },
       .sentence = "The mean difference is zero: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
}

std::vector<Chart> Charts() {
  const Axis size = SizeAxis("number of pairs", 2, 1e9, UpToTwiceSize);
  const Axis effect = EffectDAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = {"means", "sds", "correlation", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30 --chart n"},
      {.name = "n",
       .axes = {size},
       .needs = {"mean-difference", "sd-difference", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --mean-difference 4 --sd-difference 8 --n 44 --chart n --from 10 --to 100",
       .isAnotherWay = true},
      {.name = "n",
       .axes = {size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --chart n"},
      {.name = "effect",
       .axes = {effect},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --chart effect --from 0 --to 1"},
      {.name = "effect-n",
       .axes = {effect, size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --one-sided --chart effect-n --from 0,5 --to 1,80"},
  };
}

}  // namespace

Test PairedMeansTest() {
  Test test{.name = "paired-means",
            .title = "Paired-samples t test of means",
            .about = "Tests whether two measurements on the same units have the same mean.",
            .counted = "pairs"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-d", .label = "effect size d", .needs = {"means", "sds", "correlation"}, .call = EffectSize},
      {.name = "effect-d", .label = "effect size d", .needs = {"mean-difference", "sd-difference"}, .call = EffectSize},
  };
  test.charts = Charts();
  AddWordsOfPairedMeans(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
