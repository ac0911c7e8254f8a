#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/two_proportions.h"
#include "kelpower.h"

namespace planner {
namespace {

constexpr int wald = 0;
constexpr int newcombe = 5;

// A search takes some hundred powers, and the work of the conditional test grows with the square of the size.
constexpr double largestExactSearch = 5000;

// Rounding in the sum over the tables must not keep a search from its target.
constexpr double largestExactPower = 0.9999;

/// The stop request of the conditional test. The other exact tests ask it once a table, which takes up to some hundred
/// times as long as their power; they end in a tenth of a second without it.
StopRequest* StopOfTables(const Inputs& in) { return IsConditional(in) ? in.Stop() : nullptr; }

double Power(const Inputs& in) {
  const Numbers& n = in.List("n");
  return PowerIndSampBinom(n[0], n[1], FirstProportion(in), SecondProportion(in), IsExact(in), in.Choice("test"),
                           in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"), in.Flag("pooled"),
                           StopOfTables(in));
}

Numbers FoundSizes(const Inputs& in, bool exact, int method) {
  Numbers sizes;
  PowerReverseIndSampBinom(in.Number("power"), FirstProportion(in), SecondProportion(in), sizes, in.Number("ratio"),
                           exact, method, in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                           in.Flag("pooled"), exact ? StopOfTables(in) : nullptr);
  return sizes;
}

/// The library squares the first size in the second one where all of these flags are set, so it is made here instead.
Numbers LargeSampleSizes(const Inputs& in, int method) {
  Numbers sizes = FoundSizes(in, false, method);
  if (method == zTest && in.Flag("one-sided") && in.Flag("continuity-correction") && in.Flag("pooled")) {
    sizes[1] = std::ceil(in.Number("ratio") * sizes[0]);
  }
  return sizes;
}

Numbers Sizes(const Inputs& in) {
  return IsExact(in) ? FoundSizes(in, true, in.Choice("test")) : LargeSampleSizes(in, in.Choice("test"));
}

/// The large-sample sizes tell whether an exact search is short enough to start.
bool IsShortSearch(const Inputs& in) {
  if (!IsExact(in)) return true;
  const Numbers sizes = LargeSampleSizes(in, IsConditional(in) ? zTest : in.Choice("test"));
  return std::all_of(sizes.begin(), sizes.end(), [](double size) { return size > 0 && size <= largestExactSearch; });
}

double HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  return HalfCIIndSampBinom(n[0], n[1], FirstProportion(in), SecondProportion(in), in.Choice("interval-method"),
                            in.Alpha(), in.Flag("continuity-correction"));
}

Numbers SizesForHalfWidth(const Inputs& in) {
  Numbers sizes;
  PowerReversebyHalfCIIndSampBinom(in.Number("half-width"), FirstProportion(in), SecondProportion(in), sizes,
                                   in.Number("ratio"), in.Choice("interval-method"), in.Alpha(),
                                   in.Flag("continuity-correction"), in.Stop());
  return sizes;
}

bool HasSecond(const Inputs& in) { return SecondProportion(in) > 0 && SecondProportion(in) < 1; }

bool ExactWhereItCanBe(const Inputs& in) { return !in.Flag("exact") || in.Choice("test") != arcsineTest; }

bool PooledWhereItCanBe(const Inputs& in) {
  if (!in.Flag("pooled") || in.Choice("test") == tTest) return true;
  return in.Choice("test") == zTest && !IsExact(in);
}

bool AsksForInterval(const Inputs& in) { return in.Has("half-width") || in.Flag("interval"); }

bool CorrectsATestThatCanBe(const Inputs& in) {
  return AsksForInterval(in) || !in.Flag("continuity-correction") || in.Choice("test") == zTest;
}

bool CorrectsAnIntervalThatCanBe(const Inputs& in) {
  if (!AsksForInterval(in) || !in.Flag("continuity-correction")) return true;
  return in.Choice("interval-method") == wald || in.Choice("interval-method") == newcombe;
}

bool CanCountTables(const Inputs& in) {
  const Numbers& n = in.List("n");
  return !IsExact(in) || std::max(n[0], n[1]) <= largestExactGroup;
}

bool ExactCanReach(const Inputs& in) {
  const double power = in.Number("power");
  return !IsExact(in) || (power >= in.Alpha() && power <= largestExactPower);
}

/// Half an observation is moved between the outcomes of each group.
bool LeavesArcsineItsCorrection(const Inputs& in) { return in.Choice("test") != arcsineTest || Power(in) != -1; }

}  // namespace

std::vector<Route> RoutesOfTwoProportions() {
  const Names testing = OptionsOfTwoProportions();
  const Names interval{"interval-method", "continuity-correction"};
  std::vector<Route> routes;
  for (const Names& effect : EffectsOfTwoProportions()) {
    routes.push_back({.question = Question::Power,
                      .needs = With(effect, "n"),
                      .accepts = testing,
                      .exportName = "PowerIndSampBinom",
                      .value = Power});
    routes.push_back({.question = Question::SampleSize,
                      .needs = effect,
                      .accepts = With(testing, "ratio"),
                      .exportName = "PowerReverseIndSampBinom",
                      .sizes = Sizes});
    routes.push_back({.question = Question::HalfWidth,
                      .needs = With(effect, "n"),
                      .accepts = interval,
                      .exportName = "HalfCIIndSampBinom",
                      .value = HalfWidth});
    routes.push_back({.question = Question::SampleSizeForHalfWidth,
                      .needs = effect,
                      .accepts = With(interval, "ratio"),
                      .exportName = "PowerReversebyHalfCIIndSampBinom",
                      .sizes = SizesForHalfWidth});
  }
  return routes;
}

std::vector<Condition> ConditionsOfTwoProportions() {
  return {
      {.code = "second-proportion",
       .about = {"proportion1", "risk-difference"},
       .holds = HasSecond,
       .sentence = "{risk-difference} puts the second proportion outside 0 to 1."},
      {.code = "second-proportion",
       .about = {"proportion1", "risk-ratio"},
       .holds = HasSecond,
       .sentence = "{risk-ratio} puts the second proportion outside 0 to 1."},
      {.code = "second-proportion",
       .about = {"proportion1", "odds-ratio"},
       .holds = HasSecond,
       .sentence = "{odds-ratio} puts the second proportion at 0 or 1."},
      {.code = "exact-arcsine",
       .about = {"exact", "test"},
       .holds = ExactWhereItCanBe,
       .sentence = "{exact} does not go with {test} arcsine: its exact form is {test} conditional."},
      {.code = "pooled-test",
       .about = {"pooled", "test", "exact"},
       .holds = PooledWhereItCanBe,
       .sentence =
           "{pooled} goes with the t test and the large-sample z test only; the exact z test is always pooled."},
      {.code = "corrected-test",
       .about = {"continuity-correction", "test"},
       .holds = CorrectsATestThatCanBe,
       .sentence = "{continuity-correction} goes with the z test only."},
      {.code = "corrected-interval",
       .about = {"continuity-correction", "interval-method"},
       .holds = CorrectsAnIntervalThatCanBe,
       .sentence = "{continuity-correction} goes with the intervals wald and newcombe only."},
      {.code = "exact-size",
       .about = {"n"},
       .holds = CanCountTables,
       .sentence = "{n} of an exact test must be at most 10000."},
      {.code = "exact-power",
       .about = {"power", "alpha"},
       .holds = ExactCanReach,
       .sentence = "{power} of an exact test must be from {alpha} to 0.9999."},
      {.code = "arcsine-size",
       .about = {"n"},
       .holds = LeavesArcsineItsCorrection,
       .sentence =
           "{n} is too small for the arcsine test: each group must expect at least half an observation of the outcome "
           "that is more frequent in it than in the other."},
  };
}

std::vector<Condition> SizeExistsForTwoProportions() {
  return {
      {.code = "no-effect",
       .about = {"power"},
       .holds = [](const Inputs& in) { return FirstProportion(in) != SecondProportion(in); },
       .sentence = "The two proportions are equal: without a difference, no sample size reaches the power."},
      {.code = "long-search",
       .about = {"power"},
       .holds = IsShortSearch,
       .sentence =
           "Exact tests are searched up to about 5000 observations in a group: use a large-sample test for more."},
  };
}

}  // namespace planner
