#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "catalogue/axes.h"
#include "kelpower.h"
#include "solve/make_inputs.h"
#include "support.h"

// Answers of single tests that no example of theirs shows.
namespace planner {
namespace {

double NumberOf(const Report& report, const std::string& name) {
  for (const Entry& entry : report.results) {
    if (entry.name == name) return std::get<double>(entry.value);
  }
  ADD_FAILURE() << "no result " << name;
  return 0;
}

TEST(Proportion, HasALargeSampleSize) {
  const Report report =
      Solved(*FindTest("proportion"), {{"proportion", 0.6}, {"null", 0.45}, {"power", 0.8}, {"correction", true}});
  const double size = NumberOf(report, "n");
  EXPECT_EQ(NumberOf(report, "power"), PowerOneSampBinom(size, 0.6, 0.45, 0, 0, 0.05, 1, nullptr));
  EXPECT_GE(NumberOf(report, "power"), 0.8);
  EXPECT_LT(PowerOneSampBinom(size - 1, 0.6, 0.45, 0, 0, 0.05, 1, nullptr), 0.8);
}

TEST(PairedProportions, TellsTheSizeFromWhichOnThePowerLasts) {
  const Report report =
      Solved(*FindTest("paired-proportions"), {{"p12", 0.3}, {"p21", 0.1}, {"power", 0.8}, {"exact", true}});
  const double size = NumberOf(report, "n");
  const auto power = [](double n) { return PowerbyPRelSampBionm(n, 0.3, 0.1, 0, 1, 0.05, nullptr); };
  EXPECT_EQ(size, PowerReversebyPRelSampBionm(0.8, 0.3, 0.1, 0, 1, 0.05, nullptr));
  EXPECT_EQ(NumberOf(report, "power"), power(size));
  const double lasting = NumberOf(report, "lasting-n");
  EXPECT_GE(lasting, size);
  EXPECT_LT(power(lasting - 1), 0.8);
  for (double n = lasting; n < lasting + 50; ++n) EXPECT_GE(power(n), 0.8) << n;
}

TEST(PairedProportions, HasAnExactSizeForMarginalProportions) {
  const Report report =
      Solved(*FindTest("paired-proportions"),
             {{"proportion1", 0.6}, {"proportion2", 0.4}, {"correlation", 0.3}, {"power", 0.8}, {"exact", true}});
  EXPECT_EQ(NumberOf(report, "n"), PowerReversebyMargPRelSampBionm(0.8, 0.6, 0.4, 0.3, 0, 1, 0.05, nullptr));
  EXPECT_GE(NumberOf(report, "power"), 0.8);
}

TEST(TwoProportions, DoesNotSquareTheSecondSize) {
  const Answer answer = Solve(
      *FindTest("two-proportions"),
      {{"proportions", Numbers{0.6, 0.3}}, {"power", 0.8}, {"ratio", 1.5}, {"one-sided", true}, {"correction", true}});
  // The ratio applies to the first size before it is rounded up.
  EXPECT_GT(answer.sizes[1], 1.5 * (answer.sizes[0] - 1));
  EXPECT_LE(answer.sizes[1], std::ceil(1.5 * answer.sizes[0]));
  EXPECT_GE(answer.value, 0.8);
}

TEST(TwoProportions, DrawsFewerPointsTheLongerAnExactPowerTakes) {
  const planner::Test& test = *FindTest("two-proportions");
  const auto points = [&](const std::string& method, double size) {
    const InputValues design{{"proportions", Numbers{0.5, 0.46}}, {"n", Numbers{size}}, {"test", method}};
    return ComputeChart(test, {.name = "sizes"}, design).First().value.size();
  };
  EXPECT_LT(points("conditional", 300), points("z", 300) / 4);
}

TEST(Pairwise, DrawsAtTheAdjustedLevel) {
  for (const char* adjustment : {"bonferroni", "sidak", "none"}) {
    const InputValues design{{"means", Numbers{10, 12, 15}},
                             {"sd", 6.0},
                             {"n", Numbers{20}},
                             {"pair", Numbers{1, 3}},
                             {"adjust", std::string(adjustment)}};
    const ChartData chart = ComputeChart(*FindTest("pairwise"), {"n", {2}, {40}}, design);
    const std::optional<DesignMark>& mark = chart.curves.front().mark;
    ASSERT_TRUE(mark) << adjustment;
    EXPECT_NEAR(chart.First().value[18], mark->value, 1e-13) << adjustment;
  }
}

TEST(TwoMeans, DrawNoRatioThatLeavesAGroupLessThanOne) {
  const InputValues design{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{2}}};
  const Numbers ratios =
      ComputeChart(*FindTest("two-means"), {.name = "ratio", .from = {0.001}, .to = {1000}}, design).First().x;
  EXPECT_GT(ratios.front(), 1.0 / 3);
  EXPECT_LT(ratios.back(), 3);
}

TEST(Spearman, HasAPowerAtThreeCasesByTheVarianceThatAllowsThem) {
  const Report report =
      Solved(*FindTest("spearman"), {{"r", 0.9}, {"n", 3.0}, {"variance", std::string("caruso-cliff")}});
  EXPECT_EQ(NumberOf(report, "power"), PowerbyOneSampSpearman(3, 0.9, 0, 2, 0, 0.05));
}

TEST(Power, IsShownToFourDecimalsButNeverAs0Or1) {
  std::set<std::string> shown;
  for (double n = 2; n <= 300; n += 1) {
    const Report report = Solved(*FindTest("mean"), {{"effect-d", 0.6}, {"n", n}, {"alpha", 1e-6}});
    const double power = NumberOf(report, "power");
    const std::string& text = report.results.back().shown;
    if (power > 0.99995) {
      EXPECT_EQ(text, ">0.9999");
    } else if (power < 0.00005) {
      EXPECT_EQ(text, "<0.0001");
    } else {
      EXPECT_NEAR(std::stod(text), power, 0.5001e-4) << text;
    }
    shown.insert(text);
  }
  EXPECT_EQ(shown.count(">0.9999") + shown.count("<0.0001"), 2u);
  EXPECT_EQ(shown.lower_bound("0.9996")->substr(0, 5), "0.999");
}

// Below the level any size has the power, down to one without error degrees of freedom, at which the search ends.
TEST(Partial, HasASizeAtWhichTheTestExists) {
  const Report report = Solved(*FindTest("partial"), {{"r", 0.3}, {"partialled-out", 3.0}, {"power", 0.01}});
  EXPECT_EQ(NumberOf(report, "n"), 7);
}

TEST(Anova, RefusesMoreGroupsThanCanBeReported) {
  const InputValues given{{"means", Numbers(10001, 1.0)}, {"sd", 6.0}, {"n", Numbers{20}}};
  try {
    Solved(*FindTest("anova"), given);
    ADD_FAILURE() << "nothing thrown";
  } catch (const InputError& error) {
    EXPECT_EQ(Said(error), "--means gives 10001 groups, but at most 10000 are allowed.");
  }
}

// A sum over many outcomes may pass 1 by its rounding.
TEST(TwoProportions, HaveAPowerOfAtMostOne) {
  for (double p = 0.9; p < 0.995; p += 0.01) {
    const InputValues design{{"proportions", Numbers{0.02, p}}, {"n", Numbers{50}}, {"test", "conditional"}};
    EXPECT_LE(NumberOf(Solved(*FindTest("two-proportions"), design), "power"), 1) << p;
  }
}

}  // namespace
}  // namespace planner
