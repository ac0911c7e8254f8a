#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "kelpower.h"
#include "planner/error.h"
#include "two_proportions.h"
#include "window.h"

namespace planner {
namespace {

using Names = std::vector<std::string>;

constexpr double mostObservations = 1e9;

// Steps of an exact test take a few nanoseconds each.
constexpr double mostSteps = 5e9;
constexpr double usualSteps = 3e8;

/// About how many steps an exact power takes: the conditional test goes over tables, the others over rows.
double StepsOfPower(const Inputs& in, double n1, double n2) {
  constexpr double stepsOfRow = 10;
  return IsConditional(in) ? n1 * n2 : stepsOfRow * (n1 + n2);
}

/// The exports of charts cannot be stopped, so none is started that would take long.
void RefuseLongChart(const Inputs& in, double powers, double n1, double n2) {
  if (!IsExact(in) || powers * StepsOfPower(in, n1, n2) <= mostSteps) return;
  throw InputError(
      "The chart of an exact test takes too long with so many points and sizes this large: give a larger --step, bring "
      "--from and --to closer together, or draw a large-sample test.");
}

double PointsOfStep(double step) { return 1 / step + 1; }

double Size1(const Inputs& in) { return in.List("n")[0]; }

double Size2(const Inputs& in) { return in.List("n")[1]; }

double Total(const Inputs& in) { return Size1(in) + Size2(in); }

double SizeRatio(const Inputs& in) { return Size2(in) / Size1(in); }

Range AllowedSizes(const Inputs& in) { return {2, IsExact(in) ? largestExactGroup : mostObservations}; }

/// The export draws every fifth size of 251 or more, and every tenth of 1002 or more.
double Spacing(const Range& sizes) {
  const double count = sizes.to - sizes.from + 1;
  if (count < 251) return 1;
  return count < 1002 ? 5 : 10;
}

/// How far the usual range of sizes goes at most: so far that 250 of them are drawn, and that an exact test takes a
/// second or so.
double Reach(const Inputs& in) {
  constexpr double farthest = 1245;
  constexpr double nearest = 2;
  if (!IsExact(in)) return farthest;
  const double side = std::sqrt(usualSteps / StepsOfPower(in, Size1(in), Size2(in)));
  return std::clamp(std::floor(side / 2), nearest, farthest);
}

Range SizesAroundGroup(const Inputs& in, double size) {
  const Range around = SizesAround(size, AllowedSizes(in));
  const double reach = Reach(in);
  return {std::max(around.from, size - reach), std::min(around.to, size + reach)};
}

/// Four times to either side of the design and of `neutral`, as far as `allowed` goes.
Range RatiosAround(double design, const Range& allowed) {
  constexpr double neutral = 1;
  return {std::max(std::min(design, neutral) / 4, allowed.from), std::min(std::max(design, neutral) * 4, allowed.to)};
}

/// Each group keeps one observation.
Range AllowedSizeRatios(const Inputs& in) { return {1 / (Total(in) - 1), Total(in) - 1}; }

void CheckSizeRatios(const Inputs& in, const Range& ratios) {
  const Range allowed = AllowedSizeRatios(in);
  if (ratios.from >= allowed.from && ratios.to <= allowed.to) return;
  throw InputError(fmt::format(
      "--from and --to are {0} and {1}, but with {2} observations in all a ratio must be from 1/{3} to {3}.",
      Shortest(ratios.from), Shortest(ratios.to), Shortest(Total(in)), Shortest(allowed.to)));
}

constexpr double largestEffectRatio = 10;  // that the exports draw
constexpr double smallestOddsRatio = 0.1;  // likewise
constexpr double largestSecond = 0.99;     // where the usual range of risk ratios starts

Range RiskRatiosAroundDesign(const Inputs& in) {
  const double smallest = std::min(FirstProportion(in) / largestSecond, RiskRatio(in));
  return RatiosAround(RiskRatio(in), {smallest, largestEffectRatio});
}

void CheckRiskDifferences(const Inputs& in, const Range& differences) {
  const double highest = FirstProportion(in);
  const double lowest = highest - 1;
  if (differences.from < highest && differences.to > lowest) return;
  throw InputError(fmt::format(
      "--from and --to are {} and {}, but with a first proportion of {} a risk difference lies between {:.4g} "
      "and {:.4g}.",
      Shortest(differences.from), Shortest(differences.to), Shortest(highest), lowest, highest));
}

void CheckRiskRatios(const Inputs& in, const Range& ratios) {
  if (ratios.from > FirstProportion(in)) return;
  throw InputError(fmt::format("--from is {}, but a risk ratio must be above the first proportion, which is {}.",
                               Shortest(ratios.from), Shortest(FirstProportion(in))));
}

Axis GroupSizeAxis(std::string title, std::string symbol, double (*design)(const Inputs&),
                   Range (*usual)(const Inputs&)) {
  return {std::move(title), std::move(symbol), {2, mostObservations, true, true, true}, design, usual, Spacing};
}

Axis ProportionAxis(std::string title, std::string symbol, double (*design)(const Inputs&)) {
  const auto all = [](const Inputs&) -> Range { return {0, 1}; };
  return {std::move(title), std::move(symbol), {0, 1, true, true, false}, design, all};
}

/// A chart, whichever way the proportions are given.
struct Drawing {
  std::string name;
  std::vector<Axis> axes;
  std::string exportName;
  std::string options;  // of its examples
  Series (*call)(const Inputs&, const Ranges&);
};

Drawing OverSizes() {
  const Axis size1 = GroupSizeAxis("size of the first group (observations)", "n1", Size1,
                                   [](const Inputs& in) { return SizesAroundGroup(in, Size1(in)); });
  const Axis size2 = GroupSizeAxis("size of the second group (observations)", "n2", Size2,
                                   [](const Inputs& in) { return SizesAroundGroup(in, Size2(in)); });
  const auto call = [](const Inputs& in, const Ranges& r) {
    CheckSizes(r.x, AllowedSizes(in));
    CheckSizes(r.y, AllowedSizes(in));
    const double powers = ((r.x.to - r.x.from) / Spacing(r.x) + 1) * ((r.y.to - r.y.from) / Spacing(r.y) + 1);
    RefuseLongChart(in, powers, (r.x.from + r.x.to) / 2, (r.y.from + r.y.to) / 2);
    // An upper end of 2500 stands for none given in the chart of the arcsine test.
    const auto end = [&](const Range& sizes) {
      return in.Choice("test") == arcsineTest && sizes.to == 2500 ? 2501 : sizes.Last();
    };
    return Cut(
        Surface(PlotNIndSampBinom(Size1(in), Size2(in), FirstProportion(in), SecondProportion(in), IsExact(in),
                                  in.Choice("test"), in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                                  in.Flag("pooled"), r.x.First(), end(r.x), r.y.First(), end(r.y))),
        r);
  };
  return {"sizes", {size1, size2}, "PlotNIndSampBinom", "--n 50,60", call};
}

// The export lays the grid over all proportions, which is then cut to the range; likewise that of risk differences.
Drawing OverProportions() {
  const Axis first = ProportionAxis("first proportion", "p1", FirstProportion);
  const Axis second = ProportionAxis("second proportion", "p2", SecondProportion);
  const auto call = [](const Inputs& in, const Ranges& r) {
    RefuseLongChart(in, PointsOfStep(r.step) * PointsOfStep(r.step), Size1(in), Size2(in));
    return Cut(Surface(PlotPropIndSampBinom(Size1(in), Size2(in), FirstProportion(in), SecondProportion(in),
                                            IsExact(in), in.Choice("test"), in.Flag("one-sided"), in.Alpha(),
                                            in.Flag("continuity-correction"), in.Flag("pooled"), r.step)),
               r);
  };
  return {"proportions", {first, second}, "PlotPropIndSampBinom", "--n 50 --test conditional --step 0.05", call};
}

Drawing OverSizeRatio() {
  const Axis ratio{"ratio of the sizes (second group over first)",
                   "ratio",
                   {0.001, 1000, true, true, false},
                   SizeRatio,
                   [](const Inputs& in) { return RatiosAround(SizeRatio(in), AllowedSizeRatios(in)); }};
  const auto call = [](const Inputs& in, const Ranges& r) {
    CheckSizeRatios(in, r.x);
    RefuseLongChart(in, PointsOfStep(r.step), Total(in) / 2, Total(in) / 2);
    return Curve(PlotNRatioIndSampBinom(Total(in), FirstProportion(in), SecondProportion(in), IsExact(in),
                                        in.Choice("test"), in.Flag("one-sided"), in.Alpha(),
                                        in.Flag("continuity-correction"), in.Flag("pooled"), r.x.from, r.x.to, r.step));
  };
  return {"ratio", {ratio}, "PlotNRatioIndSampBinom", "--n 40,80 --pooled", call};
}

Drawing OverRiskDifference() {
  const Axis difference{
      "risk difference (first minus second)", "difference", {-1, 1, true, true, false}, RiskDifference, nullptr};
  const auto call = [](const Inputs& in, const Ranges& r) {
    CheckRiskDifferences(in, r.x);
    RefuseLongChart(in, PointsOfStep(r.step), Size1(in), Size2(in));
    return Cut(Curve(PlotRiskDiffIndSampBinom(Size1(in), Size2(in), FirstProportion(in), IsExact(in), in.Choice("test"),
                                              in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                                              in.Flag("pooled"), r.step)),
               r);
  };
  return {"risk-difference", {difference}, "PlotRiskDiffIndSampBinom", "--n 50 --exact", call};
}

Drawing OverRiskRatio() {
  const Axis ratio{"risk ratio (first over second)",
                   "risk ratio",
                   {0, largestEffectRatio, false, true, false},
                   RiskRatio,
                   RiskRatiosAroundDesign};
  const auto call = [](const Inputs& in, const Ranges& r) {
    CheckRiskRatios(in, r.x);
    RefuseLongChart(in, PointsOfStep(r.step), Size1(in), Size2(in));
    return Curve(PlotRiskRatioIndSampBinom(Size1(in), Size2(in), FirstProportion(in), IsExact(in), in.Choice("test"),
                                           in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                                           in.Flag("pooled"), r.x.from, r.x.to, r.step));
  };
  return {"risk-ratio", {ratio}, "PlotRiskRatioIndSampBinom", "--n 90 --test likelihood-ratio", call};
}

Drawing OverOddsRatio() {
  const Axis ratio{"odds ratio (first over second)",
                   "odds ratio",
                   {smallestOddsRatio, largestEffectRatio, true, true, false},
                   OddsRatio,
                   [](const Inputs& in) {
                     return RatiosAround(OddsRatio(in), {smallestOddsRatio, largestEffectRatio});
                   }};
  const auto call = [](const Inputs& in, const Ranges& r) {
    RefuseLongChart(in, PointsOfStep(r.step), Size1(in), Size2(in));
    return Curve(PlotOddsRatioIndSampBinom(Size1(in), Size2(in), FirstProportion(in), IsExact(in), in.Choice("test"),
                                           in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                                           in.Flag("pooled"), r.x.from, r.x.to, r.step));
  };
  return {"odds-ratio", {ratio}, "PlotOddsRatioIndSampBinom", "--n 90 --one-sided", call};
}

/// Proportions for the examples, in the order of the effects.
const char* const exampleEffects[] = {"--proportions 0.5,0.75", "--proportion1 0.5 --risk-difference -0.25",
                                      "--proportion1 0.6 --risk-ratio 1.5", "--proportion1 0.5 --odds-ratio 0.5"};

}  // namespace

std::vector<Chart> ChartsOfTwoProportions() {
  const std::vector<Names> effects = EffectsOfTwoProportions();
  std::vector<Chart> charts;
  for (const Drawing& drawing :
       {OverSizes(), OverProportions(), OverSizeRatio(), OverRiskDifference(), OverRiskRatio(), OverOddsRatio()}) {
    for (std::size_t i = 0; i < effects.size(); ++i) {
      const std::string example =
          fmt::format("two-proportions {} {} --chart {}", exampleEffects[i], drawing.options, drawing.name);
      charts.push_back({drawing.name, drawing.axes, With(effects[i], "n"), OptionsOfTwoProportions(),
                        drawing.exportName, example, drawing.call});
    }
  }
  return charts;
}

}  // namespace planner
