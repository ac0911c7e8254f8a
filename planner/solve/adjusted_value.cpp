#include "solve/adjusted_value.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "design_effect/design_effect.h"
#include "solve/plan.h"

namespace planner {
namespace {

/// Gives the value of a design with other sizes. What varies from design to design is taken over into inputs of its own,
/// so that an answer takes no memory.
class AtOtherSizes {
public:
  using Change = void (*)(Inputs& inputs);

  AtOtherSizes(const Route& route, const Inputs& design, Evaluation value, Change change)
      : inputs_(design), value_(std::move(value)), change_(change) {
    for (const Names& names : {Names{"alpha"}, route.needs, route.accepts}) {
      std::copy_if(names.begin(), names.end(), std::back_inserter(taken_), [&](Name name) { return design.Has(name); });
    }
  }

  double operator()(const Inputs& inputs) {
    for (Name name : taken_) inputs_.Take(name, inputs);
    change_(inputs_);
    return value_(inputs_);
  }

private:
  Inputs inputs_;
  Names taken_;
  Evaluation value_;
  Change change_;
};

void DivideByDesignEffect(Inputs& inputs) {
  const double effect = DesignEffect(inputs);
  for (std::size_t i = 0; i < inputs.List("n").size(); ++i) inputs.SetEntry("n", i, inputs.List("n")[i] / effect);
}

/// The size without a finite population, of which n = m / (1 + (m - 1) / N) is the size m in the population.
void EnlargeSample(Inputs& inputs) {
  const double population = inputs.Number("population");
  const double size = inputs.Number("n");
  inputs.Set("n", size * (population - 1) / (population - size));
}

/// A sample of all has no error.
bool IsCensus(const Inputs& inputs) { return inputs.Number("n") == inputs.Number("population"); }

Evaluation InPopulation(FinitePopulation kind, const Route& route, const Inputs& design, Evaluation value) {
  if (kind == FinitePopulation::EnlargesSample) {
    return [enlarged = AtOtherSizes(route, design, std::move(value), EnlargeSample)](const Inputs& inputs) mutable {
      return IsCensus(inputs) ? 0 : enlarged(inputs);
    };
  }
  return [value = std::move(value)](const Inputs& inputs) {
    const double population = inputs.Number("population");
    return value(inputs) * std::sqrt((population - inputs.Number("n")) / (population - 1));
  };
}

}  // namespace

Evaluation AdjustedValue(const Test& test, const Route& route, const Inputs& design) {
  Evaluation value = design.Has("effect-sd") ? test.offers.expectedPower : route.value;
  if (design.Has("cluster-size") && design.Has("icc")) {
    value = AtOtherSizes(route, design, std::move(value), DivideByDesignEffect);
  }
  if (design.Has("population")) value = InPopulation(test.offers.population, route, design, std::move(value));
  return value;
}

Numbers AdjustedStart(Numbers sizes, const Inputs& design) {
  namespace core = kelpower::design_effect;
  const double effect = DesignEffect(design);
  for (double& size : sizes) {
    size *= effect;
    if (!design.Has("population")) continue;
    size = core::SizeInPopulation(std::max(size, 1.0), design.Number("population")).ValueOr(size);
  }
  return sizes;
}

Inputs AtEffectiveSizes(Inputs inputs) {
  if (inputs.Has("cluster-size") && inputs.Has("icc")) DivideByDesignEffect(inputs);
  return inputs;
}

}  // namespace planner
