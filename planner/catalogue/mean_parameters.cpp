#include "catalogue/mean_parameters.h"

#include <cmath>
#include <utility>

namespace planner {

Parameter SingleSize(std::string meaning) {
  return Number("n", "sample size", std::move(meaning)).Alias("sample-size").Whole().AtLeast(2).AtMost(1e9);
}

Parameter EffectD(std::string meaning) {
  return Number("effect-d", "effect size d", std::move(meaning)).Alias("d").AtLeast(-1e6).AtMost(1e6);
}

Parameter OneSided() { return Flag("one-sided", "one-sided test", "test in the direction of the effect only"); }

kelpower::means::Sides SidesOf(const Inputs& in) {
  using kelpower::means::Sides;
  return in.Flag("one-sided") ? Sides::One : Sides::Two;
}

Condition HasEffectD() {
  return {.code = "no-effect",
          .about = {"effect-d"},
          .holds = [](const Inputs& in) { return in.Number("effect-d") != 0; },
          .sentence = "The effect size is zero: without an effect, no sample size reaches the power."};
}

}  // namespace planner
