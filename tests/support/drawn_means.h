#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_MEANS_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_MEANS_H

#include <cmath>
#include <random>

#include "support/share_of_studies.h"

// Differences of means as studies estimate them from normal data.

namespace kelpower {

struct Estimate {
  double difference;
  double standardError;
};

inline bool ShowsAbove(const Estimate& estimate, double margin, double t) {
  return (estimate.difference - margin) / estimate.standardError > t;
}

inline bool ShowsBelow(const Estimate& estimate, double margin, double t) {
  return (estimate.difference - margin) / estimate.standardError < -t;
}

inline bool ShowsBetween(const Estimate& estimate, double lower, double upper, double t) {
  return ShowsAbove(estimate, lower, t) && ShowsBelow(estimate, upper, t);
}

template <typename Engine>
Estimate DrawMean(Engine& engine, int size, double mean, double sd) {
  const Moments sample = DrawNormal(engine, size, mean, sd);
  return {sample.mean, std::sqrt(sample.variance / size)};
}

/// The mean of the differences of pairs. `Spread` has sd1, sd2 and correlation.
template <typename Engine, typename Spread>
Estimate DrawPairs(Engine& engine, int pairs, double difference, const Spread& spread) {
  std::normal_distribution<double> normal;
  const double rest = std::sqrt(1 - spread.correlation * spread.correlation);
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < pairs; ++i) {
    const double first = normal(engine);
    const double second = spread.correlation * first + rest * normal(engine);
    const double d = difference + spread.sd1 * first - spread.sd2 * second;
    sum += d;
    squares += d * d;
  }
  const double variance = (squares - sum * sum / pairs) / (pairs - 1);
  return {sum / pairs, std::sqrt(variance / pairs)};
}

/// The difference of two groups with the pooled variance.
template <typename Engine>
Estimate DrawGroups(Engine& engine, int n1, int n2, double difference, double sd) {
  const Moments first = DrawNormal(engine, n1, difference, sd);
  const Moments second = DrawNormal(engine, n2, 0, sd);
  const double variance = ((n1 - 1) * first.variance + (n2 - 1) * second.variance) / (n1 + n2 - 2);
  return {first.mean - second.mean, std::sqrt(variance * (1.0 / n1 + 1.0 / n2))};
}

/// The difference of two groups with a variance each, and the degrees of freedom that the study estimates (Welch 1938,
/// Biometrika 29, 350-362).
struct WelchEstimate {
  Estimate estimate;
  double df;
};

template <typename Engine>
WelchEstimate DrawWelch(Engine& engine, int n1, int n2, double difference, double sd1, double sd2) {
  const Moments first = DrawNormal(engine, n1, difference, sd1);
  const Moments second = DrawNormal(engine, n2, 0, sd2);
  const double v1 = first.variance / n1;
  const double v2 = second.variance / n2;
  const double df = (v1 + v2) * (v1 + v2) / (v1 * v1 / (n1 - 1) + v2 * v2 / (n2 - 1));
  return {{first.mean - second.mean, std::sqrt(v1 + v2)}, df};
}

/// The differences of the periods of one sequence: the effects of subjects drop out, those of periods and treatments stay.
template <typename Engine>
Moments DrawSequence(Engine& engine, int size, double change, double within, double between) {
  std::normal_distribution<double> normal;
  double sum = 0;
  double squares = 0;
  for (int i = 0; i < size; ++i) {
    const double subject = between * normal(engine);
    const double first = subject + change + within * normal(engine);
    const double second = subject + within * normal(engine);
    sum += first - second;
    squares += (first - second) * (first - second);
  }
  return {sum / size, (squares - sum * sum / size) / (size - 1)};
}

/// One sequence has the treatments in one order, with the effect of the period added, the other in the reverse order.
template <typename Engine>
Estimate DrawCrossover(Engine& engine, int n1, int n2, double effect, double within) {
  constexpr double period = 1.5;
  constexpr double between = 4;
  const Moments one = DrawSequence(engine, n1, period + effect, within, between);
  const Moments other = DrawSequence(engine, n2, period - effect, within, between);
  const double variance = ((n1 - 1) * one.variance + (n2 - 1) * other.variance) / (n1 + n2 - 2);
  return {(one.mean - other.mean) / 2, std::sqrt(variance * (1.0 / n1 + 1.0 / n2)) / 2};
}

}  // namespace kelpower

#endif
