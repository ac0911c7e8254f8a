#include "catalogue/variance.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "variances/one_variance.h"

namespace planner {
namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();

double Power(const Inputs& in) {
  const auto test = TestOfVariance(in);
  return OrNaN(test ? test->Power(VarianceRatio(in)) : kelpower::NoValue::Refused);
}

/// The ratio at which the power is least: 1, or of a two-sided test near it.
double LeastRatio(const Inputs& in) {
  const auto test = in.Flag("one-sided") ? std::nullopt : TestOfVariance(in);
  return test ? test->RatioOfLeastPower() : 1;
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power, .needs = {"variance-ratio", "n"}, .accepts = {"one-sided"}, .value = Power},
      {.question = Question::Power, .needs = {"sd", "null-sd", "n"}, .accepts = {"one-sided"}, .value = Power},
      {.question = Question::SampleSize, .needs = {"variance-ratio"}, .accepts = {"one-sided"}},
      {.question = Question::SampleSize, .needs = {"sd", "null-sd"}, .accepts = {"one-sided"}},
  };
}

std::vector<Unknown> Unknowns() {
  constexpr const char* reason = "the statistic is proportional to the variance";
  return {
      {.input = "variance-ratio",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {std::max(1.0, LeastRatio(in)), infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {0, std::min(1.0, LeastRatio(in))};
       }},
      {.input = "sd",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("null-sd") * std::sqrt(std::max(1.0, LeastRatio(in))), infinity};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {0, in.Number("null-sd") * std::sqrt(std::min(1.0, LeastRatio(in)))};
       }},
  };
}

bool HasEffect(const Inputs& in) { return VarianceRatio(in) != 1; }

}  // namespace

double VarianceRatio(const Inputs& in) {
  if (in.Has("variance-ratio")) return in.Number("variance-ratio");
  const double ratio = in.Number("sd") / in.Number("null-sd");
  return ratio * ratio;
}

std::optional<kelpower::variances::VarianceTest> TestOfVariance(const Inputs& in) {
  return kelpower::variances::VarianceTest::Checked(in.Number("n"), in.Alpha(), in.Flag("one-sided"));
}

Test VarianceTest() {
  Test test{.name = "variance",
            .title = "Chi-square test of a variance",
            .about = "Tests whether the variance of a normal population is a fixed value."};
  test.parameters = {
      VarianceRatioOf("variance expected over that under the null hypothesis"),
      Number("sd", "standard deviation", "standard deviation expected in the population").Above(0),
      Number("null-sd", "null standard deviation", "standard deviation under the null hypothesis").Above(0),
      SingleSize("observations in the sample"),
      OneSided(),
  };
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.sizeExists = {NoRatio({"variance-ratio"}, HasEffect), NoRatio({"sd", "null-sd"}, HasEffect)};
  test.derived = {
      {.name = "variance-ratio", .label = "ratio of the variances", .needs = {"sd", "null-sd"}, .call = VarianceRatio}};
  test.effect = [](const Inputs& in) { return std::log(VarianceRatio(in)); };
  AddWordsOfVariance(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
