#include "catalogue/mean_margins.h"

namespace planner {

void AddPowerTost(Details& details, const Inputs& in, const std::string& sd, const std::string& design) {
  const bool isRatio = in.Has("mean-ratio");
  const bool isOffered = IsEquivalence(in) || (HasMargins(in) && in.Flag("non-inferiority"));
  if (!isOffered || !(isRatio || in.Has("mean-difference"))) return;
  const std::string test = IsEquivalence(in) ? "power.TOST(" : "power.noninf(";
  const std::string against = IsEquivalence(in) ? "{equivalence}" : "margin = {margin}";
  const std::string scale =
      isRatio ? "TRUE, theta0 = {mean-ratio}, CV = {cv}" : "FALSE, theta0 = {mean-difference}, CV = " + sd;
  details.equivalents.push_back({.program = "PowerTOST",
                                 .call = test + "alpha = {alpha}, " + against + ", logscale = " + scale +
                                         ", n = c({n1}, {n2}), design = \"" + design + "\")"});
}

}  // namespace planner
