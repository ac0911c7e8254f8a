#include "catalogue/effects_inputs.h"

#include <cmath>

namespace planner {

namespace core = kelpower::effects;

double TwoSizes::TPerD() const { return 1 / std::sqrt(1 / first + 1 / second); }

std::optional<TwoSizes> SizesOf(const Inputs& in) {
  if (in.Has("n")) return TwoSizes{in.List("n").front(), in.List("n").back()};
  if (!in.Has("t")) return std::nullopt;
  const double each = (in.List("df").front() + 2) / 2;
  return TwoSizes{each, each};
}

std::optional<double> SizeOf(const Inputs& in) {
  if (in.Has("n")) return in.List("n").front();
  if (in.Has("t")) return in.List("df").front() + 1;
  return std::nullopt;
}

TwoSds SdsOf(const Inputs& in) { return {in.List("sd").front(), in.List("sd").back()}; }

double DifferenceOf(const Inputs& in) {
  if (in.Has("mean-difference")) return in.Number("mean-difference");
  return in.List("means")[0] - in.List("means")[1];
}

double FSquaredOf(const Inputs& in) {
  if (in.Has("f-statistic")) return in.Number("f-statistic") * (in.List("df")[0] / in.List("df")[1]);
  if (in.Has("effect-f")) return in.Number("effect-f") * in.Number("effect-f");
  if (in.Has("effect-f2")) return in.Number("effect-f2");
  return core::FSquaredOfEtaSquared(in.Number(in.Has("r-squared") ? Name("r-squared") : Name("eta-squared")));
}

std::optional<core::FStatistic> FTestOf(const Inputs& in) {
  core::FStatistic test{};
  if (in.Has("df")) {
    test = {.f = 0, .df1 = in.List("df")[0], .df2 = in.List("df")[1], .size = 0};
    test.size = in.Has("n") ? in.List("n").front() : test.df1 + test.df2 + 1;
  } else if (in.Has("predictors")) {
    const double predictors = in.Number("predictors");
    const double size = in.List("n").front();
    test = {.f = 0, .df1 = predictors, .df2 = size - predictors - 1, .size = size};
  } else {
    return std::nullopt;
  }
  test.f = in.Has("f-statistic") ? in.Number("f-statistic") : FSquaredOf(in) * (test.df2 / test.df1);
  return test;
}

TwoProportions ProportionsOf(const Inputs& in) {
  if (in.Has("proportions")) return {in.List("proportions")[0], in.List("proportions")[1]};
  if (!in.Has("proportion1")) {
    const TwoEventCounts counts = *EventCountsOf(in);
    return {counts.first.Proportion(), counts.second.Proportion()};
  }
  const double first = in.Number("proportion1");
  if (in.Has("risk-difference")) return {first, first + in.Number("risk-difference")};
  if (in.Has("risk-ratio")) return {first, first * in.Number("risk-ratio")};
  if (in.Has("odds-ratio")) return {first, core::ProportionOfOddsRatio(in.Number("odds-ratio"), first)};
  const double root = std::sin(std::asin(std::sqrt(first)) + in.Number("effect-h") / 2);
  return {first, root * root};
}

std::optional<TwoEventCounts> EventCountsOf(const Inputs& in) {
  if (in.Has("counts")) {
    const Numbers& counts = in.List("counts");
    return TwoEventCounts{{counts[0], counts[0] + counts[1]}, {counts[2], counts[2] + counts[3]}};
  }
  if (!in.Has("n")) return std::nullopt;
  const double n1 = in.List("n").front();
  const double n2 = in.List("n").back();
  if (in.Has("events")) return TwoEventCounts{{in.List("events")[0], n1}, {in.List("events")[1], n2}};
  const auto [p1, p2] = ProportionsOf(in);
  return TwoEventCounts{{p1 * n1, n1}, {p2 * n2, n2}};
}

EffectValue ValueOr(const std::optional<core::Estimate>& estimate, double value) {
  if (!estimate) return {value};
  return {value, ConfidenceLimits{estimate->interval.lower, estimate->interval.upper}};
}

EffectValue GivenOr(Name name, double computed, OfCounts estimated, const Inputs& in) {
  const double value = in.Has(name) ? in.Number(name) : computed;
  const std::optional<TwoEventCounts> counts = EventCountsOf(in);
  return ValueOr(counts ? estimated(counts->second, counts->first, in.Alpha()) : std::nullopt, value);
}

}  // namespace planner
