#include "catalogue/core.h"
#include "catalogue/two_proportions.h"
#include "proportions/independent_interval.h"
#include "proportions/independent_power.h"
#include "proportions/independent_sizes.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;

/// The power; designs that differ in their proportions alone share the test, which keeps its rejection region.
class PowerOfTwoProportions {
public:
  double operator()(const Inputs& in) {
    const proportions::IndependentDesign design = DesignOf(in);
    const Numbers& n = in.List("n");
    const auto& [test, isExact, isOneSided, alpha, isCorrected, isPooled] = design;
    const Kept<proportions::IndependentPower, 8>::Key key{
        double(test), double(isExact), double(isOneSided), alpha, double(isCorrected), double(isPooled), n[0], n[1]};
    proportions::IndependentPower& power = kept_.For(key, design, n[0], n[1]);
    return OrNaN(power.At(FirstProportion(in), SecondProportion(in), StopOfTables(in)));
  }

private:
  Kept<proportions::IndependentPower, 8> kept_;
};

Numbers ExactSizes(const Inputs& in) {
  const proportions::IndependentSizes wanted = WantedOf(in);
  const auto first = proportions::FirstSizeForPower(DesignOf(in), wanted, in.Number("power"), StopOfTables(in));
  return first ? Numbers{*first, proportions::WholeSecondSize(wanted.ratio, *first)} : Numbers{};
}

Numbers Sizes(const Inputs& in) { return IsExact(in) ? ExactSizes(in) : LargeSampleSizes(in, TestOf(in)); }

proportions::IndependentInterval IntervalOf(const Inputs& in) {
  return proportions::IndependentInterval({IndependentMethod(in.Choice("interval-method")), FirstProportion(in),
                                           SecondProportion(in), in.Alpha(), in.Flag("correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.List("n")[0], in.List("n")[1]); }

Numbers SizesForHalfWidth(const Inputs& in) {
  constexpr double smallestSecond = 2;
  const double ratio = in.Number("ratio");
  return RoundedUp(IntervalOf(in).FirstSizeFor(in.Number("half-width"), ratio, StopOf(in)), ratio, smallestSecond);
}

}  // namespace

kelpower::Stop StopOfTables(const Inputs& in) { return IsConditional(in) ? StopOf(in) : kelpower::Stop(); }

Numbers LargeSampleSizes(const Inputs& in, proportions::TwoProportionTest test) {
  constexpr double smallestSecond = 1;
  proportions::IndependentDesign design = DesignOf(in);
  design.test = test;
  design.isExact = false;
  const proportions::IndependentSizes wanted = WantedOf(in);
  return RoundedUp(proportions::FirstSizeForPower(design, wanted, in.Number("power")), wanted.ratio, smallestSecond);
}

std::vector<Route> RoutesOfTwoProportions() {
  const Names testing = OptionsOfTwoProportions();
  const Names interval{"interval-method", "correction"};
  std::vector<Route> routes;
  for (const Names& effect : EffectsOfTwoProportions()) {
    routes.push_back({.question = Question::Power,
                      .needs = With(effect, "n"),
                      .accepts = testing,
                      .exportName = "PowerIndSampBinom",
                      .value = PowerOfTwoProportions()});
    routes.push_back({.question = Question::SampleSize,
                      .needs = effect,
                      .accepts = With(testing, "ratio"),
                      .exportName = "PowerReverseIndSampBinom",
                      .sizes = Sizes});
    routes.push_back({.question = Question::HalfWidth,
                      .needs = With(effect, "n"),
                      .accepts = interval,
                      .exportName = "HalfCIIndSampBinom",
                      .value = HalfWidth});
    routes.push_back({.question = Question::SampleSizeForHalfWidth,
                      .needs = effect,
                      .accepts = With(interval, "ratio"),
                      .exportName = "PowerReversebyHalfCIIndSampBinom",
                      .sizes = SizesForHalfWidth});
  }
  return routes;
}

}  // namespace planner
