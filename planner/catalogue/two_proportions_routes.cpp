#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/two_proportions.h"
#include "catalogue/unknowns.h"
#include "proportions/independent_interval.h"
#include "proportions/independent_power.h"
#include "proportions/independent_sizes.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;
using proportions::TwoProportionTest;

// A search takes some hundred powers, and the work of the conditional test grows with the square of the size.
constexpr double largestExactSearch = 5000;

// Rounding in the sum over the tables must not keep a search from its target.
constexpr double largestExactPower = 0.9999;

proportions::IndependentDesign DesignOf(const Inputs& in) {
  return {TestOf(in),       IsExact(in), in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
          in.Flag("pooled")};
}

/// The stop request of the conditional test. The other exact tests ask it once a table, which takes up to some hundred
/// times as long as their power; they end in a tenth of a second without it.
kelpower::Stop StopOfTables(const Inputs& in) { return IsConditional(in) ? StopOf(in) : kelpower::Stop(); }

/// The power; designs that differ in their proportions alone share the test, which keeps its rejection region.
class PowerOfTwoProportions {
public:
  double operator()(const Inputs& in) {
    const proportions::IndependentDesign design = DesignOf(in);
    const Numbers& n = in.List("n");
    const auto& [test, isExact, isOneSided, alpha, isCorrected, isPooled] = design;
    const Kept<proportions::IndependentPower, 8>::Key key{
        double(test), double(isExact), double(isOneSided), alpha, double(isCorrected), double(isPooled), n[0], n[1]};
    proportions::IndependentPower& power = kept_.For(key, design, n[0], n[1]);
    return OrNaN(power.At(FirstProportion(in), SecondProportion(in), StopOfTables(in)));
  }

private:
  Kept<proportions::IndependentPower, 8> kept_;
};

proportions::IndependentSizes WantedOf(const Inputs& in) {
  return {FirstProportion(in), SecondProportion(in), in.Number("ratio")};
}

Numbers LargeSampleSizes(const Inputs& in, TwoProportionTest test) {
  constexpr double smallestSecond = 1;
  proportions::IndependentDesign design = DesignOf(in);
  design.test = test;
  design.isExact = false;
  const proportions::IndependentSizes wanted = WantedOf(in);
  return RoundedUp(proportions::FirstSizeForPower(design, wanted, in.Number("power")), wanted.ratio, smallestSecond);
}

Numbers ExactSizes(const Inputs& in) {
  const proportions::IndependentSizes wanted = WantedOf(in);
  const auto first = proportions::FirstSizeForPower(DesignOf(in), wanted, in.Number("power"), StopOfTables(in));
  return first ? Numbers{*first, proportions::WholeSecondSize(wanted.ratio, *first)} : Numbers{};
}

Numbers Sizes(const Inputs& in) { return IsExact(in) ? ExactSizes(in) : LargeSampleSizes(in, TestOf(in)); }

/// The large-sample sizes tell whether an exact search is short enough to start.
bool IsShortSearch(const Inputs& in) {
  if (!IsExact(in)) return true;
  const Numbers sizes = LargeSampleSizes(in, IsConditional(in) ? TwoProportionTest::Z : TestOf(in));
  return !sizes.empty() && std::max(sizes[0], sizes[1]) <= largestExactSearch;
}

proportions::IndependentInterval IntervalOf(const Inputs& in) {
  return proportions::IndependentInterval({IndependentMethod(in.Choice("interval-method")), FirstProportion(in),
                                           SecondProportion(in), in.Alpha(), in.Flag("continuity-correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.List("n")[0], in.List("n")[1]); }

Numbers SizesForHalfWidth(const Inputs& in) {
  constexpr double smallestSecond = 2;
  const double ratio = in.Number("ratio");
  return RoundedUp(IntervalOf(in).FirstSizeFor(in.Number("half-width"), ratio, StopOf(in)), ratio, smallestSecond);
}

bool HasSecond(const Inputs& in) { return SecondProportion(in) > 0 && SecondProportion(in) < 1; }

bool ExactWhereItCanBe(const Inputs& in) { return !in.Flag("exact") || TestOf(in) != TwoProportionTest::Arcsine; }

bool PooledWhereItCanBe(const Inputs& in) {
  if (!in.Flag("pooled") || TestOf(in) == TwoProportionTest::T) return true;
  return TestOf(in) == TwoProportionTest::Z && !IsExact(in);
}

bool AsksForInterval(const Inputs& in) { return in.Has("half-width") || in.Flag("interval"); }

bool CorrectsATestThatCanBe(const Inputs& in) {
  return AsksForInterval(in) || !in.Flag("continuity-correction") || TestOf(in) == TwoProportionTest::Z;
}

bool CorrectsAnIntervalThatCanBe(const Inputs& in) {
  if (!AsksForInterval(in) || !in.Flag("continuity-correction")) return true;
  const auto method = IndependentMethod(in.Choice("interval-method"));
  return method == IndependentMethod::Wald || method == IndependentMethod::Newcombe;
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
bool LeavesArcsineItsCorrection(const Inputs& in) {
  return TestOf(in) != TwoProportionTest::Arcsine || !std::isnan(PowerOfTwoProportions()(in));
}

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
                      .value = PowerOfTwoProportions()});
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

std::vector<Unknown> UnknownsOfTwoProportions() {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr const char* reason = "the more the proportions differ, the more tables are in the critical region";
  return {
      {.input = "risk-difference",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, in.Number("proportion1")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("proportion1") - 1, 0};
       }},
      {.input = "risk-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs&) -> Piece {
         return {1, infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("proportion1"), 1};
       }},
      {.input = "odds-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs&) -> Piece {
         return {1, infinity};
       },
       .pieceBelow = [](const Inputs&) -> Piece {
         return {0, 1};
       }},
      UnknownRatio(),
  };
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
