#include "solve/densities.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "support.h"
#include "words/example_inputs.h"
#include "words/explain.h"

namespace planner {
namespace {

double LevelOf(const Answer& answer) {
  const auto& figures = DetailsOf(answer).figures;
  const auto level = std::find_if(figures.begin(), figures.end(), [](const auto& one) { return one.name == "level"; });
  return level == figures.end() ? answer.inputs.Alpha() : level->value;
}

/// Simpson's rule over the points from `from` to `to`, of which there is an odd number.
double Integral(const Numbers& x, const Numbers& y) {
  double sum = 0;
  for (std::size_t i = 0; i + 2 < x.size(); i += 2) sum += (x[i + 2] - x[i]) / 6 * (y[i] + 4 * y[i + 1] + y[i + 2]);
  return sum;
}

TEST(Densities, AreasOfEveryExampleAreItsLevelAndItsPower) {
  int count = 0;
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      SCOPED_TRACE(example.arguments);
      const Answer answer = Solve(test, InputsOf(test, example));
      const auto statistic = DetailsOf(answer).statistic;
      if (!statistic) continue;
      const Densities densities = DensitiesOf(*statistic);
      EXPECT_NEAR(densities.power, answer.value, 2e-12);
      if (statistic->family == StatisticFamily::Count) {
        EXPECT_LE(densities.level, answer.inputs.Alpha());
      } else if (!answer.inputs.Has("correction") || !answer.inputs.Flag("correction")) {
        EXPECT_NEAR(densities.level, LevelOf(answer), 1e-12);
      }
      EXPECT_TRUE(densities.rejectsTo || densities.rejectsFrom);
      EXPECT_TRUE(std::is_sorted(densities.x.begin(), densities.x.end()));
      ASSERT_EQ(densities.x.size(), densities.with.size());
      ASSERT_EQ(densities.x.size(), densities.without.size());
      for (double density : densities.with) EXPECT_GE(density, 0);
      ++count;
    }
  }
  EXPECT_GE(count, 15);
}

// Chi-square, and F that is stretched, are not among the families.
bool IsOfAnotherFamily(const planner::Test& test) {
  const std::set<std::string> others{"goodness-of-fit", "contingency", "variance", "two-variances"};
  return others.count(test.name) > 0;
}

TEST(Densities, EveryTestOfOneStatisticHasThem) {
  for (const planner::Test& test : Tests()) {
    bool hasStatistic = false;
    for (const Example& example : test.examples) {
      const Answer answer = Solve(test, InputsOf(test, example));
      hasStatistic = hasStatistic || DetailsOf(answer).statistic;
      EXPECT_TRUE(IsAboutPower(answer.Asked()) || !DetailsOf(answer).statistic) << example.arguments;
    }
    EXPECT_NE(hasStatistic, IsOfAnotherFamily(test)) << test.name;
  }
}

TEST(Densities, HaveTheirWholeMass) {
  const Densities t = DensitiesOf({.family = StatisticFamily::T, .df1 = 10, .noncentrality = 2.5, .rejectsFrom = 2});
  EXPECT_NEAR(Integral(t.x, t.with), 1, 0.004);
  EXPECT_NEAR(Integral(t.x, t.without), 1, 0.004);
  const Densities f =
      DensitiesOf({.family = StatisticFamily::F, .df1 = 3, .df2 = 40, .noncentrality = 9, .rejectsFrom = 2.8});
  EXPECT_NEAR(Integral(f.x, f.with), 1, 0.004);
  EXPECT_NEAR(Integral(f.x, f.without), 1, 0.004);
  const Densities normal = DensitiesOf({.family = StatisticFamily::Normal, .mean = -1, .sd = 1.5, .rejectsTo = -2});
  EXPECT_NEAR(Integral(normal.x, normal.with), 1, 0.004);
  EXPECT_FALSE(normal.rejectsFrom);
  const Densities counts = DensitiesOf({.family = StatisticFamily::Count,
                                        .trials = 30,
                                        .nullProportion = 0.5,
                                        .proportion = 0.7,
                                        .rejectsTo = -1,
                                        .rejectsFrom = 20});
  double mass = 0;
  for (double probability : counts.with) mass += probability;
  EXPECT_NEAR(mass, 1, 1e-8);
  EXPECT_FALSE(counts.rejectsTo);
}

// Dense points from the definition of the t and F densities, by their logarithms.
TEST(Densities, AreThoseOfTheDefinition) {
  constexpr double pi = 3.14159265358979324;
  const Densities t = DensitiesOf({.family = StatisticFamily::T, .df1 = 7, .noncentrality = 1, .rejectsFrom = 2});
  for (std::size_t i = 0; i < t.x.size(); ++i) {
    const double logConstant = std::lgamma(4.0) - std::lgamma(3.5) - 0.5 * std::log(7 * pi);
    EXPECT_NEAR(t.without[i], std::exp(logConstant - 4 * std::log1p(t.x[i] * t.x[i] / 7)), 1e-8);
  }
  const Densities f =
      DensitiesOf({.family = StatisticFamily::F, .df1 = 4, .df2 = 10, .noncentrality = 2, .rejectsFrom = 3});
  for (std::size_t i = 0; i < f.x.size(); ++i) {
    const double ratio = 0.4 * f.x[i];
    const double logBeta = std::lgamma(2.0) + std::lgamma(5.0) - std::lgamma(7.0);
    const double expected = std::exp(2 * std::log(0.4) + std::log(f.x[i]) - 7 * std::log1p(ratio) - logBeta);
    EXPECT_NEAR(f.without[i], expected, 1e-8) << f.x[i];
  }
}

TEST(Densities, BeginAboveAPole) {
  const Densities f =
      DensitiesOf({.family = StatisticFamily::F, .df1 = 1, .df2 = 20, .noncentrality = 4, .rejectsFrom = 4.35});
  EXPECT_GT(f.x.front(), 0);
  EXPECT_GT(f.without.front(), f.without[1]);
  for (double density : f.without) EXPECT_TRUE(std::isfinite(density));
}

TEST(Densities, OfManyTrialsAreSomeCounts) {
  const Densities counts = DensitiesOf({.family = StatisticFamily::Count,
                                        .trials = 1e8,
                                        .nullProportion = 0.5,
                                        .proportion = 0.6,
                                        .rejectsTo = -1,
                                        .rejectsFrom = 5.001e7});
  EXPECT_LE(counts.x.size(), 2001u);
  EXPECT_NEAR(counts.power, 1, 1e-12);
}

}  // namespace
}  // namespace planner
