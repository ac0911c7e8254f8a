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
  const Answer answer = Solve(*FindTest("two-proportions"), {{"proportions", Numbers{0.6, 0.3}},
                                                             {"power", 0.8},
                                                             {"ratio", 1.5},
                                                             {"one-sided", true},
                                                             {"continuity-correction", true},
                                                             {"pooled", true}});
  // The ratio applies to the first size before it is rounded up.
  EXPECT_GT(answer.sizes[1], 1.5 * (answer.sizes[0] - 1));
  EXPECT_LE(answer.sizes[1], std::ceil(1.5 * answer.sizes[0]));
  EXPECT_GE(answer.value, 0.8);
}

// 87 x 87 sizes by the z test and 57 x 57 by the conditional one: as many as take a second or so.
TEST(TwoProportions, DrawsFewerSizesTheLongerAnExactPowerTakes) {
  const planner::Test& test = *FindTest("two-proportions");
  const auto chart = std::find_if(test.charts.begin(), test.charts.end(),
                                  [](const Chart& candidate) { return candidate.name == "sizes"; });
  ASSERT_NE(chart, test.charts.end());
  const auto usual = [&](const std::string& method, double size) {
    const InputValues design{
        {"proportions", Numbers{0.6, 0.3}}, {"n", Numbers{size}}, {"test", method}, {"exact", method != "conditional"}};
    const Range range = chart->axes[0].usual(MakeInputs(test, design, nullptr), 0.8);
    return Numbers{range.from, range.to};
  };
  EXPECT_EQ(usual("z", 2000), (Numbers{1957, 2043}));
  EXPECT_EQ(usual("conditional", 300), (Numbers{272, 328}));
  EXPECT_EQ(usual("conditional", 9000), (Numbers{8998, 9002}));
  EXPECT_EQ(usual("z", 20), (Numbers{5, 40}));
}

TEST(Pairwise, DrawsAtTheAdjustedLevel) {
  for (const char* adjustment : {"bonferroni", "sidak", "none"}) {
    const InputValues design{{"means", Numbers{10, 12, 15}},
                             {"sd", 6.0},
                             {"n", Numbers{20}},
                             {"pair", Numbers{1, 3}},
                             {"adjust", std::string(adjustment)}};
    const ChartData chart = ComputeChart(*FindTest("pairwise"), {.name = "n"}, design);
    ASSERT_TRUE(chart.mark) << adjustment;
    const auto at = static_cast<std::size_t>(chart.mark->at[0] - chart.series.x[0]);
    EXPECT_NEAR(chart.series.power[at], chart.mark->power, 1e-13) << adjustment;
  }
}

TEST(TwoMeans, DrawsDifferencesAroundZero) {
  const auto range = [](const Numbers& means) {
    const InputValues design{{"means", means}, {"sd", Numbers{10, 14}}, {"n", Numbers{40}}};
    const Numbers x = ComputeChart(*FindTest("two-means"), {.name = "difference"}, design).series.x;
    return Numbers{x.front(), x.back()};
  };
  EXPECT_EQ(range({52, 47}), (Numbers{-25, 25}));
  EXPECT_EQ(range({47, 47}), (Numbers{-100, 100}));
}

TEST(TwoMeans, DrawsNothingWhereARatioLeavesOneGroupEmpty) {
  const InputValues design{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{2}}};
  EXPECT_THROW(
      ComputeChart(*FindTest("two-means"), {.name = "ratio-difference", .from = {0.001, 0}, .to = {1000, 12}}, design),
      InputError);
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

TEST(ParameterAxis, SaysItsUnit) {
  const Parameter weight = Number("mean", "weight", "weight of a subject").Above(0);
  EXPECT_EQ(ParameterAxis(weight, "w", nullptr).title, "weight");
  EXPECT_EQ(ParameterAxis(weight.Unit("kg"), "w", nullptr).title, "weight (kg)");
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
