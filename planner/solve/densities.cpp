#include "solve/densities.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "frame/density.h"

namespace planner {
namespace {

using Function = std::function<double(double)>;

constexpr int pointsOfDensity = 401;
constexpr double tail = 0.001;  // of each distribution beyond the picture

/// A distribution function, and the values it has.
struct Distribution {
  Function below;
  double start;  // of its values; minus infinity for all numbers
};

struct Span {
  double from;
  double to;
};

Distribution OfT(double df, double noncentrality) {
  return {[=](double x) { return kelpower::TBelow(x, df, noncentrality); }, -HUGE_VAL};
}

Distribution OfF(double df1, double df2, double noncentrality) {
  return {[=](double x) { return x > 0 ? kelpower::FBelow(x, df1, df2, noncentrality) : 0.0; }, 0};
}

Distribution OfNormal(double mean, double sd) {
  return {[=](double x) { return kelpower::NormalBelow(x, mean, sd); }, -HUGE_VAL};
}

Distribution Without(const TestStatistic& of) {
  if (of.family == StatisticFamily::T) return OfT(of.df1, 0);
  return of.family == StatisticFamily::F ? OfF(of.df1, of.df2, 0) : OfNormal(0, 1);
}

Distribution With(const TestStatistic& of) {
  if (of.family == StatisticFamily::T) return OfT(of.df1, of.noncentrality);
  return of.family == StatisticFamily::F ? OfF(of.df1, of.df2, of.noncentrality) : OfNormal(of.mean, of.sd);
}

/// Where the distribution function reaches `p`, as well as a picture needs.
double QuantileOf(const Distribution& distribution, double p) {
  constexpr int most = 60;
  double high = 1;
  for (int i = 0; i < most && distribution.below(high) < p; ++i) high *= 2;
  double low = std::max(-1.0, distribution.start);
  for (int i = 0; i < most && distribution.below(low) > p; ++i) low *= 2;
  for (int i = 0; i < most; ++i) {
    const double middle = low + (high - low) / 2;
    (distribution.below(middle) < p ? low : high) = middle;
  }
  return high;
}

/// Where either distribution has its values, and the test its critical ones.
Span SpanOf(const TestStatistic& of, const Distribution& without, const Distribution& with) {
  constexpr double margin = 1.05;
  Span span{std::min(QuantileOf(without, tail), QuantileOf(with, tail)),
            std::max(QuantileOf(without, 1 - tail), QuantileOf(with, 1 - tail))};
  if (std::isfinite(of.rejectsFrom)) span.to = std::max(span.to, of.rejectsFrom * margin);
  if (std::isfinite(of.rejectsTo)) span.from = std::min(span.from, of.rejectsTo * margin);
  if (without.start == 0) span.from = 0;
  return span;
}

/// A density that has no end at the start of its values begins a little above it.
double PointOf(const Span& span, double start, int i) {
  const double step = (span.to - span.from) / (pointsOfDensity - 1);
  return i == 0 && span.from == start ? span.from + step / 8 : span.from + step * i;
}

/// A thousandth of the distribution's width, that stays within its values.
double StepAt(const Distribution& distribution, double width, double x) {
  const double step = width * 1e-3;
  return distribution.start == 0 ? std::min(step, x / 4) : step;
}

double WidthOf(const Distribution& distribution) {
  return (QuantileOf(distribution, 0.84) - QuantileOf(distribution, 0.16)) / 2;
}

void AddPoints(Densities& densities, const TestStatistic& of, const Distribution& without, const Distribution& with) {
  const Span span = SpanOf(of, without, with);
  const double widthWithout = WidthOf(without);
  const double widthWith = WidthOf(with);
  const bool isNormal = of.family == StatisticFamily::Normal;
  for (int i = 0; i < pointsOfDensity; ++i) {
    const double x = PointOf(span, without.start, i);
    densities.x.push_back(x);
    densities.without.push_back(isNormal ? kelpower::NormalDensity(x, 0, 1)
                                         : kelpower::DensityOf(without.below, x, StepAt(without, widthWithout, x)));
    densities.with.push_back(isNormal ? kelpower::NormalDensity(x, of.mean, of.sd)
                                      : kelpower::DensityOf(with.below, x, StepAt(with, widthWith, x)));
  }
}

double AreaOf(const TestStatistic& of, const Distribution& distribution) {
  const double above = std::isfinite(of.rejectsFrom) ? 1 - distribution.below(of.rejectsFrom) : 0;
  return above + (std::isfinite(of.rejectsTo) ? distribution.below(of.rejectsTo) : 0);
}

std::optional<double> IfFinite(double number) { return std::isfinite(number) ? std::optional(number) : std::nullopt; }

double AreaOfCounts(const TestStatistic& of, double proportion) {
  return kelpower::BinomialBelow(of.rejectsTo, of.trials, proportion) + 1 -
         kelpower::BinomialBelow(of.rejectsFrom - 1, of.trials, proportion);
}

/// The counts that either distribution has with a probability worth drawing.
Span SpanOfCounts(const TestStatistic& of) {
  constexpr double reach = 6;
  const auto reachOf = [&](double p) { return 1 + reach * std::sqrt(of.trials * p * (1 - p)); };
  const double low = std::min(of.trials * of.nullProportion - reachOf(of.nullProportion),
                              of.trials * of.proportion - reachOf(of.proportion));
  const double high = std::max(of.trials * of.nullProportion + reachOf(of.nullProportion),
                               of.trials * of.proportion + reachOf(of.proportion));
  return {std::max(0.0, std::floor(low)), std::min(of.trials, std::ceil(high))};
}

/// The probabilities of counts; of very many, of some.
Densities OfCounts(const TestStatistic& of) {
  constexpr double most = 2000;
  Densities densities{.family = of.family,
                      .x = {},
                      .without = {},
                      .with = {},
                      .rejectsTo = {},
                      .rejectsFrom = {},
                      .level = AreaOfCounts(of, of.nullProportion),
                      .power = AreaOfCounts(of, of.proportion)};
  if (of.rejectsTo >= 0) densities.rejectsTo = of.rejectsTo;
  if (of.rejectsFrom <= of.trials) densities.rejectsFrom = of.rejectsFrom;
  const Span span = SpanOfCounts(of);
  const double step = std::max(1.0, std::ceil((span.to - span.from) / most));
  for (double count = span.from; count <= span.to; count += step) {
    densities.x.push_back(count);
    densities.without.push_back(kelpower::BinomialMass(count, of.trials, of.nullProportion));
    densities.with.push_back(kelpower::BinomialMass(count, of.trials, of.proportion));
  }
  return densities;
}

}  // namespace

Densities DensitiesOf(const TestStatistic& statistic) {
  if (statistic.family == StatisticFamily::Count) return OfCounts(statistic);
  const Distribution without = Without(statistic);
  const Distribution with = With(statistic);
  Densities densities{.family = statistic.family,
                      .x = {},
                      .without = {},
                      .with = {},
                      .rejectsTo = IfFinite(statistic.rejectsTo),
                      .rejectsFrom = IfFinite(statistic.rejectsFrom),
                      .level = AreaOf(statistic, without),
                      .power = AreaOf(statistic, with)};
  AddPoints(densities, statistic, without, with);
  return densities;
}

}  // namespace planner
