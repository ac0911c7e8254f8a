#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

constexpr double mostObservations = 1e9;

// A step of an exact test takes a few nanoseconds, so that this many take a second or so.
constexpr double usualSteps = 3e8;

/// About how many steps a power takes: the conditional test goes over tables, the other exact ones over rows.
double StepsOfPower(const Inputs& in) {
  constexpr double stepsOfRow = 10;
  const Numbers& n = in.List("n");
  if (!IsExact(in)) return 1;
  return IsConditional(in) ? n[0] * n[1] : stepsOfRow * (n[0] + n[1]);
}

double Size1(const Inputs& in) { return in.List("n")[0]; }
double Size2(const Inputs& in) { return in.List("n")[1]; }

Range AllowedSizes(const Inputs& in) { return {2, IsExact(in) ? largestExactGroup : mostObservations}; }

/// How far the usual range of sizes goes at most. At this distance 250 sizes are drawn, and an exact test takes a second
/// or so.
double Reach(const Inputs& in) {
  constexpr double farthest = 1245;
  constexpr double nearest = 2;
  if (!IsExact(in)) return farthest;
  return std::clamp(std::floor(std::sqrt(usualSteps / StepsOfPower(in)) / 2), nearest, farthest);
}

Range SizesAroundGroup(const Inputs& in, double size) {
  const Range around = SizesAround(size, AllowedSizes(in));
  const double reach = Reach(in);
  return {std::max(around.from, size - reach), std::min(around.to, size + reach)};
}

Axis Size1Axis() {
  return {.title = "size of the first group (observations)",
          .symbol = "n1",
          .limits = {2, mostObservations, true, true, true},
          .design = Size1,
          .vary = [](Inputs& in, const Inputs&, double at) { in.SetEntry("n", 0, at); },
          .usual = [](const Inputs& in, double) { return SizesAroundGroup(in, Size1(in)); },
          .refuse = [](const Inputs& in, const Range& sizes) { return RefuseSizes(sizes, AllowedSizes(in)); }};
}

Axis Size2Axis() {
  return {.title = "size of the second group (observations)",
          .symbol = "n2",
          .limits = {2, mostObservations, true, true, true},
          .design = Size2,
          .vary = [](Inputs& in, const Inputs&, double at) { in.SetEntry("n", 1, at); },
          .usual = [](const Inputs& in, double) { return SizesAroundGroup(in, Size2(in)); },
          .refuse = [](const Inputs& in, const Range& sizes) { return RefuseSizes(sizes, AllowedSizes(in)); }};
}

/// Gives the proportions themselves, whichever way they were given.
void SetProportions(Inputs& in, double first, double second) {
  for (Name name :
       {Name("proportion1"), Name("proportion2"), Name("risk-difference"), Name("risk-ratio"), Name("odds-ratio")}) {
    in.Erase(name);
  }
  if (!in.Has("proportions")) in.SetList("proportions", {first, second});
  in.SetEntry("proportions", 0, first);
  in.SetEntry("proportions", 1, second);
}

Axis FirstProportionAxis() {
  Axis axis = ProportionAxis("first proportion", "p1", "proportion1");
  axis.input.reset();
  axis.design = FirstProportion;
  axis.vary = [](Inputs& in, const Inputs& design, double at) { SetProportions(in, at, SecondProportion(design)); };
  return axis;
}

Axis SecondProportionAxis() {
  Axis axis = ProportionAxis("second proportion", "p2", "proportion2");
  axis.input.reset();
  axis.design = SecondProportion;
  axis.vary = [](Inputs& in, const Inputs&, double at) { SetProportions(in, FirstProportion(in), at); };
  return axis;
}

/// Four times to either side of the design and of `neutral`, as far as `allowed` goes.
Range RatiosAround(double design, const Range& allowed) {
  constexpr double neutral = 1;
  return {std::max(std::min(design, neutral) / 4, allowed.from), std::min(std::max(design, neutral) * 4, allowed.to)};
}

/// Each group keeps one observation.
Range AllowedSizeRatios(const Inputs& in) { return {1 / (TotalSize(in) - 1), TotalSize(in) - 1}; }

std::optional<Problem> RefuseSizeRatios(const Inputs& in, const Range& ratios) {
  const Range allowed = AllowedSizeRatios(in);
  if (ratios.from >= allowed.from && ratios.to <= allowed.to) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"from", "to"},
                 .values = {ratios.from, ratios.to, TotalSize(in), allowed.to},
                 .sentence =
                     "{from} and {to} are <0> and <1>, but with <2> observations in all a ratio must be from 1/<3> to "
                     "<3>."};
}

Axis RatioAxis() {
  Axis axis =
      SizeRatioAxis([](const Inputs& in, double) { return RatiosAround(SizeRatio(in), AllowedSizeRatios(in)); });
  axis.refuse = RefuseSizeRatios;
  return axis;
}

/// What the second proportion leaves.
Range AllRiskDifferences(const Inputs& in) { return {-FirstProportion(in), 1 - FirstProportion(in)}; }

double ToFourDigits(double value) {
  constexpr double scale = 1e4;
  return std::round(value * scale) / scale;
}

std::optional<Problem> RefuseRiskDifferences(const Inputs& in, const Range& differences) {
  const Range all = AllRiskDifferences(in);
  if (differences.from < all.to && differences.to > all.from) return std::nullopt;
  return Problem{
      .code = Code::ChartRangeRefused,
      .inputs = {"from", "to"},
      .values = {differences.from, differences.to, FirstProportion(in), ToFourDigits(all.from), ToFourDigits(all.to)},
      .sentence =
          "{from} and {to} are <0> and <1>, but with a first proportion of <2> a risk difference lies "
          "between <3> and <4>."};
}

void KeepFirst(Inputs& in, const Inputs& design, double second) { SetProportions(in, FirstProportion(design), second); }

Axis RiskDifferenceAxis() {
  return {
      .title = "risk difference (second minus first)",
      .symbol = "difference",
      .limits = {-1, 1, true, true, false},
      .design = RiskDifference,
      .vary = [](Inputs& in, const Inputs& design, double at) { KeepFirst(in, design, FirstProportion(design) + at); },
      .usual = [](const Inputs& in, double) { return AllRiskDifferences(in); },
      .scale = AllRiskDifferences,
      .scaleEnds = ScaleEnds::None,
      .stepIsOfScale = true,
      .refuse = RefuseRiskDifferences};
}

constexpr double largestEffectRatio = 10;
constexpr double smallestOddsRatio = 0.1;
constexpr double largestSecond = 0.99;  // where the usual range of risk ratios ends

Range RiskRatiosAroundDesign(const Inputs& in, double) {
  const double largest = std::max(largestSecond / FirstProportion(in), RiskRatio(in));
  return RatiosAround(RiskRatio(in), {0, std::min(largest, largestEffectRatio)});
}

std::optional<Problem> RefuseRiskRatios(const Inputs& in, const Range& ratios) {
  if (ratios.to * FirstProportion(in) < 1) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"to"},
                 .values = {ratios.to, FirstProportion(in)},
                 .sentence =
                     "{to} is <0>, but a risk ratio must be below one over the first proportion, which is "
                     "<1>."};
}

Axis RiskRatioAxis() {
  return {
      .title = "risk ratio (second over first)",
      .symbol = "risk ratio",
      .limits = {0, largestEffectRatio, false, true, false},
      .design = RiskRatio,
      .vary = [](Inputs& in, const Inputs& design, double at) { KeepFirst(in, design, FirstProportion(design) * at); },
      .usual = RiskRatiosAroundDesign,
      .refuse = RefuseRiskRatios};
}

Axis OddsRatioAxis() {
  return {.title = "odds ratio (second over first)",
          .symbol = "odds ratio",
          .limits = {smallestOddsRatio, largestEffectRatio, true, true, false},
          .design = OddsRatio,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { KeepFirst(in, design, SecondOfOddsRatio(FirstProportion(design), at)); },
          .usual =
              [](const Inputs& in, double) {
                return RatiosAround(OddsRatio(in), {smallestOddsRatio, largestEffectRatio});
              }};
}

/// A chart, whichever way the proportions are given.
struct Drawing {
  std::string name;
  std::vector<Axis> axes;
  std::string options;  // of its examples
};

/// Proportions for the examples, in the order of the effects.
const char* const exampleEffects[] = {"--proportions 0.5,0.75", "--proportion1 0.5 --proportion2 0.75",
                                      "--proportion1 0.5 --risk-difference 0.25", "--proportion1 0.6 --risk-ratio 1.5",
                                      "--proportion1 0.5 --odds-ratio 0.5"};

}  // namespace

std::vector<Chart> ChartsOfTwoProportions() {
  const std::vector<Drawing> drawings = {
      {"sizes", {Size1Axis(), Size2Axis()}, "--n 50,60"},
      {"proportions", {FirstProportionAxis(), SecondProportionAxis()}, "--n 50 --method conditional --step 0.05"},
      {"ratio", {RatioAxis()}, "--n 40,80 --pooled"},
      {"risk-difference", {RiskDifferenceAxis()}, "--n 50 --exact"},
      {"risk-ratio", {RiskRatioAxis()}, "--n 90 --method likelihood-ratio"},
      {"odds-ratio", {OddsRatioAxis()}, "--n 90 --one-sided"},
  };
  const std::vector<Names> effects = EffectsOfTwoProportions();
  std::vector<Chart> charts;
  for (const Drawing& drawing : drawings) {
    for (std::size_t i = 0; i < effects.size(); ++i) {
      const std::string example =
          std::string("two-proportions ") + exampleEffects[i] + " " + drawing.options + " --chart " + drawing.name;
      charts.push_back({.name = drawing.name,
                        .axes = drawing.axes,
                        .needs = With(effects[i], "n"),
                        .accepts = OptionsOfTwoProportions(),
                        .example = example,
                        .isAnotherWay = i > 0,
                        .steps = StepsOfPower});
    }
  }
  return charts;
}

}  // namespace planner
