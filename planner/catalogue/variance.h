#ifndef KELPOWER_PLANNER_CATALOGUE_VARIANCE_H
#define KELPOWER_PLANNER_CATALOGUE_VARIANCE_H

#include <optional>
#include <string>
#include <utility>

#include "model/inputs.h"
#include "model/test.h"
#include "variances/one_variance.h"
#include "variances/two_variances.h"

// What the tests of one and of two variances share.
namespace planner {

constexpr double leastVarianceRatio = 1e-6;
constexpr double mostVarianceRatio = 1e6;

inline Parameter VarianceRatioOf(std::string meaning) {
  return Number("variance-ratio", "ratio of the variances", std::move(meaning))
      .AtLeast(leastVarianceRatio)
      .AtMost(mostVarianceRatio);
}

/// The condition for a size that the ratio is not 1. `about` are the inputs that tell it.
inline Condition NoRatio(const Names& about, bool (*holds)(const Inputs&)) {
  return {.code = "no-effect",
          .about = about,
          .holds = holds,
          .sentence = "The variances are equal: without a difference, no sample size reaches the power."};
}

/// The variance over that under the null hypothesis.
double VarianceRatio(const Inputs& in);

/// The first variance over the second.
double RatioOfVariances(const Inputs& in);

std::optional<kelpower::variances::VarianceTest> TestOfVariance(const Inputs& in);
std::optional<kelpower::variances::TwoVariancesTest> TestOfTwoVariances(const Inputs& in);

}  // namespace planner

#endif
