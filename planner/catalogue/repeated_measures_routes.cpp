#include <cmath>
#include <limits>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/repeated_measures.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// Powers of the designs that a chart goes over, whose test stays the same while the sizes do.
class Powers {
public:
  explicit Powers(bool areMany) : areMany_(areMany) {}

  double operator()(const Inputs& in) {
    const anova::RepeatedDesign design = RepeatedDesignOf(in);
    const double total = TotalSize(in);
    const double tested = in.Has("coefficients") ? -1 : in.Choice("effect");
    const Kept<Test, 7>::Key key{tested,         design.groups, design.measurements, design.correlation,
                                 design.epsilon, total,         in.Alpha()};
    anova::EffectTest& test = kept_.For(key, in).test;
    const double noncentrality = NoncentralityOfRepeatedMeasures(in);
    return OrNaN(areMany_ ? test.PowerOfMany(noncentrality) : test.Power(noncentrality));
  }

private:
  struct Test {
    explicit Test(const Inputs& in) : test(RepeatedTestOf(in)) {}
    anova::EffectTest test;
  };

  bool areMany_;
  Kept<Test, 7> kept_;
};

Route PowerRoute(const Names& effect, const Names& accepts) {
  Route route{.question = Question::Power, .needs = {"effect", "measurements"}, .accepts = accepts};
  route.needs.insert(route.needs.end(), effect.begin(), effect.end());
  route.needs.push_back("n");
  route.value = Powers(false);
  route.surfaceValue = Powers(true);
  return route;
}

Route SizeRoute(const Names& effect, const Names& accepts) {
  Route route{.question = Question::SampleSize, .needs = {"effect", "measurements"}, .accepts = accepts};
  route.needs.insert(route.needs.end(), effect.begin(), effect.end());
  route.accepts.insert(route.accepts.begin(), "ratios");
  return route;
}

}  // namespace

anova::RepeatedDesign RepeatedDesignOf(const Inputs& in) {
  return {.effect = RepeatedEffectOf(in),
          .groups = double(in.Groups()),
          .measurements = in.Number("measurements"),
          .correlation = in.Has("correlation") ? in.Number("correlation") : 0,
          .epsilon = EpsilonOf(in)};
}

anova::EffectTest RepeatedTestOf(const Inputs& in) {
  const anova::RepeatedDesign design = RepeatedDesignOf(in);
  const double total = TotalSize(in);
  return in.Has("coefficients") ? design.ContrastTestAt(total, in.Alpha()) : design.TestAt(total, in.Alpha());
}

double NoncentralityOfTable(const Inputs& in, const Numbers& weights) {
  const anova::RepeatedDesign design = RepeatedDesignOf(in);
  const Numbers& means = in.List("means");
  if (!in.Has("coefficients")) return OrNaN(design.NoncentralityOfMeans(means, weights, in.Number("sd")));
  return OrNaN(design.NoncentralityOfContrast(in.List("coefficients"), means, weights, in.Number("sd")));
}

double NoncentralityOfRepeatedMeasures(const Inputs& in) {
  if (in.Has("means")) return NoncentralityOfTable(in, in.List("n"));
  const double eta = in.Has("eta-squared") ? in.Number("eta-squared") : 0;
  const double f = in.Has("eta-squared") ? std::sqrt(eta / (1 - eta)) : in.Number("effect-f");
  return RepeatedDesignOf(in).NoncentralityOfF(f, RepeatedFOf(in), TotalSize(in));
}

std::vector<Route> RoutesOfRepeatedMeasures() {
  std::vector<Route> routes;
  const auto add = [&](const Names& effect, const Names& accepts) {
    routes.push_back(PowerRoute(effect, accepts));
    routes.push_back(SizeRoute(effect, accepts));
  };
  add({"means", "sd", "correlation"}, {"groups", "epsilon"});
  add({"means", "sd", "correlation", "coefficients"}, {"groups"});
  add({"effect-f"}, {"groups", "correlation", "epsilon", "f-of"});
  add({"eta-squared"}, {"groups", "correlation", "epsilon", "f-of"});
  return routes;
}

}  // namespace planner
