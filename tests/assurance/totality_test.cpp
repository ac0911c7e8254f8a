#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "assurance/correlation.h"
#include "assurance/means.h"
#include "assurance/proportion.h"
#include "assurance/welch.h"

namespace kelpower::assurance {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kOdd[] = {0,          -1,    5e-324,    1e-17,      1e-9,
                           0.05,       0.3,   1,         2,          30.5,
                           2147483647, 1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()};

void ExpectProbability(const Answer& answer) {
  if (!answer) return;
  EXPECT_TRUE(std::isnan(*answer) || (*answer >= 0 && *answer <= 1)) << *answer;
}

void ExpectSize(const Answer& answer) {
  if (!answer) return;
  EXPECT_TRUE(*answer >= 1 && *answer <= largestCount && *answer == std::floor(*answer)) << *answer;
}

/// All triples of odd numbers.
template <typename Call>
void ForOddTriples(Call call) {
  for (const double a : kOdd) {
    for (const double b : kOdd) {
      for (const double c : kOdd) call(a, b, c);
    }
  }
}

TEST(Totality, OfMeans) {
  ForOddTriples([](double a, double b, double c) {
    ExpectProbability(Assurance(MeanEstimate::OfMean(a), {b, 0.05}, c));
    ExpectProbability(Assurance(MeanEstimate::OfDifference(2, a), {b, c}, 20));
    ExpectSize(FirstSize(MeanEstimate::OfMean(a), {b, c}, 0.8));
    ExpectSize(FirstSize(MeanEstimate::OfDifference(1, a), {b, 0.05}, c));
    ExpectSize(FirstSize(MeanEstimate::OfContrast({a, 1, -1}, {b, 1, c}, 1), {0.5, 0.05}, 0.8));
    ExpectSize(FirstSize(MeanEstimate{1, 1, 1, a, b}, {0.5, 0.05}, c));
  });
}

TEST(Totality, OfWelch) {
  ForOddTriples([](double a, double b, double c) {
    ExpectProbability(Assurance(UnequalGroups{a, 1}, {1, b}, c, 20));
    ExpectProbability(Assurance(UnequalGroups{1, 2}, {a, 0.05}, b, c));
  });
  for (const double a : kOdd) {
    ExpectSize(FirstSize(UnequalGroups{a, 1}, {1, 0.05}, 1, 0.8));
    ExpectSize(FirstSize(UnequalGroups{2, 1}, {a, 0.05}, 1, 0.8));
    ExpectSize(FirstSize(UnequalGroups{2, 1}, {1, a}, 1, 0.8));
    ExpectSize(FirstSize(UnequalGroups{2, 1}, {1, 0.05}, a, 0.8));
    ExpectSize(FirstSize(UnequalGroups{2, 1}, {1, 0.05}, 1, a));
  }
}

TEST(Totality, OfCorrelations) {
  ForOddTriples([](double a, double b, double c) {
    for (const CorrelationModel model : {CorrelationModel::Exact, CorrelationModel::Fisher}) {
      ExpectProbability(Assurance(CorrelationInterval{a, 0, true, model}, {b, 0.05}, c));
      ExpectProbability(Assurance(CorrelationInterval{0.3, a, false, model}, {0.2, b}, c));
      ExpectSize(FirstSize(CorrelationInterval{a, b, true, model}, {c, 0.05}, 0.8));
      ExpectSize(FirstSize(CorrelationInterval{0.3, 2, false, model}, {a, b}, c));
    }
  });
}

TEST(Totality, OfAProportion) {
  const auto wald = [](double size, double events) {
    return 1.96 * std::sqrt(events / size * (1 - events / size) / size);
  };
  ForOddTriples([&](double a, double b, double c) {
    ExpectProbability(Assurance({wald, a, b}, c));
    ExpectSize(FirstSize({wald, a, b}, c));
    ExpectSize(LastingSize({wald, a, b}, c));
    ExpectSize(LastingSize({wald, 0.3, a}, b, c));
  });
}

}  // namespace
}  // namespace kelpower::assurance
