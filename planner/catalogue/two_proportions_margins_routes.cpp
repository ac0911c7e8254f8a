#include <optional>

#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_margins.h"
#include "frame/whole_size.h"
#include "proportions/unconditional_margins.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

double LargeSamplePower(const Inputs& in) {
  const Numbers& n = in.List("n");
  const proportions::IndependentMarginTest test(IndependentMarginDesignOf(in), n[0], n[1]);
  return OrNaN(test.Power(TwoProportionsOf(in)));
}

/// The exact power; designs that differ in their proportions alone share the region of the test. A search for sizes takes
/// seconds, of which one power is a small part.
class ExactPower {
public:
  double operator()(const Inputs& in) {
    if (kelpower::AnswersStop(StopOf(in))) return OrNaN(kelpower::NoValue::Stopped);
    const Numbers& n = in.List("n");
    const proportions::ContrastLimits limits = ContrastLimitsOf(in);
    const auto& test = kept_.For({limits.lower, limits.upper, in.Alpha(), n[0], n[1]}, limits, in.Alpha(), n[0], n[1]);
    return OrNaN(test.Power(TwoProportionsOf(in)));
  }

private:
  Kept<proportions::UnconditionalMarginTest, 5> kept_;
};

}  // namespace

Numbers LargeSampleMarginSizes(const Inputs& in) {
  constexpr double largest = 1e9;
  const double ratio = in.Number("ratio");
  const proportions::IndependentMarginDesign design = IndependentMarginDesignOf(in);
  const auto powerAt = [&](double size1) {
    const proportions::IndependentMarginTest test(design, size1, std::max(1.0, std::ceil(size1 * ratio)));
    return OrNaN(test.Power(TwoProportionsOf(in)));
  };
  const std::optional<double> first = kelpower::FirstWholeSize(2, largest, in.Alpha(), in.Number("power"), powerAt);
  return first ? Numbers{*first, std::max(2.0, std::ceil(*first * ratio))} : Numbers{};
}

double AttainedLevelOfMargins(const Inputs& in) {
  const Numbers& n = in.List("n");
  return OrNaN(proportions::UnconditionalMarginTest(ContrastLimitsOf(in), in.Alpha(), n[0], n[1]).AttainedLevel());
}

std::vector<Route> MarginRoutesOfTwoProportions() {
  const Names options{"margin-method", "margin-scale", "correction"};
  std::vector<Route> routes;
  for (const Names& effect : EffectsOfTwoProportions()) {
    routes.push_back(
        {.question = Question::Power, .needs = With(effect, "n"), .accepts = options, .value = LargeSamplePower});
    routes.push_back({.question = Question::Power, .needs = With(With(effect, "n"), "exact"), .value = ExactPower()});
    routes.push_back({.question = Question::SampleSize, .needs = effect, .accepts = With(options, "ratio")});
    routes.push_back({.question = Question::SampleSize,
                      .needs = With(effect, "exact"),
                      .accepts = {"ratio"},
                      .sizes = LargeSampleMarginSizes});
  }
  return WithMargins(routes);
}

}  // namespace planner
