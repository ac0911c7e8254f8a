#include <utility>

#include "catalogue/core.h"
#include "catalogue/paired_proportions.h"
#include "proportions/lasting_size.h"
#include "proportions/mcnemar.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

/// The power; designs at one level share the test, which keeps its critical values.
///
/// The exact test is handed no stop request. It would ask it once for each pair, which takes up to some hundred times
/// as long as the power, and a search ends by itself within a second or so.
class PowerOfMcNemar {
public:
  double operator()(const Inputs& in) {
    const proportions::McNemarDesign design = McNemarDesignOf(in);
    proportions::McNemarTest& test =
        kept_.For({double(design.isExact), double(design.isOneSided), design.alpha}, design);
    return OrNaN(test.Power(in.Number("n"), DiscordantPairsOf(in)));
  }

private:
  Kept<proportions::McNemarTest, 3> kept_;
};

Numbers Size(const Inputs& in) {
  return RoundedUp(proportions::SizeForPower(McNemarDesignOf(in), DiscordantPairsOf(in), in.Number("power")));
}

double LastingSize(const Inputs& in) {
  return OrNaN(proportions::LastingSize(McNemarDesignOf(in), DiscordantPairsOf(in), in.Number("power")));
}

std::vector<Route> PowerRoutes() {
  return {
      {.question = Question::Power,
       .needs = {"p12", "p21", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"p12", "p21", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = PowerOfMcNemar()},
      {.question = Question::Power,
       .needs = {"proportion1", "proportion2", "correlation", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerbyMargPRelSampBionm",
       .value = PowerOfMcNemar()},
  };
}

std::vector<Route> SizeRoutes() {
  return {
      {.question = Question::SampleSize,
       .needs = {"p12", "p21"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyPRelSampBionm",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"p12", "p21", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyPRelSampBionm",
       .lastingSize = LastingSize,
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion1", "proportion2", "correlation", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReversebyMargPRelSampBionm",
       .lastingSize = LastingSize,
       .sizes = Size},
  };
}

}  // namespace

std::vector<Route> RoutesOfPairedProportions() {
  std::vector<Route> routes = PowerRoutes();
  for (Route& route : SizeRoutes()) routes.push_back(std::move(route));
  for (Route& route : IntervalRoutesOfPairedProportions()) routes.push_back(std::move(route));
  return routes;
}

}  // namespace planner
