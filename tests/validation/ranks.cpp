#include <algorithm>
#include <cmath>
#include <memory>

#include "kelcommon/kel_dist_fun.h"
#include "support/drawn_ranks.h"
#include "validation/study.h"

// The exact tests of ranks. All powers of them are approximations.
namespace kelpower::validation {
namespace {

using ranks::Masses;
using ranks::Parent;

Parent ParentOf(Inputs& inputs) {
  const std::string parent = inputs.Choice("parent", "normal");
  if (parent == "logistic") return Parent::Logistic;
  if (parent == "laplace") return Parent::Laplace;
  if (parent == "uniform") return Parent::Uniform;
  return parent == "minimum" ? Parent::Minimum : Parent::Normal;
}

double QuantileOfNormal(double p) { return KelMath::KelDistFun::IdfStdNorm(p); }

/// Rejects by the exact distribution of a statistic without an effect, which is symmetric.
Rejection ByMasses(Inputs& inputs, const Masses& masses, double direction) {
  const double largest = static_cast<double>(masses.size()) - 1;
  const bool isOneSided = inputs.Flag("one-sided");
  const double lower = ranks::LargestRejected(masses, isOneSided ? inputs.Alpha() : inputs.Alpha() / 2) + 0.5;
  const double upper = largest - lower;
  if (!isOneSided) return {lower, upper};
  return direction < 0 ? Rejection{lower, largest + 1} : Rejection{-1, upper};
}

}  // namespace

/// A probability of superiority is that of normal values, which says how far they are shifted.
Study OfMannWhitney(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  const Parent parent = ParentOf(inputs);
  inputs.Choice("method", "");
  const double shift = inputs.Has("superiority") ? std::sqrt(2.0) * QuantileOfNormal(inputs.Number("superiority"))
                                                 : inputs.Number("effect-d");
  const auto n1 = static_cast<std::size_t>(n[0]);
  const auto n2 = static_cast<std::size_t>(n[1]);
  const Rejection rejects = ByMasses(inputs, ranks::MassesOfPairs(n1, n2), shift);
  const auto first = std::make_shared<std::vector<double>>(n1);
  const auto second = std::make_shared<std::vector<double>>(n2);
  return {false, [=](Engine& engine) {
            ranks::Draw(parent, shift, *first, engine);
            ranks::Draw(parent, 0, *second, engine);
            return rejects(ranks::CountOfLarger(*first, *second));
          }};
}

Study OfSignedRank(Inputs& inputs) {
  const auto n = static_cast<std::size_t>(inputs.Whole("n"));
  const Parent parent = ParentOf(inputs);
  inputs.Choice("method", "");
  const double shift = inputs.Has("positive-average")
                           ? QuantileOfNormal(inputs.Number("positive-average")) / std::sqrt(2.0)
                           : inputs.Number("effect-d");
  const Rejection rejects = ByMasses(inputs, ranks::MassesOfSignedRanks(n), shift);
  const auto values = std::make_shared<std::vector<double>>(n);
  return {false, [=](Engine& engine) {
            ranks::Draw(parent, shift, *values, engine);
            return rejects(ranks::SumOfPositiveRanks(*values));
          }};
}

}  // namespace kelpower::validation
