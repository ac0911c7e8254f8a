#include "means/one_sample.h"

#include "frame/checks.h"

namespace kelpower::means {

Answer Power(const OneSampleDesign& design, double size) {
  if (size <= 1) return NoValue::Refused;
  if (RejectsAlpha(design.alpha)) return NoValue::Refused;
  return OneSampleTest(design.sides, size, design.alpha).Power(design.effectSize);
}

Answer SizeForPower(const OneSampleDesign& design, double power) {
  return SizeForPower([&](double n) { return Power(design, n); }, power);
}

double HalfWidth(const MeanInterval& interval, double size) {
  return IntervalQuantileT(interval.alpha, size - 1) * (interval.sd / std::sqrt(size));
}

// Solves w = t sd / sqrt(n), squared and multiplied by n / sd^2.
Answer SizeForHalfWidth(const MeanInterval& interval, double halfWidth) {
  const double relativeWidth = halfWidth / interval.sd;
  return SizeForHalfWidth({relativeWidth * relativeWidth, 1, interval.alpha, [](double n) { return n - 1; }});
}

}  // namespace kelpower::means
