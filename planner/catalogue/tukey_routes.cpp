#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/tukey.h"
#include "comparisons/tukey.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

double Power(const Inputs& in) {
  const Numbers& n = in.List("n");
  if (!IsAboutOnePair(in)) return OrNaN(comparisons::PowerOfAnyPair(MeansOfTukey(in), n.front(), in.Alpha()));
  const AskedPair pair = PairOf(in);
  return OrNaN(comparisons::PowerOfPair(EffectOfTukeyPair(in), n[pair.first], n[pair.second], in.Groups(),
                                        TotalSize(in), in.Alpha()));
}

double HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  const AskedPair pair = PairOf(in);
  return comparisons::HalfWidthOfPair(in.Number("sd"), n[pair.first], n[pair.second], in.Groups(), TotalSize(in),
                                      in.Alpha());
}

}  // namespace

std::vector<Route> RoutesOfTukey() {
  return {
      {.question = Question::Power, .needs = {"means", "sd", "n"}, .accepts = {"groups", "pair"}, .value = Power},
      {.question = Question::Power, .needs = {"effect-d", "n"}, .accepts = {"groups", "pair"}, .value = Power},
      {.question = Question::SampleSize, .needs = {"means", "sd"}, .accepts = {"ratios", "groups", "pair"}},
      {.question = Question::SampleSize, .needs = {"effect-d"}, .accepts = {"ratios", "groups", "pair"}},
      {.question = Question::HalfWidth, .needs = {"pair", "sd", "n"}, .accepts = {"groups"}, .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth, .needs = {"pair", "sd"}, .accepts = {"ratios", "groups"}},
  };
}

}  // namespace planner
