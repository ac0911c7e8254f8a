#include <algorithm>

#include "catalogue/dunnett.h"

namespace planner {

std::size_t AskedGroup(const Inputs& in) { return static_cast<std::size_t>(in.Number("group")) - 1; }

Numbers MeansOfDunnett(const Inputs& in) {
  Numbers means;
  if (in.Has("means")) {
    means = in.List("means");
    for (double& mean : means) mean /= in.Number("sd");
  } else {
    means.assign(static_cast<std::size_t>(in.Groups()), in.Number("effect-d"));
    means.front() = 0;
  }
  return means;
}

double EffectOfGroup(const Inputs& in) { return MeansOfDunnett(in)[AskedGroup(in)] - MeansOfDunnett(in)[0]; }

double DecidingEffect(const Inputs& in) {
  if (in.Has("group")) return EffectOfGroup(in);
  const Numbers means = MeansOfDunnett(in);
  const auto [least, largest] = std::minmax_element(means.begin() + 1, means.end());
  return (in.Flag("all-comparisons") ? *least : *largest) - means.front();
}

}  // namespace planner
