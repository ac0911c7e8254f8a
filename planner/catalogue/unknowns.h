#ifndef KELPOWER_PLANNER_CATALOGUE_UNKNOWNS_H
#define KELPOWER_PLANNER_CATALOGUE_UNKNOWNS_H

#include <cmath>
#include <limits>

#include "model/test.h"

// Unknowns that several tests share.
namespace planner {

/// The effect size of either direction, as a positive one.
inline Unknown UnknownEffectD() {
  return {.input = "effect-d",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the noncentrality grows with the effect",
          .piece = [](const Inputs&) -> Piece {
            return {0, 1e6};
          }};
}

/// An effect that is zero at the lower end of its limits.
inline Unknown UnknownEffect(Name input) {
  return {.input = input,
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the noncentrality grows with the effect"};
}

/// The difference of two means of either direction, as a positive one.
inline Unknown UnknownMeanDifference() {
  return {.input = "mean-difference",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the noncentrality grows with the difference",
          .piece = [](const Inputs&) -> Piece {
            return {0, std::numeric_limits<double>::infinity()};
          }};
}

inline Unknown UnknownSd(Name input) {
  return {.input = input,
          .target = Question::Power,
          .trend = Trend::Falls,
          .reason = "the effect is divided by the standard deviation"};
}

inline Unknown UnknownSdOfInterval(Name input) {
  return {.input = input,
          .target = Question::HalfWidth,
          .trend = Trend::Rises,
          .reason = "the half-width is proportional to the standard deviation"};
}

/// The second size over the first, which is given.
inline Unknown UnknownRatio() {
  return {.input = "ratio",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "a larger second group estimates its mean better",
          .set =
              [](Inputs& in, double at) {
                const double size = in.List("n")[0] * at;
                const double whole = std::round(size);  // an attainable ratio times the size may miss it by a rounding
                in.SetEntry("n", 1, std::abs(size - whole) < 1e-12 * size ? whole : size);
                in.Set("ratio", at);
              },
          .attainable =
              [](const Inputs& in, double at) {
                const double first = in.List("n")[0];
                return std::ceil(first * at * (1 - 1e-12)) / first;
              }};
}

}  // namespace planner

#endif
