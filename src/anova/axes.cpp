#include "anova/axes.h"

#include <cmath>
#include <limits>

#include "anova/overall_power.h"
#include "kelpower.h"

namespace kelpower {

namespace {

struct SizeRange {
  double from;
  double to;
};

bool IsInt(double value) {
  return value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
}

/// The ends between which every group has at least 2 and the largest group at most 5,000 subjects.
SizeRange SizeLimits(int numGroups, const double* groupSizes, double totalSize) {
  double smallestShare = std::numeric_limits<double>::infinity();
  double largestShare = -std::numeric_limits<double>::infinity();
  for (int i = 0; i < numGroups; ++i) {
    const double share = groupSizes[i] / totalSize;
    if (!(share >= smallestShare)) smallestShare = share;
    if (!(share <= largestShare)) largestShare = share;
  }
  return {std::ceil(2.0 / smallestShare), std::floor(5000.0 / largestShare)};
}

std::optional<SizeRange> ResolveSizeRange(int numGroups, const double* groupSizes, int from, int to,
                                          CurrentPower currentPower) {
  if (from != 0 && to != 0) return SizeRange{static_cast<double>(from), static_cast<double>(to)};

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const SizeRange limits = SizeLimits(numGroups, groupSizes, totalSize);
  const double power = currentPower(totalSize);
  const double belowDesign = std::floor((1 - power) * totalSize);
  const double aboveDesign = std::ceil((2 - power) * totalSize);
  const SizeRange range = {limits.from > belowDesign ? limits.from : belowDesign,
                           limits.to < aboveDesign ? limits.to : aboveDesign};
  if (!IsInt(range.from) || !IsInt(range.to)) return std::nullopt;
  return range;
}

}  // namespace

std::optional<Axis> TotalSizeAxis(int numGroups, const double* groupSizes, int from, int to,
                                  CurrentPower currentPower) {
  const std::optional<SizeRange> range = ResolveSizeRange(numGroups, groupSizes, from, to, currentPower);
  return range ? SizeAxis(range->from, range->to) : std::nullopt;
}

std::optional<Axis> SurfaceTotalSizeAxis(int numGroups, const double* groupSizes, int from, int to,
                                         CurrentPower currentPower) {
  const std::optional<SizeRange> range = ResolveSizeRange(numGroups, groupSizes, from, to, currentPower);
  return range ? SurfaceSizeAxis(range->from, range->to) : std::nullopt;
}

std::optional<Axis> EffectSizeAxis(bool isEtaSquared, double esFrom, double esTo, double stepFraction) {
  const AxisEnd axisEnd = isEtaSquared ? AxisEnd::Open : AxisEnd::OnGrid;
  if (esTo == 0) return FractionAxis(0, isEtaSquared ? 1.0 : 2.0, stepFraction, axisEnd);
  return FractionAxis(esFrom, esTo, stepFraction, axisEnd);
}

std::optional<Axis> StandardDeviationAxis(int numGroups, const double* groupMeans, const double* groupSizes,
                                          double sdFrom, double sdTo, double stepFraction) {
  if (sdFrom != 0 && sdTo != 0) return FractionAxis(sdFrom, sdTo, stepFraction, AxisEnd::Exact);
  const GroupSpread spread = GroupSpread::Of(numGroups, groupMeans, groupSizes);
  const double distance = spread.scale * std::sqrt(spread.scaledVariance * SampleSizeTotal(numGroups, groupSizes));
  return FractionAxis(distance / 5, distance * 5, stepFraction, AxisEnd::Exact);
}

}  // namespace kelpower
