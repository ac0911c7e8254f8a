#include "mean_parameters.h"

#include <utility>

namespace planner {

const char* const noEffectD = "The effect size is zero: without an effect, no sample size reaches the power.";

Parameter SingleSize(std::string meaning) {
  return Number("n", "sample size", std::move(meaning)).Alias("sample-size").Whole().AtLeast(2).AtMost(1e9);
}

Parameter EffectD(std::string meaning) {
  return Number("effect-d", "effect size d", std::move(meaning)).AtLeast(-1e6).AtMost(1e6);
}

Parameter OneSided() { return Flag("one-sided", "one-sided test", "test in the direction of the effect only"); }

}  // namespace planner
