#include <algorithm>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"

namespace planner {
namespace {

bool HasAny(const Inputs& in, const Names& names) {
  return std::any_of(names.begin(), names.end(), [&](Name name) { return in.Has(name); });
}

bool IsOfOneSample(const Inputs& in) {
  return in.Flag("one-sample") || HasAny(in, {"correlation", "sd-difference", "mean"});
}

bool IsOfTwoMeans(const Inputs& in) {
  return !IsOfOneSample(in) && HasAny(in, {"means", "mean-difference", "t", "effect-d", "hedges-g", "superiority"});
}

bool IsOfTwoGroups(const Inputs& in) {
  return IsOfTwoMeans(in) || HasAny(in, {"correlations", "proportions", "proportion1", "events"});
}

double Smallest(const Inputs& in) { return std::min(in.List("n").front(), in.List("n").back()); }

void AddOnLists(std::vector<Condition>& conditions) {
  conditions.push_back({.code = "sizes-of-groups",
                        .about = {"n"},
                        .holds = [](const Inputs& in) { return !IsOfTwoGroups(in) || in.List("n").size() <= 2; },
                        .sentence = "{n} must be one size that both groups have, or two sizes."});
  conditions.push_back({.code = "size-of-one-group",
                        .about = {"n"},
                        .holds = [](const Inputs& in) { return IsOfTwoGroups(in) || in.List("n").size() == 1; },
                        .sentence = "{n} must be one number here: there are no two groups."});
  conditions.push_back({.code = "sds-of-groups",
                        .about = {"sd"},
                        .holds = [](const Inputs& in) { return in.List("sd").size() <= 2; },
                        .sentence = "{sd} must be one standard deviation that both groups have, or two."});
  conditions.push_back({.code = "sd-of-one-sample",
                        .about = {"sd", "mean"},
                        .holds = [](const Inputs& in) { return in.List("sd").size() == 1; },
                        .sentence = "{sd} must be one number with {mean}: there is one sample."});
  conditions.push_back({.code = "df-of-t",
                        .about = {"df", "t"},
                        .holds = [](const Inputs& in) { return in.List("df").size() == 1; },
                        .sentence = "{df} must be one number with {t}: only an F test has two."});
  for (Name name : {Name("f-statistic"), Name("effect-f"), Name("eta-squared")}) {
    conditions.push_back({.code = "df-of-f",
                          .about = {"df", name},
                          .holds = [](const Inputs& in) { return in.List("df").size() == 2; },
                          .sentence = "{df} must be two numbers, those of the effect and of the error."});
  }
}

void AddOnSizes(std::vector<Condition>& conditions) {
  conditions.push_back({.code = "sizes-of-sds",
                        .about = {"n", "sd"},
                        .holds = [](const Inputs& in) { return Smallest(in) >= 2; },
                        .sentence = "{n} must be at least 2: one observation has no standard deviation."});
  conditions.push_back({.code = "sizes-of-t",
                        .about = {"n"},
                        .holds = [](const Inputs& in) { return !IsOfTwoMeans(in) || SizesOf(in)->Df() > 0; },
                        .sentence = "{n} must be more than 2 in both groups together."});
  conditions.push_back({.code = "sizes-of-g",
                        .about = {"n", "hedges-g"},
                        .holds = [](const Inputs& in) { return SizesOf(in)->Df() > 1; },
                        .sentence = "{n} must be more than 3 in both groups together: else there is no {hedges-g}."});
  conditions.push_back({.code = "size-of-one-sample",
                        .about = {"n"},
                        .holds = [](const Inputs& in) { return !IsOfOneSample(in) || Smallest(in) >= 2; },
                        .sentence = "{n} must be at least 2: one observation has no standard deviation."});
  for (Name name : {Name("r"), Name("correlations")}) {
    conditions.push_back({.code = "sizes-of-correlations",
                          .about = {"n", name},
                          .holds = [](const Inputs& in) { return Smallest(in) >= 4; },
                          .sentence = "{n} must be at least 4: less leaves no interval of a correlation."});
  }
  conditions.push_back({.code = "error-degrees",
                        .about = {"n", "predictors"},
                        .holds = [](const Inputs& in) { return Smallest(in) > in.Number("predictors") + 1; },
                        .sentence = "{n} must be at least {predictors} + 2, or no degree of freedom is left."});
}

}  // namespace

std::vector<Condition> ConditionsOfEffects() {
  std::vector<Condition> conditions;
  AddOnLists(conditions);
  AddOnSizes(conditions);
  AddConditionsOfProportions(conditions);
  return conditions;
}

}  // namespace planner
