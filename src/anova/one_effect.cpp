#include "anova/one_effect.h"

#include "frame/checks.h"

namespace kelpower::anova {

EffectTest::EffectTest(double df1, double df2, double alpha) {
  if (!(df1 > 0)) return;
  if (!(df2 > 0)) return;
  if (RejectsAlpha(alpha)) return;
  test_ = FTest::AtLevel(alpha, df1, df2);
}

// A missing probability would count as a power of 1.
Answer EffectTest::Power(double noncentrality) const {
  if (!test_ || !(noncentrality >= 0)) return NoValue::Refused;
  return test_->Power(noncentrality);
}

Answer EffectTest::PowerOfMany(double noncentrality) {
  if (!test_ || !(noncentrality >= 0)) return NoValue::Refused;
  if (!many_) many_.emplace(*test_);
  return many_->Power(noncentrality);
}

}  // namespace kelpower::anova
