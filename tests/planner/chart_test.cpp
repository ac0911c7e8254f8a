
#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "kelpower.h"
#include "support.h"
#include "words/numbers.h"
#include "words/render.h"

namespace planner {
namespace {

const Numbers means{10, 12, 15};
const Numbers sizes{20, 25, 30};
const InputValues design{{"means", means}, {"sd", 6.0}, {"n", sizes}};

ChartData Anova(const ChartRequest& request, const InputValues& given = design) {
  return ComputeChart(*FindTest("anova"), request, given);
}

ChartRequest Named(const std::string& name) { return {.name = name}; }

std::string Complaint(const std::string& test, const ChartRequest& request, const InputValues& given = design) {
  try {
    ComputeChart(*FindTest(test), request, given);
  } catch (const InputError& error) {
    return Said(error);
  }
  ADD_FAILURE() << "nothing thrown";
  return "";
}

TEST(Chart, SizeCurvePassesThroughTheDesign) {
  const ChartData chart = Anova(Named("n"));
  const double power = PowerOverallTest(3, means.data(), 6, sizes.data(), 0.05);
  ASSERT_TRUE(chart.mark);
  EXPECT_EQ(chart.mark->at, Numbers{75});
  EXPECT_EQ(chart.mark->power, power);
  const auto at = static_cast<std::size_t>(75 - chart.series.x.front());
  EXPECT_EQ(chart.series.x[at], 75);
  EXPECT_EQ(chart.series.power[at], power);
}

TEST(Chart, UsualRangesOfPairedProportionsHaveAPowerAtEachPoint) {
  for (const std::string name : {"ratio", "odds-ratio"}) {
    for (const auto& [p12, p21] : {std::pair(0.3, 0.1), std::pair(0.6, 0.2)}) {
      const InputValues pairs{{"p12", p12}, {"p21", p21}, {"n", 60.0}};
      const ChartData chart = ComputeChart(*FindTest("paired-proportions"), Named(name), pairs);
      ASSERT_EQ(chart.series.x.size(), 101u) << name << ' ' << p12;
      for (double power : chart.series.power) EXPECT_TRUE(power > 0 && power <= 1) << name << ' ' << p12;
    }
  }
}

TEST(Chart, UsualRangeOfAnEffectHoldsTheDesign) {
  const InputValues regression{{"effect-f2", 0.15}, {"predictors", 5.0}, {"n", 80.0}};
  const ChartData chart = ComputeChart(*FindTest("regression"), Named("effect"), regression);
  ASSERT_TRUE(chart.mark);
  EXPECT_EQ(chart.mark->at, Numbers{0.15});
}

TEST(Chart, DeviationCurveIsThePowerAtEachDeviation) {
  const ChartData chart = Anova({"sd", {2}, {12}, 0.25});
  ASSERT_EQ(chart.series.x, (Numbers{2, 4.5, 7, 9.5, 12}));
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(chart.series.power[i], PowerOverallTest(3, means.data(), chart.series.x[i], sizes.data(), 0.05));
  }
}

TEST(Chart, SurfaceIsStoredRowByRow) {
  const Series series = Anova({"n-sd", {60, 2}, {62, 12}, 0.5}).series;
  ASSERT_EQ(series.x, (Numbers{60, 61, 62}));
  ASSERT_EQ(series.y, (Numbers{2, 7, 12}));
  for (std::size_t j = 0; j < 3; ++j) {
    const InputValues at{{"means", means}, {"sd", series.y[j]}, {"n", sizes}};
    EXPECT_EQ(series.power[2 * 3 + j], Anova({"n", {61}, {62}}, at).series.power[1]);
  }
}

/// The power on a curve where the design is marked.
double PowerAtMark(const ChartData& chart) {
  const Numbers& x = chart.series.x;
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (std::abs(x[i] - chart.mark->at[0]) < 1e-9) return chart.series.power[i];
  }
  ADD_FAILURE() << chart.chart->name << " has no point at the design";
  return 0;
}

void ExpectThroughTheDesign(const std::string& test, const ChartRequest& request, const InputValues& given) {
  constexpr double rounding = 1e-12;
  const ChartData chart = ComputeChart(*FindTest(test), request, given);
  ASSERT_TRUE(chart.mark) << test << ' ' << request.name;
  EXPECT_NEAR(PowerAtMark(chart), chart.mark->power, rounding) << test << ' ' << request.name;
}

TEST(Chart, CurvesOfMeansPassThroughTheDesign) {
  const InputValues effect{{"effect-d", 0.4}, {"n", 40.0}, {"one-sided", true}};
  ExpectThroughTheDesign("mean", Named("n"), effect);
  ExpectThroughTheDesign("mean", Named("effect"), effect);
  ExpectThroughTheDesign("mean", Named("n"), {{"mean", 104.0}, {"test-value", 100.0}, {"sd", 10.0}, {"n", 40.0}});
  ExpectThroughTheDesign("paired-means", Named("n"), {{"mean-difference", 4.0}, {"sd-difference", 8.0}, {"n", 44.0}});
  const InputValues unequal{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40, 60}}};
  ExpectThroughTheDesign("two-means", {"ratio", {0.5}, {2.5}, 0.25}, unequal);
  ExpectThroughTheDesign("two-means", {"difference", {-10}, {10}, 0.25}, unequal);
}

TEST(Chart, CurvesOfProportionsPassThroughTheDesign) {
  for (const bool exact : {false, true}) {
    const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}, {"exact", exact}};
    for (const char* name : {"n", "null", "alternative", "difference"}) {
      ExpectThroughTheDesign("proportion", Named(name), one);
    }
    const InputValues pairs{{"p12", 0.32}, {"p21", 0.08}, {"n", 50.0}, {"exact", exact}};
    ExpectThroughTheDesign("paired-proportions", Named("n"), pairs);
    ExpectThroughTheDesign("paired-proportions", {"ratio", {2}, {6}, 0.25}, pairs);
    const InputValues marginals{
        {"proportion1", 0.6}, {"proportion2", 0.4}, {"correlation", 0.3}, {"n", 60.0}, {"exact", exact}};
    ExpectThroughTheDesign("paired-proportions", Named("correlation"), marginals);
  }
}

TEST(Chart, CurvesOfTwoProportionsPassThroughTheDesign) {
  const std::vector<InputValues> effects = {{{"proportions", Numbers{0.5, 0.4}}},
                                            {{"proportion1", 0.5}, {"risk-difference", 0.1}},
                                            {{"proportion1", 0.5}, {"risk-ratio", 1.25}},
                                            {{"proportion1", 0.5}, {"odds-ratio", 1.5}}};
  for (const std::string test : {"z", "t", "likelihood-ratio", "arcsine", "conditional"}) {
    for (InputValues groups : effects) {
      groups["n"] = Numbers{40, 60};
      groups["test"] = test;
      ExpectThroughTheDesign("two-proportions", {"ratio", {0.5}, {2.5}, 0.25}, groups);
      ExpectThroughTheDesign("two-proportions", Named("risk-difference"), groups);
      ExpectThroughTheDesign("two-proportions", {"risk-ratio", {0.75}, {1.75}, 0.25}, groups);
      ExpectThroughTheDesign("two-proportions", {"odds-ratio", {0.5}, {2.5}, 0.25}, groups);
    }
  }
}

const InputValues twoProportions{{"proportions", Numbers{0.5, 0.75}}, {"n", Numbers{50, 60}}};

ChartData TwoProportions(const ChartRequest& request, const InputValues& given = twoProportions) {
  return ComputeChart(*FindTest("two-proportions"), request, given);
}

TEST(Chart, SurfacesOfTwoProportionsAreThePowersOfTheirOptions) {
  InputValues exact = twoProportions;
  for (const char* flag : {"exact", "one-sided", "continuity-correction"}) exact[flag] = true;
  const auto power = [](double n1, double n2, double p1, double p2) {
    return PowerIndSampBinom(n1, n2, p1, p2, 1, 0, 1, 0.05, 1, 0, nullptr);
  };
  const Series sizesDrawn = TwoProportions({"sizes", {10, 20}, {12, 23}}, exact).series;
  ASSERT_EQ(sizesDrawn.x, (Numbers{10, 11, 12}));
  ASSERT_EQ(sizesDrawn.y, (Numbers{20, 21, 22, 23}));
  EXPECT_EQ(sizesDrawn.power[2 * 4 + 1], power(12, 21, 0.5, 0.75));

  const Series proportionsDrawn = TwoProportions({"proportions", {0.2, 0.3}, {0.4, 0.7}, 0.1}, exact).series;
  ASSERT_EQ(proportionsDrawn.x.size(), 3u);
  ASSERT_EQ(proportionsDrawn.y.size(), 5u);
  EXPECT_EQ(proportionsDrawn.power[1 * 5 + 3], power(50, 60, proportionsDrawn.x[1], proportionsDrawn.y[3]));
}

TEST(Chart, WideRangesOfGroupSizesAreThinned) {
  const Series series = TwoProportions({"sizes", {2, 10}, {1500, 300}}).series;
  EXPECT_EQ(series.x.size(), 151u);
  EXPECT_EQ(series.x.back(), 1500);
  EXPECT_EQ(series.y.size(), 59u);
  EXPECT_EQ(series.y.back(), 300);
  InputValues large = twoProportions;
  large["n"] = Numbers{1e5, 1e5};
  EXPECT_TRUE(TwoProportions(Named("sizes"), large).mark);
  // Where the arcsine test has no power yet there are no points, and an upper end of 2500 is one like any other.
  large = twoProportions;
  large["test"] = "arcsine";
  const Series arcsine = TwoProportions({"sizes", {2, 2}, {2500, 60}}, large).series;
  EXPECT_GT(arcsine.x.back(), 2490);
  EXPECT_LE(arcsine.x.back(), 2500);
  EXPECT_EQ(arcsine.y.front(), 2);
}

TEST(Chart, LongChartsOfExactTestsAreNotStarted) {
  const std::string sentence =
      "The chart of an exact test takes too long with so many points and sizes this large: give a larger --step, bring "
      "--from and --to closer together, or draw a large-sample test.";
  InputValues exact = twoProportions;
  exact["test"] = "conditional";
  EXPECT_EQ(Complaint("two-proportions", {"sizes", {100, 100}, {1000, 1000}}, exact), sentence);
  exact["n"] = Numbers{10000, 10000};
  for (const char* chart : {"proportions", "ratio", "risk-difference", "risk-ratio", "odds-ratio"}) {
    EXPECT_EQ(Complaint("two-proportions", Named(chart), exact), sentence);
  }
}

TEST(Chart, GridsOfProportionsAreCutToTheRange) {
  const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  const Series whole = ComputeChart(*FindTest("proportion"), {"null-alternative", {}, {}, 0.1}, one).series;
  const Series cut =
      ComputeChart(*FindTest("proportion"), {"null-alternative", {0.2, 0.3}, {0.4, 0.7}, 0.1}, one).series;
  ASSERT_EQ(cut.x.size(), 3u);
  ASSERT_EQ(cut.y.size(), 5u);
  ASSERT_EQ(cut.power.size(), 15u);
  EXPECT_EQ(cut.x.front(), whole.x[1]);
  EXPECT_EQ(cut.y.front(), whole.y[2]);
  EXPECT_EQ(cut.power[0], whole.power[1 * 9 + 2]);
  EXPECT_EQ(cut.power[14], whole.power[3 * 9 + 6]);
}

TEST(Chart, MarkIsLeftOutWhenTheDesignIsOutside) {
  EXPECT_FALSE(Anova({"n", {10}, {50}}).mark);
  EXPECT_FALSE(Anova({"n-sd", {10, 7}, {100, 9}}).mark);
}

TEST(Chart, MissingValuesAreGaps) {
  ChartData chart = Anova(Named("n"));
  chart.series = {{1, 2}, {}, {std::nan(""), 0.25}};
  EXPECT_EQ(RenderCsv(chart), "total sample size (observations),power\n1,\n2,0.25\n");
  EXPECT_TRUE(nlohmann::json::parse(RenderJson(chart))["power"][0].is_null());
}

TEST(Chart, FilesKeepEveryDigit) {
  const ChartData chart = Anova(Named("n"));
  const auto json = nlohmann::json::parse(RenderJson(chart));
  EXPECT_EQ(json["power"].get<Numbers>(), chart.series.power);
  EXPECT_EQ(json["x"].get<Numbers>(), chart.series.x);
  EXPECT_NE(RenderCsv(chart).find(',' + Shortest(chart.series.power[3]) + '\n'), std::string::npos);
}

TEST(Chart, WrongRangesGetASentence) {
  EXPECT_EQ(Complaint("anova", {"n", {50}, {20}}), "--from is 50, but must be below --to, which is 20.");
  EXPECT_EQ(Complaint("anova", {"n", {50}, {50}}), "--from is 50, but must be below --to, which is 50.");
  EXPECT_EQ(Complaint("anova", {"n", {1}, {20}}),
            "--from is 1, but of total sample size (observations) must be a whole number from 4 to 1000000000.");
  EXPECT_EQ(Complaint("anova", {"n", {4}, {2e6}}),
            "The range has more than 1000000 points: bring --from and --to closer together.");
  EXPECT_EQ(Complaint("anova", {"n", {}, {20}}), "--from and --to go together: give both or neither.");
  EXPECT_EQ(Complaint("anova", Named("n"), {{"means", means}, {"sd", 6.0}, {"n", Numbers{1e9, 1e9, 1e9}}}),
            "A design of more than 100000 observations has no usual range: also give --from and --to.");
}

TEST(Chart, StepsThatLeaveNothingOfAScaleGetASentence) {
  const std::string sentence = "--step is 0.7, but leaves fewer than two points to draw: give a smaller one.";
  const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  EXPECT_EQ(Complaint("proportion", {"null", {}, {}, 0.7}, one), sentence);
  for (const char* chart : {"proportions", "risk-difference"}) {
    EXPECT_EQ(Complaint("two-proportions", {chart, {}, {}, 0.7}, twoProportions), sentence);
  }
  EXPECT_EQ(Complaint("proportion", {"null", {0.501}, {0.502}, 0.4}, one),
            "--from and --to leave nothing to draw; allowed are: null proportion a number from 0 to 1.");
}

TEST(Chart, ATestMayHaveNone) {
  planner::Test test = *FindTest("anova");
  test.charts.clear();
  try {
    ComputeChart(test, Named("n"), design);
    ADD_FAILURE() << "nothing thrown";
  } catch (const InputError& error) {
    EXPECT_EQ(Said(error), "anova has no charts.");
  }
}

TEST(Chart, EqualMeansHaveNoUsualDeviations) {
  const InputValues equal{{"means", Numbers{5, 5, 5}}, {"sd", 6.0}, {"n", sizes}};
  EXPECT_EQ(Complaint("anova", Named("sd"), equal),
            "--chart sd has no usual range for these inputs: also give --from and --to.");
}

TEST(Chart, PointsWithoutPowerMakeNoChart) {
  const InputValues boundless{{"means", Numbers{1e308, -1e308}}, {"sd", 1.0}, {"n", Numbers{20}}};
  EXPECT_EQ(Complaint("anova", {"n", {10}, {20}}, boundless),
            "The test has no power anywhere between --from and --to.");
}

TEST(Chart, WhatCannotBeIsAGap) {
  const InputValues pairs{{"p12", 0.32}, {"p21", 0.08}, {"n", 50.0}};
  const Series series = ComputeChart(*FindTest("paired-proportions"), {"discordant", {}, {}, 0.1}, pairs).series;
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      const double sum = series.x[i] + series.y[j];
      if (std::abs(sum - 1) < 1e-9) continue;  // rounding decides
      EXPECT_EQ(std::isnan(series.power[i * series.y.size() + j]), sum > 1) << series.x[i] << ' ' << series.y[j];
    }
  }
}

TEST(Chart, MarginalProportionsHaveAPowerWhereverTheirCorrelationCanBe) {
  const InputValues outcomes{{"proportion1", 0.7}, {"proportion2", 0.55}, {"correlation", 0.3}, {"n", 60.0}};
  const ChartData chart = ComputeChart(*FindTest("paired-proportions"), {"marginal", {}, {}, 0.05}, outcomes);
  ASSERT_TRUE(chart.mark);
  const std::size_t at = 13 * chart.series.y.size() + 10;
  EXPECT_NEAR(chart.series.x[13], 0.7, 1e-12);
  EXPECT_NEAR(chart.series.y[10], 0.55, 1e-12);
  EXPECT_NEAR(chart.series.power[at], chart.mark->power, 1e-9);
}

TEST(Chart, StopsOnRequest) {
  CountingStop stop(1);
  EXPECT_THROW(ComputeChart(*FindTest("anova"), Named("n"), design, &stop), Stopped);
}

TEST(Chart, ListNamesEveryChart) {
  const auto list = nlohmann::json::parse(RenderListJson());
  for (std::size_t i = 0; i < Tests().size(); ++i) {
    const planner::Test& test = Tests()[i];
    for (std::size_t k = 0; k < test.charts.size(); ++k) {
      EXPECT_EQ(list[i]["charts"][k]["name"], test.charts[k].name);
      EXPECT_EQ(list[i]["charts"][k]["axes"].size(), test.charts[k].axes.size());
    }
  }
}

}  // namespace
}  // namespace planner
