#include "planner/chart.h"

#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "kelpower.h"
#include "planner/catalogue.h"
#include "planner/draw.h"
#include "planner/error.h"
#include "planner/render.h"

namespace planner {
namespace {

const Numbers means{10, 12, 15};
const Numbers sizes{20, 25, 30};
const Given design{{"means", means}, {"sd", 6.0}, {"n", sizes}};

Picture Anova(const ChartRequest& request, const Given& given = design) {
  return Draw(*FindTest("anova"), request, given);
}

ChartRequest Named(const std::string& name) { return {name, {}, {}, std::nullopt}; }

std::string Complaint(const std::string& test, const ChartRequest& request, const Given& given = design) {
  try {
    Draw(*FindTest(test), request, given);
  } catch (const InputError& error) {
    return error.what();
  }
  ADD_FAILURE() << "nothing thrown";
  return "";
}

TEST(Chart, SizeCurvePassesThroughTheDesign) {
  const Picture picture = Anova(Named("n"));
  const double power = PowerOverallTest(3, means.data(), 6, sizes.data(), 0.05);
  ASSERT_TRUE(picture.mark);
  EXPECT_EQ(picture.mark->at, Numbers{75});
  EXPECT_EQ(picture.mark->power, power);
  const auto at = static_cast<std::size_t>(75 - picture.series.x.front());
  EXPECT_EQ(picture.series.x[at], 75);
  EXPECT_EQ(picture.series.power[at], power);
}

TEST(Chart, DeviationCurveIsThePowerAtEachDeviation) {
  const Picture picture = Anova({"sd", {2}, {12}, 0.25});
  ASSERT_EQ(picture.series.x, (Numbers{2, 4.5, 7, 9.5, 12}));
  for (std::size_t i = 0; i < 5; ++i) {
    const double power = PowerOverallTest(3, means.data(), picture.series.x[i], sizes.data(), 0.05);
    EXPECT_EQ(picture.series.power[i], static_cast<double>(static_cast<float>(power)));
  }
}

TEST(Chart, SurfaceIsStoredRowByRow) {
  const Series series = Anova({"n-sd", {60, 2}, {62, 12}, 0.5}).series;
  ASSERT_EQ(series.x, (Numbers{60, 61, 62}));
  ASSERT_EQ(series.y, (Numbers{2, 7, 12}));
  for (std::size_t j = 0; j < 3; ++j) {
    const Given at{{"means", means}, {"sd", series.y[j]}, {"n", sizes}};
    EXPECT_EQ(series.power[2 * 3 + j], Anova({"n", {61}, {62}, std::nullopt}, at).series.power[1]);
  }
}

/// The power on a curve where the design is marked.
double PowerAtMark(const Picture& picture) {
  const Numbers& x = picture.series.x;
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (std::abs(x[i] - picture.mark->at[0]) < 1e-9) return picture.series.power[i];
  }
  ADD_FAILURE() << picture.chart->name << " has no point at the design";
  return 0;
}

void ExpectThroughTheDesign(const std::string& test, const ChartRequest& request, const Given& given) {
  constexpr double singlePrecision = 1e-7;
  const Picture picture = Draw(*FindTest(test), request, given);
  ASSERT_TRUE(picture.mark) << test << ' ' << request.name;
  EXPECT_NEAR(PowerAtMark(picture), picture.mark->power, singlePrecision) << test << ' ' << request.name;
}

TEST(Chart, CurvesOfMeansPassThroughTheDesign) {
  const Given effect{{"effect-d", 0.4}, {"n", 40.0}, {"one-sided", true}};
  ExpectThroughTheDesign("mean", Named("n"), effect);
  ExpectThroughTheDesign("mean", Named("effect"), effect);
  ExpectThroughTheDesign("mean", Named("n"), {{"mean", 104.0}, {"test-value", 100.0}, {"sd", 10.0}, {"n", 40.0}});
  ExpectThroughTheDesign("paired-means", Named("n"), {{"mean-difference", 4.0}, {"sd-difference", 8.0}, {"n", 44.0}});
  const Given unequal{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40, 60}}};
  ExpectThroughTheDesign("two-means", {"ratio", {0.5}, {2.5}, 0.25}, unequal);
  ExpectThroughTheDesign("two-means", {"difference", {-10}, {10}, 0.25}, unequal);
}

TEST(Chart, CurvesOfProportionsPassThroughTheDesign) {
  for (const bool exact : {false, true}) {
    const Given one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}, {"exact", exact}};
    for (const char* name : {"n", "null", "alternative", "difference"}) {
      ExpectThroughTheDesign("proportion", Named(name), one);
    }
    const Given pairs{{"p12", 0.32}, {"p21", 0.08}, {"n", 50.0}, {"exact", exact}};
    ExpectThroughTheDesign("paired-proportions", Named("n"), pairs);
    ExpectThroughTheDesign("paired-proportions", {"ratio", {2}, {6}, 0.25}, pairs);
    const Given marginals{
        {"proportion1", 0.6}, {"proportion2", 0.4}, {"correlation", 0.3}, {"n", 60.0}, {"exact", exact}};
    ExpectThroughTheDesign("paired-proportions", Named("correlation"), marginals);
  }
}

TEST(Chart, GridsOfProportionsAreCutToTheRange) {
  const Given one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  const Series whole = Draw(*FindTest("proportion"), {"null-alternative", {}, {}, 0.1}, one).series;
  const Series cut = Draw(*FindTest("proportion"), {"null-alternative", {0.2, 0.3}, {0.4, 0.7}, 0.1}, one).series;
  ASSERT_EQ(cut.x.size(), 3u);
  ASSERT_EQ(cut.y.size(), 5u);
  ASSERT_EQ(cut.power.size(), 15u);
  EXPECT_EQ(cut.x.front(), whole.x[1]);
  EXPECT_EQ(cut.y.front(), whole.y[2]);
  EXPECT_EQ(cut.power[0], whole.power[1 * 9 + 2]);
  EXPECT_EQ(cut.power[14], whole.power[3 * 9 + 6]);
}

TEST(Chart, MarkIsLeftOutWhenTheDesignIsOutside) {
  EXPECT_FALSE(Anova({"n", {10}, {50}, std::nullopt}).mark);
  EXPECT_FALSE(Anova({"n-sd", {10, 7}, {100, 9}, std::nullopt}).mark);
}

TEST(Chart, MissingValuesAreGaps) {
  Picture picture = Anova(Named("n"));
  picture.series = {{1, 2}, {}, {std::nan(""), 0.25}};
  EXPECT_EQ(RenderCsv(picture), "total sample size (observations),power\n1,\n2,0.25\n");
  EXPECT_TRUE(nlohmann::json::parse(RenderJson(picture))["power"][0].is_null());
  // At two observations in three groups there is no power, so the library gives the missing value.
  const Series low = Curve(PlotNOverallTest(3, means.data(), 6, sizes.data(), 2, 9, 0.05));
  EXPECT_TRUE(std::isnan(low.power.front()));
  EXPECT_GT(low.power.back(), 0.05);
}

TEST(Chart, FilesKeepEveryDigit) {
  const Picture picture = Anova(Named("n"));
  const auto json = nlohmann::json::parse(RenderJson(picture));
  EXPECT_EQ(json["power"].get<Numbers>(), picture.series.power);
  EXPECT_EQ(json["x"].get<Numbers>(), picture.series.x);
  EXPECT_NE(RenderCsv(picture).find(',' + Shortest(picture.series.power[3]) + '\n'), std::string::npos);
}

TEST(Chart, WrongRangesGetASentence) {
  EXPECT_EQ(Complaint("anova", {"n", {50}, {20}, std::nullopt}), "--from is 50, but must be below --to, which is 20.");
  EXPECT_EQ(Complaint("anova", {"n", {50}, {50}, std::nullopt}), "--from is 50, but must be below --to, which is 50.");
  EXPECT_EQ(Complaint("anova", {"n", {1}, {20}, std::nullopt}),
            "--from is 1, but of total sample size (observations) must be a whole number from 4 to 1000000000.");
  EXPECT_EQ(Complaint("anova", {"n", {4}, {2e6}, std::nullopt}),
            "The range has more than 1000000 points: bring --from and --to closer together.");
  EXPECT_EQ(Complaint("anova", {"n", {}, {20}, std::nullopt}), "--from and --to go together: give both or neither.");
  EXPECT_EQ(Complaint("two-proportions", Named("n"), {{"proportions", Numbers{0.5, 0.75}}, {"n", Numbers{50, 50}}}),
            "two-proportions has no charts.");
  EXPECT_EQ(Complaint("anova", Named("n"), {{"means", means}, {"sd", 6.0}, {"n", Numbers{1e9, 1e9, 1e9}}}),
            "A design of more than 100000 observations has no usual range: also give --from and --to.");
}

TEST(Chart, EqualMeansHaveNoUsualDeviations) {
  const Given equal{{"means", Numbers{5, 5, 5}}, {"sd", 6.0}, {"n", sizes}};
  EXPECT_EQ(Complaint("anova", Named("sd"), equal),
            "--chart sd has no usual range for these inputs: also give --from and --to.");
}

TEST(Chart, PointsWithoutPowerMakeNoChart) {
  const Given boundless{{"means", Numbers{1e308, -1e308}}, {"sd", 1.0}, {"n", Numbers{20}}};
  EXPECT_EQ(Complaint("anova", {"n", {10}, {20}, std::nullopt}, boundless),
            "The test has no power anywhere between --from and --to.");
}

TEST(Chart, HelpAndListNameEveryChart) {
  const auto list = nlohmann::json::parse(RenderListJson());
  for (std::size_t i = 0; i < Tests().size(); ++i) {
    const planner::Test& test = Tests()[i];
    for (std::size_t k = 0; k < test.charts.size(); ++k) {
      EXPECT_NE(RenderHelp(test).find(test.charts[k].example), std::string::npos);
      EXPECT_EQ(list[i]["charts"][k]["export"], test.charts[k].exportName);
    }
  }
}

}  // namespace
}  // namespace planner
