
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <sstream>

#include "kelpower.h"
#include "pictures/figure.h"
#include "pictures/lasting.h"
#include "pictures/svg.h"
#include "solve/axes.h"
#include "support.h"
#include "words/numbers.h"
#include "words/parse.h"
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

/// The value of a curve at a point of it.
double At(const ChartData& chart, double x, std::size_t curve = 0) {
  const Series& series = chart.curves[curve].series;
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    if (std::abs(series.x[i] - x) < 1e-9 * std::max(1.0, std::abs(x))) return series.value[i];
  }
  ADD_FAILURE() << chart.name << " has no point at " << x;
  return 0;
}

const DesignMark& MarkOf(const ChartData& chart) { return *chart.curves.front().mark; }

bool IsGap(double value) { return std::isnan(value); }

ChartData Computed(const std::string& test, const ChartRequest& request, const InputValues& given) {
  return ComputeChart(*FindTest(test), request, given);
}

TEST(Chart, TotalsAreThoseThatTheGroupsAllow) {
  const ChartData chart = Anova(Named("total"));
  const double power = PowerOverallTest(3, means.data(), 6, sizes.data(), 0.05);
  EXPECT_EQ(MarkOf(chart).at, Numbers{75});
  EXPECT_EQ(MarkOf(chart).value, power);
  EXPECT_EQ(At(chart, 75), power);
  const ChartData equal = Anova({"total", {30}, {60}}, {{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}});
  EXPECT_EQ(equal.First().x, (Numbers{30, 33, 36, 39, 42, 45, 48, 51, 54, 57, 60}));
  const Numbers fourteen{14, 14, 14};
  EXPECT_EQ(At(equal, 42), PowerOverallTest(3, means.data(), 6, fourteen.data(), 0.05));
}

TEST(Chart, SizesArePerGroup) {
  const ChartData chart = Anova({"n", {5}, {40}}, {{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}});
  ASSERT_EQ(chart.First().x.size(), 36u);
  const Numbers fourteen{14, 14, 14};
  EXPECT_EQ(At(chart, 14), PowerOverallTest(3, means.data(), 6, fourteen.data(), 0.05));
  // Unequal groups keep their shares in whole sizes.
  const Numbers doubled{40, 50, 60};
  EXPECT_EQ(At(Anova({"n", {10}, {60}}), 40), PowerOverallTest(3, means.data(), 6, doubled.data(), 0.05));
}

TEST(Chart, EveryTestOfGroupsHasACurveOverSizes) {
  const InputValues two{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40}}};
  EXPECT_EQ(At(Computed("two-means", {"n", {10}, {60}}, two), 40),
            PowerIndependentNondirectional(40, 52, 10, 40, 47, 14, 0.05));
  const InputValues proportions{{"proportions", Numbers{0.5, 0.75}}, {"n", Numbers{50}}, {"unpooled", true}};
  EXPECT_EQ(At(Computed("two-proportions", {"n", {10}, {60}}, proportions), 50),
            PowerIndSampBinom(50, 50, 0.5, 0.75, 0, 0, 0, 0.05, 0, 0, nullptr));
}

TEST(Chart, UsualRangesOfPairedProportionsHaveAPowerAtEachPoint) {
  for (const std::string name : {"ratio", "odds-ratio"}) {
    for (const auto& [p12, p21] : {std::pair(0.3, 0.1), std::pair(0.6, 0.2)}) {
      const InputValues pairs{{"p12", p12}, {"p21", p21}, {"n", 60.0}};
      const ChartData chart = ComputeChart(*FindTest("paired-proportions"), Named(name), pairs);
      ASSERT_GT(chart.First().x.size(), 50u) << name << ' ' << p12;
      for (double power : chart.First().value) EXPECT_TRUE(power > 0 && power <= 1) << name << ' ' << p12;
    }
  }
}

TEST(Chart, UsualRangeOfAnEffectHoldsTheDesign) {
  const InputValues regression{{"effect-f2", 0.15}, {"predictors", 5.0}, {"n", 80.0}};
  const ChartData chart = ComputeChart(*FindTest("regression"), Named("effect-f2"), regression);
  EXPECT_EQ(MarkOf(chart).at, Numbers{0.15});
}

TEST(Chart, DeviationCurveIsThePowerAtEachDeviation) {
  const ChartData chart = Anova({"sd", {2}, {12}, 0.25});
  ASSERT_EQ(chart.First().x, (Numbers{2, 4.5, 7, 9.5, 12}));
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(chart.First().value[i], PowerOverallTest(3, means.data(), chart.First().x[i], sizes.data(), 0.05));
  }
}

TEST(Chart, SurfaceIsStoredRowByRow) {
  const InputValues equal{{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}};
  const Series series = Anova({"n-sd", {20, 2}, {22, 12}, 0.5}, equal).First();
  const Series turned = Anova({"sd-n", {2, 20}, {12, 22}, 0.5}, equal).First();
  ASSERT_EQ(series.x, (Numbers{20, 21, 22}));
  ASSERT_EQ(series.y, (Numbers{2, 7, 12}));
  const Numbers twentyTwo{22, 22, 22};
  for (std::size_t j = 0; j < 3; ++j) {
    const double power = PowerOverallTest(3, means.data(), series.y[j], twentyTwo.data(), 0.05);
    EXPECT_NEAR(series.value[2 * 3 + j], power, 1e-12);
    EXPECT_NEAR(turned.value[j * 3 + 2], power, 1e-12);
  }
}

/// The values that the arguments of an example spell.
InputValues ValuesOf(const planner::Test& test, const std::string& arguments) {
  InputValues values;
  std::istringstream words(arguments);
  std::string word;
  words >> word;
  while (words >> word) {
    const Parameter& parameter = *FindParameter(test, std::string_view(word).substr(2));
    const std::string name(parameter.name.Text());
    if (parameter.kind == Kind::Flag) {
      values[name] = true;
    } else {
      words >> word;
      values[name] = Parse(parameter, word);
    }
  }
  return values;
}

/// A point next to the design has nearly its power, unless the power jumps.
void ExpectThroughTheDesign(const ChartData& chart, const std::string& where) {
  constexpr double jump = 0.12;
  const ChartCurve& curve = chart.curves.front();
  ASSERT_TRUE(curve.mark) << where;
  const Series& series = curve.series;
  double least = INFINITY;
  double most = -INFINITY;
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    const bool isLeft =
        series.x[i] <= curve.mark->at[0] && i + 1 < series.x.size() && series.x[i + 1] >= curve.mark->at[0];
    if (!isLeft) continue;
    for (double value : {series.value[i], series.value[i + 1]}) {
      least = std::fmin(least, value);
      most = std::fmax(most, value);
    }
  }
  if (chart.quantity != Quantity::Power) return;
  EXPECT_GE(curve.mark->value, least - jump) << where;
  EXPECT_LE(curve.mark->value, most + jump) << where;
}

/// The example without its table-long sizes has an axis for each of its numbers, and every axis a curve.
TEST(Chart, EveryNumberOfEveryExampleHasACurveThroughTheDesign) {
  int curves = 0;
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      SCOPED_TRACE(example.arguments);
      const InputValues values = ValuesOf(test, example.arguments);
      const ChartData first = ComputeChart(test, Named("alpha"), values);
      const ChartCurve& curve = first.curves.front();
      for (const Axis& axis : AxesOf(test, *curve.route, curve.design)) {
        const std::string where = example.arguments + " --chart " + axis.name;
        try {
          const ChartData chart = ComputeChart(test, Named(axis.name), values);
          ASSERT_GE(chart.First().x.size(), 2u) << where;
          ExpectThroughTheDesign(chart, where);
        } catch (const Failure& failure) {
          ADD_FAILURE() << where << ": " << Said(failure);
        }
        ++curves;
      }
    }
  }
  EXPECT_GT(curves, 200);
}

/// Of tests whose power is an integral of an integral, a surface over two sizes takes seconds: there they are left out.
bool IsSlowOverSizes(const planner::Test& test) { return test.name == "dunnett" || test.name == "tukey"; }

TEST(Chart, EveryPairOfNumbersHasASurface) {
  int surfaces = 0;
  for (const planner::Test& test : Tests()) {
    const InputValues values = ValuesOf(test, test.examples.front().arguments);
    const ChartData first = ComputeChart(test, Named("alpha"), values);
    const ChartCurve& curve = first.curves.front();
    if (first.quantity != Quantity::Power) continue;
    const std::vector<Axis> axes = AxesOf(test, *curve.route, curve.design);
    for (std::size_t i = 0; i < axes.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const Axis& x = axes[surfaces % 2 == 0 ? i : j];
        const Axis& y = axes[surfaces % 2 == 0 ? j : i];
        const std::string name = x.name + "-" + y.name;
        if (AxesNamed(name, axes).size() != 2) continue;
        const bool isEven = x.spacing == Spacing::Even || y.spacing == Spacing::Even;
        if (!isEven && IsSlowOverSizes(test)) continue;
        const ChartData chart = ComputeChart(test, {name, {}, {}, isEven ? std::optional(0.3) : std::nullopt}, values);
        EXPECT_EQ(chart.First().value.size(), chart.First().x.size() * chart.First().y.size()) << name;
        ++surfaces;
      }
    }
  }
  EXPECT_GT(surfaces, 200);
}

TEST(Chart, FormerNamesAreUnderstood) {
  const auto axesOf = [](const std::string& test, const std::string& name, const InputValues& given) {
    std::string names;
    for (const Axis& axis : Computed(test, Named(name), given).axes) names += axis.name + ' ';
    return names;
  };
  const InputValues effect{{"effect-d", 0.4}, {"n", 40.0}};
  EXPECT_EQ(axesOf("mean", "effect", effect), "effect-d ");
  EXPECT_EQ(axesOf("mean", "effect-n", effect), "effect-d n ");
  EXPECT_EQ(axesOf("anova", "n-effect", {{"eta-squared", 0.1}, {"n", Numbers{20, 20}}}), "n eta-squared ");
  const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  EXPECT_EQ(axesOf("proportion", "null-alternative", one), "null proportion ");
  const InputValues groups{{"proportions", Numbers{0.5, 0.75}}, {"n", Numbers{20}}};
  EXPECT_EQ(axesOf("two-proportions", "sizes", groups), "n1 n2 ");
  EXPECT_EQ(axesOf("two-proportions", "proportions", groups), "proportion1 proportion2 ");
  EXPECT_EQ(axesOf("two-proportions", "risk-difference", groups), "risk-difference ");
  const InputValues pairs{{"p12", 0.32}, {"p21", 0.08}, {"n", 50.0}};
  EXPECT_EQ(axesOf("paired-proportions", "discordant", pairs), "p12 p21 ");
  const InputValues marginals{{"proportion1", 0.6}, {"proportion2", 0.4}, {"correlation", 0.3}, {"n", 60.0}};
  EXPECT_EQ(axesOf("paired-proportions", "marginal", marginals), "proportion1 proportion2 ");
}

TEST(Chart, SizesFoundAreTheDesign) {
  const ChartData chart = Computed("two-means", Named("n"), {{"effect-d", 0.5}, {"power", 0.8}, {"ratio", 2.0}});
  EXPECT_EQ(chart.curves.front().design.List("n"), (Numbers{48, 96}));
  EXPECT_EQ(MarkOf(chart).at, Numbers{48});
  EXPECT_GE(MarkOf(chart).value, 0.8);
  EXPECT_EQ(At(chart, 48), MarkOf(chart).value);
}

TEST(Chart, TheEffectFoundIsTheDesign) {
  const ChartData chart = Computed("two-means", Named("n"), {{"n", Numbers{40}}, {"power", 0.8}});
  EXPECT_NEAR(chart.curves.front().design.Number("effect-d"), 0.6343, 1e-4);
  EXPECT_EQ(MarkOf(chart).at, Numbers{40});
  EXPECT_NEAR(MarkOf(chart).value, 0.8, 1e-9);
}

TEST(Chart, SeveralValuesMakeSeveralCurves) {
  ChartRequest request = Named("n");
  request.alternatives = Alternatives{FindParameter(*FindTest("two-means"), Name("effect-d")), {0.2, 0.5, 0.8}};
  const ChartData chart = Computed("two-means", request, {{"power", 0.8}});
  ASSERT_EQ(chart.curves.size(), 3u);
  const double found[] = {394, 64, 26};
  for (std::size_t k = 0; k < 3; ++k) {
    EXPECT_EQ(chart.curves[k].design.List("n"), Numbers(2, found[k]));
    EXPECT_EQ(chart.curves[k].series.x, chart.First().x);
    EXPECT_GE(At(chart, found[0], k), 0.8);
  }
  const auto json = nlohmann::json::parse(RenderJson(chart));
  EXPECT_EQ(json["varied"], "effect-d");
  EXPECT_EQ(json["curves"][1]["effect-d"], 0.5);
  EXPECT_EQ(json["curves"][1]["inputs"]["n"], (Numbers{64, 64}));
  EXPECT_EQ(RenderCsv(chart).substr(0, RenderCsv(chart).find('\n')),
            "sample size per group (observations),power (effect-d 0.2),power (effect-d 0.5),power (effect-d 0.8)");
}

TEST(Chart, SizesAreDrawnAgainstAnEffect) {
  ChartRequest request{"effect-d", {0.2}, {0.8}, 0.5};
  request.showsSizes = true;
  const ChartData chart = Computed("two-means", request, {{"effect-d", 0.5}, {"power", 0.8}});
  EXPECT_EQ(chart.First().value, (Numbers{394, 64, 26}));
  EXPECT_EQ(MarkOf(chart).value, 64);
  request.from.clear();
  request.to.clear();
  request.step.reset();
  const ChartData usual = Computed("two-means", request, {{"effect-d", 0.5}, {"power", 0.8}});
  EXPECT_GT(usual.First().value.front(), 4 * 64);
  EXPECT_LT(usual.First().value.back(), 64 / 4);
}

TEST(Chart, HalfWidthsAreDrawnAgainstSizes) {
  const InputValues interval{{"sd", Numbers{10}}, {"n", Numbers{40}}, {"interval", true}};
  const ChartData chart = Computed("two-means", Named("n"), interval);
  EXPECT_EQ(chart.quantity, Quantity::HalfWidth);
  EXPECT_EQ(At(chart, 40), HalfCIIndependentMeans(40, 10, 40, 10, 0.05));
  const ChartData found = Computed("two-means", Named("n"), {{"sd", Numbers{10}}, {"half-width", 4.5}});
  EXPECT_EQ(found.quantity, Quantity::HalfWidth);
  EXPECT_LE(MarkOf(found).value, 4.5);
}

TEST(Chart, UsualRangesShowWhatMatters) {
  const auto range = [](const std::string& test, const std::string& name, const InputValues& given) {
    const ChartData chart = Computed(test, Named(name), given);
    const Numbers& x = chart.First().x;
    const Numbers& y = chart.First().value;
    EXPECT_LE(x.front(), MarkOf(chart).at[0]);
    EXPECT_GE(x.back(), MarkOf(chart).at[0]);
    const auto [least, most] = std::minmax_element(y.begin(), y.end());
    EXPECT_LE(*least, 0.2) << test << ' ' << name;
    EXPECT_GE(*most, 0.98) << test << ' ' << name;
    return Range{x.front(), x.back()};
  };
  const InputValues small{{"means", means}, {"sd", 6.0}, {"n", Numbers{5}}};
  range("anova", "n", small);
  range("anova", "total", small);
  const Range sd = range("anova", "sd", {{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}});
  EXPECT_LE(sd.to, 30);
  const Range risks =
      range("two-proportions", "risk-difference", {{"proportions", Numbers{0.02, 0.04}}, {"n", Numbers{400}}});
  EXPECT_GE(risks.from, -0.1);
  EXPECT_EQ(range("pearson", "n", {{"r", 0.02}, {"n", 20000.0}}).from, 4);
  range("proportion", "n", {{"proportion", 0.52}, {"null", 0.5}, {"n", 6000.0}});
  // An effect has one side.
  EXPECT_NEAR(range("pearson", "r", {{"r", 0.3}, {"n", 84.0}, {"one-sided", true}}).from, 0, 1e-6);
  EXPECT_NEAR(range("pearson", "r", {{"r", -0.3}, {"n", 84.0}}).to, 0, 1e-6);
  EXPECT_NEAR(range("proportion", "alternative", {{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}}).from, 0.5, 0.011);
}

TEST(Chart, TheOtherSideOfAOneSidedTestHasNoPower) {
  const ChartData chart =
      Computed("pearson", {"r", {-0.5}, {0.5}, 0.1}, {{"r", 0.3}, {"n", 84.0}, {"one-sided", true}});
  for (std::size_t i = 0; i < chart.First().x.size(); ++i) {
    const double r = chart.First().x[i];
    if (std::abs(r) < 1e-9) continue;
    EXPECT_EQ(IsGap(chart.First().value[i]), r < 0) << r;
  }
  const ChartData twoSided = Computed("pearson", {"r", {-0.5}, {0.5}, 0.1}, {{"r", 0.3}, {"n", 84.0}});
  EXPECT_FALSE(IsGap(twoSided.First().value.front()));
}

TEST(Chart, TheStepOfRandomPredictorsIsTaken) {
  const InputValues random{{"r-squared", 0.1}, {"predictors", 5.0}, {"n", 95.0}, {"random", true}};
  EXPECT_EQ(Computed("regression", {"r", {0.1}, {0.6}, 0.01}, random).First().x.size(), 101u);
  EXPECT_EQ(Computed("regression", {"r", {0.1}, {0.6}, 0.1}, random).First().x.size(), 11u);
}

const InputValues twoProportions{{"proportions", Numbers{0.5, 0.75}}, {"n", Numbers{50, 60}}};

ChartData TwoProportions(const ChartRequest& request, const InputValues& given = twoProportions) {
  return Computed("two-proportions", request, given);
}

TEST(Chart, CurvesOfTwoProportionsPassThroughTheDesign) {
  const std::vector<InputValues> effects = {{{"proportions", Numbers{0.5, 0.6}}},
                                            {{"proportion1", 0.5}, {"proportion2", 0.6}},
                                            {{"proportion1", 0.5}, {"risk-difference", 0.1}},
                                            {{"proportion1", 0.5}, {"risk-ratio", 1.2}},
                                            {{"proportion1", 0.5}, {"odds-ratio", 1.5}}};
  for (const std::string test : {"z", "t", "likelihood-ratio", "arcsine", "conditional"}) {
    for (InputValues groups : effects) {
      groups["n"] = Numbers{40, 60};
      groups["test"] = test;
      for (const ChartRequest& request : std::vector<ChartRequest>{{"ratio", {0.5}, {2.5}, 0.25},
                                                                   {"risk-difference", {0}, {0.4}, 0.125},
                                                                   {"risk-ratio", {0.75}, {1.75}, 0.25},
                                                                   {"odds-ratio", {0.5}, {2.5}, 0.25}}) {
        const ChartData chart = TwoProportions(request, groups);
        const bool isOnGrid = request.name == "ratio" || groups.count(request.name) || groups.count("proportions");
        if (!isOnGrid || (request.name == "risk-difference" && !groups.count("proportions"))) continue;
        const double at = MarkOf(chart).at[0];
        for (std::size_t i = 0; i < chart.First().x.size(); ++i) {
          if (std::abs(chart.First().x[i] - at) < 1e-9) {
            EXPECT_NEAR(chart.First().value[i], MarkOf(chart).value, 1e-12) << test << ' ' << request.name;
          }
        }
      }
    }
  }
}

TEST(Chart, SurfacesOfTwoProportionsAreThePowersOfTheirOptions) {
  InputValues exact = twoProportions;
  for (const char* flag : {"exact", "one-sided", "continuity-correction"}) exact[flag] = true;
  const auto power = [](double n1, double n2, double p1, double p2) {
    return PowerIndSampBinom(n1, n2, p1, p2, 1, 0, 1, 0.05, 1, 0, nullptr);
  };
  const Series sizesDrawn = TwoProportions({"sizes", {10, 20}, {12, 23}}, exact).First();
  ASSERT_EQ(sizesDrawn.x, (Numbers{10, 11, 12}));
  ASSERT_EQ(sizesDrawn.y, (Numbers{20, 21, 22, 23}));
  EXPECT_EQ(sizesDrawn.value[2 * 4 + 1], power(12, 21, 0.5, 0.75));

  const Series proportionsDrawn = TwoProportions({"proportions", {0.2, 0.5}, {0.4, 0.7}, 0.5}, exact).First();
  ASSERT_EQ(proportionsDrawn.x.size(), 3u);
  ASSERT_EQ(proportionsDrawn.y.size(), 3u);
  EXPECT_EQ(proportionsDrawn.value[1 * 3 + 2], power(50, 60, proportionsDrawn.x[1], proportionsDrawn.y[2]));
}

TEST(Chart, LongChartsOfExactTestsAreNotStarted) {
  const std::string sentence =
      "The chart of an exact test takes too long with so many points and sizes this large: give a larger --step, bring "
      "--from and --to closer together, or draw a large-sample test.";
  InputValues exact = twoProportions;
  exact["test"] = "conditional";
  EXPECT_EQ(Complaint("two-proportions", {"sizes", {100, 100}, {1000, 1000}}, exact), sentence);
  exact["n"] = Numbers{10000, 10000};
  EXPECT_EQ(Complaint("two-proportions", {"proportions", {0.1, 0.1}, {0.2, 0.2}}, exact), sentence);
}

TEST(Chart, MarkIsLeftOutWhenTheDesignIsOutside) {
  EXPECT_FALSE(Anova({"total", {10}, {50}}).curves.front().mark);
  EXPECT_FALSE(Anova({"total-sd", {10, 7}, {100, 9}}).curves.front().mark);
}

TEST(Chart, MissingValuesAreGaps) {
  ChartData chart = Anova(Named("total"));
  chart.curves.front().series = {{1, 2}, {}, {std::nan(""), 0.25}};
  EXPECT_EQ(RenderCsv(chart), "total sample size (observations),power\n1,\n2,0.25\n");
  EXPECT_TRUE(nlohmann::json::parse(RenderJson(chart))["curves"][0]["power"][0].is_null());
}

TEST(Chart, FilesKeepEveryDigitAndHoldTheInputs) {
  const ChartData chart = Anova(Named("n"));
  const auto json = nlohmann::json::parse(RenderJson(chart));
  EXPECT_EQ(json["curves"][0]["power"].get<Numbers>(), chart.First().value);
  EXPECT_EQ(json["x"].get<Numbers>(), chart.First().x);
  EXPECT_EQ(json["curves"][0]["inputs"], nlohmann::json({{"means", means}, {"sd", 6}, {"n", sizes}, {"alpha", 0.05}}));
  EXPECT_NE(RenderCsv(chart).find(',' + Shortest(chart.First().value[3]) + '\n'), std::string::npos);
}

TEST(Chart, WrongRequestsGetASentence) {
  EXPECT_EQ(Complaint("anova", {"total", {50}, {20}}), "--from is 50, but must be below --to, which is 20.");
  EXPECT_EQ(Complaint("anova", {"total", {1}, {20}}),
            "--from is 1, but of total sample size (observations) must be a whole number from 3 to 3000000000.");
  EXPECT_EQ(Complaint("anova", {"n", {4}, {2e6}}),
            "The range has more than 1000000 points: bring --from and --to closer together.");
  EXPECT_EQ(Complaint("anova", {"n", {}, {20}}), "--from and --to go together: give both or neither.");
  ChartRequest sizesAsked = Named("sd");
  sizesAsked.showsSizes = true;
  EXPECT_EQ(Complaint("anova", sizesAsked),
            "--y n draws the sizes that reach a target: give --power in place of the sizes.");
  ChartRequest several = Named("n-sd");
  several.alternatives = Alternatives{FindParameter(*FindTest("two-means"), Name("alpha")), {0.01, 0.05}};
  EXPECT_EQ(Complaint("anova", several), "--alpha has several values, but --chart over two axes draws one design.");
  several = Named("alpha");
  several.alternatives = Alternatives{FindParameter(*FindTest("two-means"), Name("alpha")), {0.01, 0.05}};
  EXPECT_EQ(Complaint("anova", several), "--alpha has several values, but --chart varies it along an axis: give one.");
  const InputValues interval{{"sd", 6.0}, {"n", sizes}, {"interval", true}};
  EXPECT_EQ(Complaint("anova", Named("n-sd"), interval),
            "--chart n-sd has two axes, over which only a power is drawn: name one.");
}

TEST(Chart, RangesWithoutPointsGetASentence) {
  const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  EXPECT_EQ(Complaint("proportion", {"difference", {0.6}, {0.9}}, one),
            "--from and --to leave nothing to draw; allowed are: difference of the proportions (expected minus null) a "
            "number from -0.5 to 0.5.");
}

TEST(Chart, EqualMeansHaveNoUsualDeviations) {
  const InputValues boundless{{"means", Numbers{1e308, -1e308}}, {"sd", 1.0}, {"n", Numbers{20}}};
  EXPECT_EQ(Complaint("anova", {"n", {10}, {20}}, boundless),
            "The test has no answer anywhere between --from and --to.");
}

TEST(Chart, WhatCannotBeIsAGap) {
  const InputValues pairs{{"p12", 0.32}, {"p21", 0.08}, {"n", 50.0}};
  const Series series = Computed("paired-proportions", {"discordant", {0, 0}, {1, 1}, 0.1}, pairs).First();
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      const double sum = series.x[i] + series.y[j];
      if (std::abs(sum - 1) < 1e-9 || sum == 0) continue;  // rounding decides
      EXPECT_EQ(IsGap(series.value[i * series.y.size() + j]), sum > 1) << series.x[i] << ' ' << series.y[j];
    }
  }
}

TEST(Chart, MarginalProportionsHaveAPowerWhereverTheirCorrelationCanBe) {
  const InputValues outcomes{{"proportion1", 0.7}, {"proportion2", 0.55}, {"correlation", 0.3}, {"n", 60.0}};
  const ChartData chart = Computed("paired-proportions", {"marginal", {0.5, 0.35}, {0.9, 0.75}, 0.5}, outcomes);
  EXPECT_NEAR(chart.First().value[1 * 3 + 1], MarkOf(chart).value, 1e-9);
  EXPECT_NEAR(MarkOf(chart).value, 0.5096, 1e-4);
}

TEST(Chart, LinesOfASawGoWhereThePowerLasts) {
  const InputValues exact{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}, {"exact", true}};
  const ChartData chart = Computed("proportion", {"n-alternative", {20, 0.55}, {200, 0.8}, 0.02}, exact);
  const Lasting lasting = LastingPower(chart);
  EXPECT_TRUE(lasting.isSmoothed);
  const std::size_t rows = chart.First().y.size();
  for (std::size_t i = 1; i < chart.First().x.size(); ++i) {
    for (std::size_t j = 0; j < rows; ++j) {
      EXPECT_GE(lasting.surface.value[i * rows + j], lasting.surface.value[(i - 1) * rows + j]);
      EXPECT_LE(lasting.surface.value[i * rows + j], chart.First().value[i * rows + j]);
    }
  }
  // One line without rungs, where the power itself has a rung at every tooth.
  const auto rungs = [](const std::vector<Line>& lines) {
    std::size_t count = 0;
    for (const Line& line : lines) {
      for (std::size_t i = 2; i < line.x.size(); ++i) {
        const double before = line.y[i - 1] - line.y[i - 2];
        if (before * (line.y[i] - line.y[i - 1]) < 0) ++count;
      }
    }
    return count;
  };
  EXPECT_EQ(LevelLines(lasting.surface, 0.8).size(), 1u);
  EXPECT_EQ(rungs(LevelLines(lasting.surface, 0.8)), 0u);
  EXPECT_GT(rungs(LevelLines(chart.First(), 0.8)), 20u);
  const InputValues smooth{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}};
  const ChartData normal = Computed("proportion", {"n-difference", {20, 0}, {200, 0.3}}, smooth);
  EXPECT_FALSE(LastingPower(normal).isSmoothed);
  EXPECT_EQ(LevelLines(normal.First(), 0.8).size(), 1u);
}

TEST(Chart, CoarseSurfacesHaveNoRungs) {
  const ChartData two = TwoProportions({"proportions", {0.05, 0.05}, {0.95, 0.95}, 0.05},
                                       {{"proportions", Numbers{0.3, 0.45}}, {"n", Numbers{100}}});
  EXPECT_EQ(LevelLines(two.First(), 0.5).size(), 2u);
  EXPECT_EQ(LevelLines(two.First(), 0.8).size(), 2u);
  const ChartData one = Computed("proportion", {"null-alternative", {0.05, 0.05}, {0.95, 0.95}, 0.05},
                                 {{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}});
  EXPECT_EQ(LevelLines(one.First(), 0.8).size(), 2u);
}

TEST(Chart, TitlesStandAlone) {
  const InputValues one{{"proportion", 0.65}, {"null", 0.5}, {"n", 60.0}, {"exact", true}, {"one-sided", true}};
  const ChartData chart = Computed("proportion", Named("n"), one);
  const Figure figure = FigureOf(chart);
  EXPECT_EQ(figure.title, "Test of one proportion");
  EXPECT_EQ(
      figure.subtitles,
      std::vector<std::string>{"proportion 0.65; null proportion 0.5; exact test; one-sided; significance level 0.05"});
  EXPECT_EQ(DescriptionOf(chart).substr(0, 44), "Power over sample size (observations) from 1");
  EXPECT_EQ(FigureOf(TwoProportions(Named("risk-difference"))).subtitles.front(),
            "proportions 0.5, ...; group sizes 50, 60; z test; two-sided; significance level 0.05");
  EXPECT_EQ(FigureOf(chart, "Mine").title, "Mine");
}

TEST(Svg, HasATitleAndADescription) {
  const std::string svg = "<?xml?><svg width=\"9\"><title>Gnuplot</title><desc>by it</desc><g/></svg>";
  EXPECT_EQ(WithTitleAndDescription(svg, "A < B", "power & n"),
            "<?xml?><svg width=\"9\" role=\"img\" aria-labelledby=\"title description\">\n"
            "<title id=\"title\">A &lt; B</title>\n<desc id=\"description\">power &amp; n</desc><g/></svg>");
}

TEST(Chart, StopsOnRequest) {
  CountingStop stop(1);
  EXPECT_THROW(ComputeChart(*FindTest("anova"), Named("n"), design, &stop), Stopped);
}

TEST(Chart, ListNamesEveryAxis) {
  const auto list = nlohmann::json::parse(RenderListJson());
  for (std::size_t i = 0; i < Tests().size(); ++i) {
    const std::vector<Axis> axes = AllAxes(Tests()[i]);
    ASSERT_EQ(list[i]["axes"].size(), axes.size());
    for (std::size_t k = 0; k < axes.size(); ++k) EXPECT_EQ(list[i]["axes"][k]["name"], axes[k].name);
  }
}

}  // namespace
}  // namespace planner
