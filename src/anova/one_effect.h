#ifndef KELPOWER_ANOVA_ONE_EFFECT_H
#define KELPOWER_ANOVA_ONE_EFFECT_H

#include <optional>

#include "frame/answer.h"
#include "frame/powers_over_effects.h"
#include "frame/rejection.h"

namespace kelpower::anova {

/// The F test of one effect in a model with several, at its degrees of freedom and level: what its power at every
/// noncentrality shares.
class EffectTest {
public:
  EffectTest(double df1, double df2, double alpha);

  /// Refused without degrees of freedom, for no such level, and for a noncentrality that is no number or below 0.
  Answer Power(double noncentrality) const;

  /// The same to 1e-12, faster where many effects are asked about.
  Answer PowerOfMany(double noncentrality);

  /// None where the power is refused.
  const std::optional<FTest>& AtCriticalValue() const { return test_; }

private:
  std::optional<FTest> test_;
  std::optional<PowersOverEffects> many_;
};

}  // namespace kelpower::anova

#endif
