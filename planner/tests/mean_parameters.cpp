#include "mean_parameters.h"

#include <cmath>
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

Axis EffectDAxis() {
  const auto design = [](const Inputs& in) { return std::abs(in.Number("effect-d")); };
  const auto usual = [](const Inputs& in) -> Range {
    const double effect = std::abs(in.Number("effect-d"));
    return {0, effect > 0 ? 2 * effect : 1.5};
  };
  return WithRange(ParameterAxis(EffectD("").AtLeast(0), "d", design), usual);
}

Axis SingleSizeAxis(std::string title) { return WithRange(SizeAxis(std::move(title), 2, 1e9), UpToTwiceSize); }

}  // namespace planner
