#include "exports/anova/axes.h"

#include <cmath>
#include <limits>

#include "anova/overall.h"

namespace kelpower::exports {

using anova::PerGroup;

namespace {

struct SizeRange {
  double from;
  double to;
};

bool IsInt(double value) {
  return value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
}

/// The ends between which every group has at least 2 and the largest group at most 5,000 subjects.
SizeRange SizeLimits(PerGroup groupSizes, double totalSize) {
  double smallestShare = std::numeric_limits<double>::infinity();
  double largestShare = -std::numeric_limits<double>::infinity();
  for (const double size : groupSizes) {
    const double share = size / totalSize;
    if (!(share >= smallestShare)) smallestShare = share;
    if (!(share <= largestShare)) largestShare = share;
  }
  return {std::ceil(2.0 / smallestShare), std::floor(5000.0 / largestShare)};
}

std::optional<SizeRange> ResolveSizeRange(PerGroup groupSizes, int from, int to, CurrentPower currentPower) {
  if (from != 0 && to != 0) return SizeRange{static_cast<double>(from), static_cast<double>(to)};

  const double totalSize = Sum(groupSizes);
  const SizeRange limits = SizeLimits(groupSizes, totalSize);
  const double power = currentPower(totalSize);
  const double belowDesign = std::floor((1 - power) * totalSize);
  const double aboveDesign = std::ceil((2 - power) * totalSize);
  const SizeRange range = {limits.from > belowDesign ? limits.from : belowDesign,
                           limits.to < aboveDesign ? limits.to : aboveDesign};
  if (!IsInt(range.from) || !IsInt(range.to)) return std::nullopt;
  return range;
}

}  // namespace

std::optional<Axis> TotalSizeAxis(PerGroup groupSizes, int from, int to, CurrentPower currentPower) {
  const std::optional<SizeRange> range = ResolveSizeRange(groupSizes, from, to, currentPower);
  return range ? SizeAxis(range->from, range->to) : std::nullopt;
}

std::optional<Axis> SurfaceTotalSizeAxis(PerGroup groupSizes, int from, int to, CurrentPower currentPower) {
  const std::optional<SizeRange> range = ResolveSizeRange(groupSizes, from, to, currentPower);
  return range ? SurfaceSizeAxis(range->from, range->to) : std::nullopt;
}

std::optional<Axis> EffectSizeAxis(bool isEtaSquared, double esFrom, double esTo, double stepFraction) {
  const AxisEnd axisEnd = isEtaSquared ? AxisEnd::Open : AxisEnd::OnGrid;
  if (esTo == 0) return FractionAxis(0, isEtaSquared ? 1.0 : 2.0, stepFraction, axisEnd);
  return FractionAxis(esFrom, esTo, stepFraction, axisEnd);
}

std::optional<Axis> StandardDeviationAxis(PerGroup groupMeans, PerGroup groupSizes, double sdFrom, double sdTo,
                                          double stepFraction) {
  if (sdFrom != 0 && sdTo != 0) return FractionAxis(sdFrom, sdTo, stepFraction, AxisEnd::Exact);
  const double distance = anova::WeightedDistance(groupMeans, groupSizes);
  return FractionAxis(distance / 5, distance * 5, stepFraction, AxisEnd::Exact);
}

}  // namespace kelpower::exports
