#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/tukey.h"
#include "comparisons/tukey.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

/// The test is kept: a number that is solved for, and the points of a chart, share its critical value.
class Powers {
public:
  double operator()(const Inputs& in) {
    const Numbers& n = in.List("n");
    const double df = TotalSize(in) - in.Groups();
    const comparisons::TukeyTest& test = kept_.For({double(in.Groups()), df, in.Alpha()}, in.Groups(), df, in.Alpha());
    if (!IsAboutOnePair(in)) return OrNaN(test.PowerOfAnyPair(InStandardErrors(MeansOfTukey(in), n.front())));
    const AskedPair pair = PairOf(in);
    return OrNaN(
        test.PowerOfPair(comparisons::NoncentralityOfPair(EffectOfTukeyPair(in), n[pair.first], n[pair.second])));
  }

private:
  static Numbers InStandardErrors(Numbers means, double size) {
    const double first = means.front();
    for (double& mean : means) mean = (mean - first) * std::sqrt(size);
    return means;
  }

  Kept<comparisons::TukeyTest, 3> kept_;
};

double HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  const AskedPair pair = PairOf(in);
  return comparisons::HalfWidthOfPair(in.Number("sd"), n[pair.first], n[pair.second], in.Groups(), TotalSize(in),
                                      in.Alpha());
}

}  // namespace

std::vector<Route> RoutesOfTukey() {
  return {
      {.question = Question::Power, .needs = {"means", "sd", "n"}, .accepts = {"groups", "pair"}, .value = Powers()},
      {.question = Question::Power, .needs = {"effect-d", "n"}, .accepts = {"groups", "pair"}, .value = Powers()},
      {.question = Question::SampleSize, .needs = {"means", "sd"}, .accepts = {"ratios", "groups", "pair"}},
      {.question = Question::SampleSize, .needs = {"effect-d"}, .accepts = {"ratios", "groups", "pair"}},
      {.question = Question::HalfWidth, .needs = {"pair", "sd", "n"}, .accepts = {"groups"}, .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth, .needs = {"pair", "sd"}, .accepts = {"ratios", "groups"}},
  };
}

}  // namespace planner
