#include "anova/overall.h"
#include "catalogue/ancova.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double Power(const Inputs& in) {
  const anova::CovarianceTest test = CovarianceTestOf(in);
  const double noncentrality = NoncentralityOfAdjustedMeans(in);
  return OrNaN(in.Flag("approximate") ? test.PowerOfBalancedCovariates(noncentrality) : test.Power(noncentrality));
}

/// Without covariates there is nothing for them to explain.
bool HasCovariatesToExplain(const Inputs& in) { return in.Number("covariates") > 0 || in.Number("r-squared") == 0; }

}  // namespace

anova::CovarianceTest CovarianceTestOf(const Inputs& in) {
  return {double(in.Groups()), TotalSize(in), in.Number("covariates"), in.Alpha()};
}

double NoncentralityOfAdjustedMeans(const Inputs& in) {
  const double total = TotalSize(in);
  const double unexplained = 1 - in.Number("r-squared");
  if (!in.Has("means")) return anova::EffectSize{in.Number("effect-f"), false}.Noncentrality(total) / unexplained;
  const auto spread = anova::GroupSpread::Of(in.List("means"), in.List("n"));
  return spread.Noncentrality(in.Number("sd"), total) / unexplained;
}

std::vector<Route> RoutesOfAncova() {
  std::vector<Route> routes;
  for (const Names& effect : {Names{"means", "sd"}, Names{"effect-f"}}) {
    Route power{.question = Question::Power,
                .needs = effect,
                .accepts = {"groups", "covariates", "r-squared", "approximate"},
                .value = Power};
    power.needs.push_back("n");
    routes.push_back(power);
    routes.push_back({.question = Question::SampleSize,
                      .needs = effect,
                      .accepts = {"ratios", "groups", "covariates", "r-squared", "approximate"}});
  }
  return routes;
}

std::vector<Condition> ConditionsOfAncova() {
  return {
      {.code = "no-covariates",
       .about = {"covariates", "r-squared"},
       .holds = HasCovariatesToExplain,
       .sentence = "{r-squared} is what {covariates} explains: without covariates it is 0."},
      {.code = "error-degrees",
       .about = {"n", "covariates"},
       .holds = [](const Inputs& in) { return TotalSize(in) > in.Groups() + in.Number("covariates"); },
       .sentence = "{n} leaves nothing to estimate the standard deviation from: there must be more observations than "
                   "groups and {covariates} together."},
  };
}

}  // namespace planner
