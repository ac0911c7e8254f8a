#include "means/mean_test.h"

#include "frame/root_finders.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {

double PowerOrMissing(const std::optional<MeanTest>& test, double effect) {
  return test ? test->Power(effect) : KelCommon::KelMV::Missing();
}

double SearchSize(FunctionView<double(double size)> objective) {
  constexpr double kSmallest = 2;
  constexpr double kFirstUpper = 400;  // doubled until the bracket holds the root
  constexpr double kTolerance = 1e-9;
  return SolveContinuous(kSmallest, kFirstUpper, kTolerance, objective, nullptr);
}

std::optional<double> EffectSizeStart(Sides sides, double minEffectSize) {
  constexpr double kAsksForZero = -5.0;
  if (sides == Sides::One) return minEffectSize;
  if (minEffectSize == kAsksForZero) return 0.0;
  if (minEffectSize < 0) return std::nullopt;
  return minEffectSize;
}

double BinaryScale(double x) {
  if (x == 0 || !std::isfinite(x)) return 1;
  return std::scalbn(1.0, std::ilogb(x));
}

}  // namespace kelpower
