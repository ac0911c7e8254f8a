#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/two_groups.h"
#include "catalogue/variance.h"
#include "catalogue/words.h"

namespace planner {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

double Power(const Inputs& in) {
  const auto test = TestOfTwoVariances(in);
  return OrNaN(test ? test->Power(RatioOfVariances(in)) : kelpower::NoValue::Refused);
}

/// The ratio at which the power is least: 1, or of a two-sided test near it.
double LeastRatio(const Inputs& in) {
  const auto test = in.Flag("one-sided") ? std::nullopt : TestOfTwoVariances(in);
  return test ? test->RatioOfLeastPower() : 1;
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power, .needs = {"variance-ratio", "n"}, .accepts = {"one-sided"}, .value = Power},
      {.question = Question::Power, .needs = {"sd", "n"}, .accepts = {"one-sided"}, .value = Power},
      {.question = Question::SampleSize, .needs = {"variance-ratio"}, .accepts = {"ratio", "one-sided"}},
      {.question = Question::SampleSize, .needs = {"sd"}, .accepts = {"ratio", "one-sided"}},
  };
}

std::vector<Unknown> Unknowns() {
  return {{.input = "variance-ratio",
           .target = Question::Power,
           .trend = Trend::Rises,
           .reason = "the statistic is proportional to the ratio of the variances",
           .piece = [](const Inputs& in) -> Piece {
             return {std::max(1.0, LeastRatio(in)), infinity};
           },
           .pieceBelow = [](const Inputs& in) -> Piece {
             return {0, std::min(1.0, LeastRatio(in))};
           }}};
}

bool HasEffect(const Inputs& in) { return RatioOfVariances(in) != 1; }

}  // namespace

double RatioOfVariances(const Inputs& in) {
  if (in.Has("variance-ratio")) return in.Number("variance-ratio");
  const double ratio = in.List("sd")[0] / in.List("sd")[1];
  return ratio * ratio;
}

std::optional<kelpower::variances::TwoVariancesTest> TestOfTwoVariances(const Inputs& in) {
  return kelpower::variances::TwoVariancesTest::Checked(in.List("n")[0], in.List("n")[1], in.Alpha(),
                                                        in.Flag("one-sided"));
}

Test TwoVariancesTest() {
  Test test{.name = "two-variances",
            .title = "F test of two variances",
            .about = "Tests whether two independent normal populations have the same variance.",
            .groups = 2};
  test.parameters = {
      VarianceRatioOf("first variance over the second"),
      PerGroup("sd", "standard deviations", "standard deviation in each group").Alias("sds").Above(0),
      GroupSizes().AtLeast(2),
      RatioOfSizes(),
      OneSided(),
  };
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.sizeExists = {NoRatio({"variance-ratio"}, HasEffect), NoRatio({"sd"}, HasEffect)};
  test.derived = {{.name = "variance-ratio",
                   .label = "ratio of the variances (first over second)",
                   .needs = {"sd"},
                   .call = RatioOfVariances}};
  test.effect = [](const Inputs& in) { return std::log(RatioOfVariances(in)); };
  test.axes = {SizeRatioAxis()};
  AddWordsOfTwoVariances(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
