#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "expected_power/expected_power.h"
#include "frame/rejection.h"
#include "means/independent.h"
#include "solve/plan.h"
#include "support.h"
#include "support/share_of_studies.h"

// The circumstances of a study around its question: several comparisons, loss, clusters, a finite population, assured
// widths and uncertain effects.
namespace planner {
namespace {

InputValues With(InputValues values, const InputValues& more) {
  for (const auto& [name, value] : more) values[name] = value;
  return values;
}

/// The result of that name, as a number; of sizes, the first.
double Result(const Report& report, const std::string& name) {
  for (const Entry& entry : report.results) {
    if (entry.name != name) continue;
    const auto* sizes = std::get_if<Numbers>(&entry.value);
    return sizes ? sizes->front() : std::get<double>(entry.value);
  }
  ADD_FAILURE() << "no result " << name;
  return 0;
}

bool Has(const Report& report, const std::string& text) { return report.sentence.find(text) != std::string::npos; }

const planner::Test& TwoMeans() { return *FindTest("two-means"); }

double PowerOfD(double d, double alpha, double n1, double n2) {
  namespace means = kelpower::means;
  return *means::Power({d, {1, 1, true}, means::Sides::Two, alpha}, n1, n2);
}

TEST(Comparisons, ShareTheLevel) {
  const planner::Test& anova = *FindTest("anova");
  const InputValues design{{"means", Numbers{10, 12, 15}}, {"sd", 6.0}, {"n", Numbers{20}}};
  for (const InputValues& question : {design, With(design, {{"sd", 9.0}})}) {
    const double shared = Solve(anova, With(question, {{"comparisons", 4.0}})).value;
    EXPECT_EQ(shared, Solve(anova, With(question, {{"alpha", 0.0125}})).value);
    EXPECT_LT(shared, Solve(anova, question).value);
  }
  const Report report = Solved(anova, With(design, {{"comparisons", 4.0}}));
  EXPECT_EQ(Result(report, "level"), 0.0125);
  EXPECT_TRUE(Has(report, "at a significance level of 0.0125"));
}

TEST(Comparisons, AreOfferedByEveryTestButThoseOfAFamily) {
  const std::set<std::string> families{"pairwise", "tukey", "dunnett"};
  for (const planner::Test& test : Tests()) {
    EXPECT_EQ(FindParameter(test, Name("comparisons")) == nullptr, families.count(test.name) > 0) << test.name;
  }
}

TEST(Dropout, IsAddedToTheSizesThatAreFound) {
  const Report report = Solved(TwoMeans(), {{"effect-d", 0.5}, {"power", 0.8}, {"dropout", 0.15}});
  EXPECT_EQ(Result(report, "n"), 64);
  EXPECT_EQ(Result(report, "enrol"), 76);  // 75 of whom 63.75 are left do not suffice
  EXPECT_EQ(Result(report, "enrol-total"), 152);
  EXPECT_TRUE(Has(report, "Enrol 76 in each group (152 in total), of whom 15% may drop out."));
}

TEST(Dropout, IsOfferedByEveryTest) {
  for (const planner::Test& test : Tests()) EXPECT_TRUE(FindParameter(test, Name("dropout"))) << test.name;
}

const InputValues clusters{{"cluster-size", 20.0}, {"icc", 0.05}};

TEST(Clusters, TellAsMuchAsFewerIndependentObservations) {
  const Report report = Solved(TwoMeans(), With(clusters, {{"effect-d", 0.5}, {"n", Numbers{100, 140}}}));
  EXPECT_DOUBLE_EQ(Result(report, "design-effect"), 1.95);  // 1 + 19 x 0.05
  EXPECT_NEAR(Result(report, "power"), PowerOfD(0.5, 0.05, 100 / 1.95, 140 / 1.95), 1e-14);
  EXPECT_TRUE(Has(report, "there are 5 and 7 clusters in the groups (12 in total)"));
}

TEST(Clusters, AreFoundWhole) {
  const Answer answer = Solve(TwoMeans(), With(clusters, {{"effect-d", 0.5}, {"power", 0.8}}));
  EXPECT_EQ(answer.sizes, (Numbers{140, 140}));
  EXPECT_GE(PowerOfD(0.5, 0.05, 140 / 1.95, 140 / 1.95), 0.8);
  EXPECT_LT(PowerOfD(0.5, 0.05, 120 / 1.95, 120 / 1.95), 0.8);
}

TEST(Clusters, OfAMeanSizeAreCountedAsTheyAre) {
  const InputValues values{{"cluster-size", 12.5}, {"icc", 0.02}, {"cluster-cv", 0.5}, {"effect-d", 0.3}};
  for (double power : {0.3, 0.5, 0.7, 0.8, 0.9, 0.95}) {
    for (double ratio : {0.5, 1.0, 1.7}) {
      const Answer answer = Solve(TwoMeans(), With(values, {{"power", power}, {"ratio", ratio}}));
      const Numbers counted = PlannedSizes(Planned::Clusters, answer.inputs, answer.sizes);
      for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(answer.sizes[i], std::ceil(counted[i] * 12.5)) << power;
      EXPECT_EQ(counted[1], std::ceil(counted[0] * ratio));
    }
  }
}

TEST(Clusters, WithLossAreEnrolledWhole) {
  const Report report = Solved(TwoMeans(), With(clusters, {{"effect-d", 0.5}, {"power", 0.8}, {"dropout", 0.15}}));
  EXPECT_EQ(Result(report, "n"), 125);      // 64 x 1.95, rounded up
  EXPECT_EQ(Result(report, "enrol"), 160);  // 125 / 0.85 = 147.06 in clusters of 20
  EXPECT_EQ(Result(report, "clusters"), 8);
  EXPECT_GE(160 * 0.85, 125);
}

TEST(Clusters, OfProportionsHaveTheSameEffect) {
  const planner::Test& test = *FindTest("two-proportions");
  const InputValues design{{"proportions", Numbers{0.3, 0.5}}};
  const double clustered = Solve(test, With(design, With(clusters, {{"n", Numbers{195}}}))).value;
  EXPECT_NEAR(clustered, Solve(test, With(design, {{"n", Numbers{100}}})).value, 1e-13);
  const InputValues width{{"n", Numbers{195}}, {"interval", true}};
  EXPECT_NEAR(Solve(test, With(design, With(clusters, width))).value,
              Solve(test, With(design, {{"n", Numbers{100}}, {"interval", true}})).value, 1e-13);
}

TEST(Population, NarrowsTheIntervalOfAMean) {
  const planner::Test& mean = *FindTest("mean");
  const InputValues design{{"sd", 10.0}, {"n", 40.0}, {"interval", true}};
  const double infinite = Solve(mean, design).value;
  EXPECT_NEAR(Solve(mean, With(design, {{"population", 300.0}})).value, infinite * std::sqrt(260.0 / 299), 1e-14);
  EXPECT_EQ(Solve(mean, With(design, {{"population", 40.0}})).value, 0);
}

// Cochran 1977, section 4.4: n = n0 / (1 + (n0 - 1) / N).
TEST(Population, NeedsFewerForAProportion) {
  const planner::Test& test = *FindTest("proportion");
  const std::string wald = "wald";
  const InputValues wish{{"proportion", 0.3}, {"half-width", 0.05}, {"interval-method", wald}};
  const double infinite = 1.959963984540054 * 1.959963984540054 * 0.21 / 0.0025;
  for (double population : {323.0, 1000.0, 20000.0}) {
    const Answer answer = Solve(test, With(wish, {{"population", population}}));
    EXPECT_EQ(answer.sizes.front(), std::ceil(infinite / (1 + (infinite - 1) / population))) << population;
  }
}

TEST(Assurance, IsHadFirstAtTheSizesFound) {
  const InputValues wish{{"half-width", 4.0}, {"assurance", 0.9}};
  struct Case {
    std::string test;
    InputValues design;
  };
  for (const auto& [name, design] :
       {Case{"mean", {{"sd", 10.0}}}, Case{"paired-means", {{"sd-difference", 7.0}}},
        Case{"two-means", {{"sd", Numbers{10}}}}, Case{"two-means", {{"sd", Numbers{10, 14}}, {"ratio", 1.5}}}}) {
    const planner::Test& test = *FindTest(name);
    const Answer answer = Solve(test, With(design, wish));
    EXPECT_GE(answer.assurance, 0.9) << name;
    InputValues at = With(design, {{"half-width", 4.0}, {"solve", std::string("assurance")}});
    const double ratio = at.contains("ratio") ? 1.5 : 1;
    at.erase("ratio");
    const auto assuranceOf = [&](double n) {
      const Value sizes = test.groups == 1 ? Value(n) : Value(Numbers{n, std::ceil(n * ratio)});
      return Solve(test, With(at, {{"n", sizes}})).assurance;
    };
    EXPECT_EQ(assuranceOf(answer.sizes.front()), answer.assurance) << name;
    EXPECT_LT(assuranceOf(answer.sizes.front() - 1), 0.9) << name;
    EXPECT_LE(answer.value, 4) << name;
  }
}

TEST(Assurance, IsTheShareOfSimulatedStudies) {
  const Answer answer =
      Solve(*FindTest("mean"), {{"sd", 10.0}, {"n", 70.0}, {"half-width", 2.5}, {"solve", std::string("assurance")}});
  const double t = kelpower::IntervalQuantileT(0.05, 69);
  const auto share = kelpower::Simulate(40000, 7, [&](auto& engine) {
    return t * std::sqrt(kelpower::DrawNormal(engine, 70, 3, 10).variance / 70) <= 2.5;
  });
  EXPECT_LT(share.StandardErrorsFrom(answer.assurance), kelpower::kMostStandardErrors);
}

double Binomial(double n, double k, double p) {
  const double logChoices = std::lgamma(n + 1) - std::lgamma(k + 1) - std::lgamma(n - k + 1);
  return std::exp(logChoices + k * std::log(p) + (n - k) * std::log1p(-p));
}

/// Half the length of Wilson's interval.
double Wilson(double n, double k) {
  const double z = 1.959963984540054;
  const double p = k / n;
  return z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n)) / (1 + z * z / n);
}

TEST(Assurance, OfAProportionIsThatOfAllCounts) {
  const InputValues wish{{"proportion", 0.3}, {"half-width", 0.1}, {"assurance", 0.9}};
  const Answer answer = Solve(*FindTest("proportion"), wish);
  const auto assuranceOf = [](double n) {
    double sum = 0;
    for (double k = 0; k <= n; ++k) sum += Wilson(n, k) <= 0.1 ? Binomial(n, k, 0.3) : 0;
    return sum;
  };
  EXPECT_NEAR(assuranceOf(answer.sizes.front()), answer.assurance, 1e-12);
  double first = 1;
  while (assuranceOf(first) < 0.9) ++first;
  double lasting = 400;
  while (assuranceOf(lasting - 1) >= 0.9) --lasting;
  EXPECT_EQ(answer.sizes, Numbers{first});
  EXPECT_EQ(answer.lastingSizes, Numbers{lasting});
}

TEST(Assurance, OfStableSizesIsThatOfTheLastingOne) {
  const InputValues wish{
      {"proportion", 0.02}, {"half-width", 0.01}, {"assurance", 0.95}, {"interval-method", std::string("wald")}};
  const planner::Test& test = *FindTest("proportion");
  const Answer first = Solve(test, wish);
  EXPECT_EQ(first.sizes, Numbers{1});  // neither 0 nor 1 event among 1 leaves Wald's interval a width
  const Answer stable = Solve(test, With(wish, {{"stable", true}}));
  EXPECT_EQ(stable.sizes, first.lastingSizes);
  EXPECT_GE(stable.assurance, 0.95);
}

TEST(EffectSd, AveragesThePower) {
  const Answer answer = Solve(TwoMeans(), {{"effect-d", 0.5}, {"n", Numbers{64}}, {"effect-sd", 0.2}});
  const kelpower::TTest test = kelpower::TTest::TwoSided(0.05, 126);
  const auto powerAt = [&](double d) { return test.PowerUpperTail(d * std::sqrt(32.0)); };
  EXPECT_NEAR(answer.value, *kelpower::expected_power::ExpectedPower(powerAt, {0.5, 0.2}), 1e-10);
}

TEST(EffectSd, AveragesThePowerOfWelchsTest) {
  const InputValues design{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40, 60}}};
  namespace means = kelpower::means;
  const auto test = means::TwoSampleTest({10, 14, false}, means::Sides::One, 0.05, 40, 60);
  const auto powerAt = [&](double at) { return test->AtCriticalValue().PowerUpperTail(at / test->StandardError()); };
  const Answer answer = Solve(TwoMeans(), With(design, {{"effect-sd", 2.0}, {"one-sided", true}}));
  EXPECT_NEAR(answer.value, *kelpower::expected_power::ExpectedPower(powerAt, {5, 2}), 1e-10);
}

TEST(EffectSd, IsTheShareOfSimulatedStudies) {
  const Answer answer =
      Solve(*FindTest("mean"), {{"mean", 4.0}, {"sd", 10.0}, {"n", 50.0}, {"effect-sd", 1.5}, {"one-sided", true}});
  const double critical = kelpower::TTest::OneSided(0.05, 49).critical;
  const auto share = kelpower::Simulate(40000, 11, [&](auto& engine) {
    std::normal_distribution<double> belief(4, 1.5);
    const kelpower::Moments sample = kelpower::DrawNormal(engine, 50, belief(engine), 10);
    return sample.mean / std::sqrt(sample.variance / 50) > critical;
  });
  EXPECT_LT(share.StandardErrorsFrom(answer.value), kelpower::kMostStandardErrors);
}

TEST(EffectSd, InItsUnitIsThatOfTheStandardizedEffect) {
  const InputValues plain{{"effect-d", -0.4}, {"n", 50.0}, {"effect-sd", 0.15}};
  const InputValues inUnit{{"mean", 96.0}, {"test-value", 100.0}, {"sd", 10.0}, {"n", 50.0}, {"effect-sd", 1.5}};
  EXPECT_NEAR(Solve(*FindTest("mean"), plain).value, Solve(*FindTest("mean"), inUnit).value, 1e-12);
}

TEST(EffectSd, OfASmallUncertaintyIsThePowerOfTheTail) {
  const InputValues design{{"r", 0.3}, {"null", 0.1}, {"n", 80.0}};
  const planner::Test& pearson = *FindTest("pearson");
  const double expected = Solve(pearson, With(design, {{"effect-sd", 1e-6}})).value;
  const InputValues oneTail{{"one-sided", true}, {"alpha", 0.025}};
  EXPECT_NEAR(expected, Solve(pearson, With(design, oneTail)).value, 1e-9);
  const InputValues below{{"r", -0.3}, {"null", -0.1}, {"n", 80.0}, {"effect-sd", 0.1}};
  EXPECT_NEAR(Solve(pearson, below).value, Solve(pearson, With(design, {{"effect-sd", 0.1}})).value, 1e-12);
}

TEST(EffectSd, HasALimitThatNoSizePasses) {
  const InputValues belief{{"effect-d", 0.5}, {"effect-sd", 0.4}};  // the limit is Phi(1.25) = 0.8944
  EXPECT_NEAR(Result(Solved(TwoMeans(), With(belief, {{"power", 0.8}})), "expected-power-limit"), 0.89435022633, 1e-10);
  const Answer answer = Solve(TwoMeans(), With(belief, {{"power", 0.89}}));
  EXPECT_GE(answer.value, 0.89);
  try {
    Solve(TwoMeans(), With(belief, {{"power", 0.9}}));
    FAIL() << "the limit was passed";
  } catch (const NoSolution& failure) {
    EXPECT_EQ(failure.problem.code, Code::BeyondPowerLimit);
    EXPECT_EQ(Said(failure),
              "--power 0.9 is not reached by any sample size: with --effect-sd 0.4 the expected power stays below "
              "0.8944, the probability that the effect has the direction expected.");
  }
}

TEST(EffectSd, MayNeedFewWhereTheEffectExpectedIsTiny) {
  const Answer answer = Solve(*FindTest("mean"), {{"effect-d", 1e-9}, {"effect-sd", 1.0}, {"power", 0.4}});
  EXPECT_GE(answer.value, 0.4);
  EXPECT_LT(answer.sizes.front(), 1000);
}

TEST(EffectSd, GoesWithClustersAndComparisons) {
  const InputValues both = With(clusters, {{"effect-sd", 0.1}, {"comparisons", 2.0}, {"effect-d", 0.5}});
  const InputValues plain{{"effect-sd", 0.1}, {"alpha", 0.025}, {"effect-d", 0.5}, {"n", Numbers{100}}};
  EXPECT_NEAR(Solve(TwoMeans(), With(both, {{"n", Numbers{195}}})).value, Solve(TwoMeans(), plain).value, 1e-12);
}

}  // namespace
}  // namespace planner
