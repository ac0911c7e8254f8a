#include "catalogue/core.h"
#include "catalogue/proportion.h"
#include "proportions/lasting_size.h"
#include "proportions/one_sample_interval.h"
#include "proportions/one_sample_tests.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::OneSampleMethod;

/// The power; designs at one level share the test, which keeps the critical values of a size.
///
/// The exact test is handed no stop request. It would ask it once for each count below the size, which takes up to some
/// thousand times as long as the power, and a search ends by itself in well under a second.
class PowerOfProportion {
public:
  double operator()(const Inputs& in) {
    const proportions::OneSampleDesign design = OneSampleDesignOf(in);
    const auto& [isExact, isOneSided, alpha, isCorrected] = design;
    proportions::OneSampleTest& test =
        kept_.For({double(isExact), double(isOneSided), alpha, double(isCorrected)}, design);
    return OrNaN(test.Power(in.Number("n"), OneSampleProportionsOf(in)));
  }

private:
  Kept<proportions::OneSampleTest, 4> kept_;
};

Numbers Size(const Inputs& in) {
  return RoundedUp(proportions::SizeForPower(OneSampleDesignOf(in), OneSampleProportionsOf(in), in.Number("power")));
}

double LastingSize(const Inputs& in) {
  return OrNaN(proportions::LastingSize(OneSampleDesignOf(in), OneSampleProportionsOf(in), in.Number("power")));
}

proportions::OneSampleInterval IntervalOf(const Inputs& in) {
  return proportions::OneSampleInterval(
      {OneSampleMethod(in.Choice("interval-method")), in.Number("proportion"), in.Alpha(), in.Flag("correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(IntervalOf(in).SizeFor(in.Number("half-width"), StopOf(in)));
}

}  // namespace

std::vector<Route> RoutesOfProportion() {
  return {
      {.question = Question::Power,
       .needs = {"proportion", "null", "n"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerOneSampBinom",
       .value = PowerOfProportion()},
      {.question = Question::Power,
       .needs = {"proportion", "null", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerOneSampBinom",
       .value = PowerOfProportion()},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerReverseOneSampBinom",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReverseOneSampBinom",
       .lastingSize = LastingSize,
       .sizes = Size},
      {.question = Question::HalfWidth,
       .needs = {"proportion", "n"},
       .accepts = {"interval-method", "correction"},
       .exportName = "HalfCIOneSampBinom",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"proportion"},
       .accepts = {"interval-method", "correction"},
       .exportName = "PowerReversebyHalfCIOneSampBinom",
       .sizes = SizeForHalfWidth},
  };
}

}  // namespace planner
