#include <limits>

#include "anova/one_effect.h"
#include "anova/overall.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/factorial.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// Powers of the designs that a chart goes over, whose test stays the same while the sizes do.
class Powers {
public:
  explicit Powers(bool areMany) : areMany_(areMany) {}

  double operator()(const Inputs& in) {
    const auto term = TermOf(in);
    if (!term) return std::numeric_limits<double>::quiet_NaN();
    const double df2 = TotalSize(in) - term->Cells();
    anova::EffectTest& test = kept_.For({term->Df(), df2, in.Alpha()}, term->Df(), df2, in.Alpha());
    const double noncentrality = NoncentralityOfTerm(in);
    return OrNaN(areMany_ ? test.PowerOfMany(noncentrality) : test.Power(noncentrality));
  }

private:
  bool areMany_;
  Kept<anova::EffectTest, 3> kept_;
};

Route PowerRoute(Names effect) {
  Route route{.question = Question::Power, .needs = {"levels", "term"}, .value = Powers(false)};
  route.needs.insert(route.needs.end(), effect.begin(), effect.end());
  route.needs.push_back("n");
  route.surfaceValue = Powers(true);
  return route;
}

Route SizeRoute(Names effect) {
  Route route{.question = Question::SampleSize, .needs = {"levels", "term"}, .accepts = {"ratios"}};
  route.needs.insert(route.needs.end(), effect.begin(), effect.end());
  return route;
}

}  // namespace

double NoncentralityOfCells(const Inputs& in, const Numbers& weights) {
  const auto term = TermOf(in);
  if (!term) return std::numeric_limits<double>::quiet_NaN();
  return OrNaN(term->Noncentrality(in.List("means"), weights, in.Number("sd")));
}

double NoncentralityOfTerm(const Inputs& in) {
  if (in.Has("means")) return NoncentralityOfCells(in, in.List("n"));
  const double total = TotalSize(in);
  if (in.Has("eta-squared")) return anova::EffectSize{in.Number("eta-squared"), true}.Noncentrality(total);
  return anova::EffectSize{in.Number("effect-f"), false}.Noncentrality(total);
}

std::vector<Route> RoutesOfFactorial() {
  std::vector<Route> routes;
  for (const Names& effect : {Names{"means", "sd"}, Names{"effect-f"}, Names{"eta-squared"}}) {
    routes.push_back(PowerRoute(effect));
    routes.push_back(SizeRoute(effect));
  }
  return routes;
}

}  // namespace planner
