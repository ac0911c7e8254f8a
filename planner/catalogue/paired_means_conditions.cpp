#include "catalogue/mean_parameters.h"
#include "catalogue/paired_means.h"

namespace planner {
namespace {

bool DifferencesSpread(const Inputs& in) {
  const Numbers& sds = in.List("sds");
  return sds[0] != sds[1] || in.Number("correlation") != 1;
}

}  // namespace

std::vector<Condition> ConditionsOfPairedMeans() {
  std::vector<Condition> conditions = CertainEffect({"margin", "equivalence"});
  conditions.push_back(LimitsInOrder());
  conditions.push_back(
      {.code = "differences-spread",
       .about = {"means", "correlation"},
       .holds = DifferencesSpread,
       .sentence = "{sds} are equal and {correlation} is 1: the differences do not vary, so that there is nothing to "
                   "test."});
  return conditions;
}

std::vector<Condition> SizeExistsForPairedMeans() {
  std::vector<Condition> conditions = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return HasMargins(in) || in.List("means")[0] != in.List("means")[1]; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"mean-difference"},
       .holds = [](const Inputs& in) { return HasMargins(in) || in.Number("mean-difference") != 0; },
       .sentence = "The mean difference is zero: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  const auto isWithin = [](const Inputs& in) { return IsWithinMargins(in, DifferenceOfPairedMeans(in), noDifference); };
  for (Name effect : {Name("means"), Name("mean-difference")}) {
    const std::vector<Condition> within = WithinMargins(effect, "mean difference", isWithin);
    conditions.insert(conditions.end(), within.begin(), within.end());
  }
  return conditions;
}

}  // namespace planner
