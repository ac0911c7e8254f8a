#include "means/mean_test.h"

#include "kelcommon/kel_mv.h"

namespace kelpower {

namespace {

constexpr double kSmallestSize = 2;
constexpr double kFirstUpperSize = 400;  // doubled until the bracket holds the root
constexpr double kSizeTolerance = 1e-9;

}  // namespace

double PowerOrMissing(const std::optional<MeanTest>& test, double effect) {
  return test ? test->Power(effect) : KelCommon::KelMV::Missing();
}

double SizeForPower(FunctionView<double(double size)> powerAt, double power) {
  return SolveIncreasingPower(kSmallestSize, kFirstUpperSize, kSizeTolerance, powerAt, power, nullptr);
}

double SizeForHalfWidth(const HalfWidthEquation& equation) {
  return SolveHalfWidth(kSmallestSize, kFirstUpperSize, kSizeTolerance, equation);
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
