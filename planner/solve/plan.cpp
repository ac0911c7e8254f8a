#include "solve/plan.h"

#include <cmath>
#include <limits>

#include "design_effect/design_effect.h"

namespace planner {
namespace {

namespace core = kelpower::design_effect;

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/// Clusters that hold so many members. Sizes of whole clusters are rounded up themselves where the mean size of a
/// cluster is no whole number.
double ClustersOf(double members, double clusterSize) {
  const double whole = std::floor(members / clusterSize);
  return std::ceil(whole * clusterSize * (1 - 1e-15)) >= members ? whole : whole + 1;
}

double ToEnrol(const Inputs& inputs, double size) {
  const double people = core::NumberToEnrol(size, inputs.Number("dropout")).ValueOr(none);
  if (!inputs.Has("cluster-size")) return people;
  const double clusterSize = inputs.Number("cluster-size");
  return std::ceil(ClustersOf(people, clusterSize) * clusterSize * (1 - 1e-15));
}

}  // namespace

double DesignEffect(const Inputs& inputs) {
  if (!inputs.Has("cluster-size") || !inputs.Has("icc")) return 1;
  const double variation = inputs.Has("cluster-cv") ? inputs.Number("cluster-cv") : 0;
  return core::DesignEffect({inputs.Number("cluster-size"), variation, inputs.Number("icc")}).ValueOr(none);
}

std::optional<double> PlannedFigure(Planned planned, const Test& test, const Inputs& inputs) {
  switch (planned) {
    case Planned::Level: return inputs.Alpha();
    case Planned::Effect: return DesignEffect(inputs);
    case Planned::PowerLimit: return test.offers.expectedPowerLimit(inputs);
    default: return std::nullopt;
  }
}

Numbers PlannedSizes(Planned planned, const Inputs& inputs, const Numbers& sizes) {
  Numbers planning;
  for (double size : sizes) {
    double number = inputs.Has("dropout") ? ToEnrol(inputs, size) : size;
    if (planned == Planned::Clusters) number = ClustersOf(number, inputs.Number("cluster-size"));
    planning.push_back(number);
  }
  return planning;
}

}  // namespace planner
