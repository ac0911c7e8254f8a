#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kelpower.h"
#include "support.h"
#include "words/render.h"

namespace planner {
namespace {

Value ResultOf(const Report& report, const std::string& name) {
  for (const Entry& entry : report.results) {
    if (entry.name == name) return entry.value;
  }
  ADD_FAILURE() << "no result " << name;
  return 0.0;
}

double NumberOf(const Report& report, const std::string& name) { return std::get<double>(ResultOf(report, name)); }

Report Anova(const InputValues& given) { return Solved(*FindTest("anova"), given); }

template <class Error>
std::string Complaint(const std::string& test, const InputValues& given) {
  try {
    Solved(*FindTest(test), given);
  } catch (const Error& error) {
    return Said(error);
  }
  ADD_FAILURE() << "nothing thrown";
  return "";
}

const Numbers means{10, 12, 15};

TEST(Solve, AnswersThePowerFromTheLibrary) {
  const Numbers sizes{20, 25, 30};
  const Report report = Anova({{"means", means}, {"sd", 6.0}, {"n", sizes}});
  EXPECT_EQ(report.question, Question::Power);
  EXPECT_EQ(NumberOf(report, "power"), PowerOverallTest(3, means.data(), 6, sizes.data(), 0.05));
  EXPECT_EQ(NumberOf(report, "total"), 75);
  EXPECT_DOUBLE_EQ(NumberOf(report, "effect-f"), std::sqrt(38.0 / 9) / 6);
  EXPECT_DOUBLE_EQ(NumberOf(report, "eta-squared"), 38.0 / 9 / (38.0 / 9 + 36));
}

TEST(Solve, ReportsThePowerAtTheRoundedSizes) {
  const Report report = Anova({{"means", means}, {"sd", 6.0}, {"power", 0.9}, {"ratios", Numbers{2, 1, 1}}});
  const auto sizes = std::get<Numbers>(ResultOf(report, "n"));
  EXPECT_EQ(NumberOf(report, "power"), PowerOverallTest(3, means.data(), 6, sizes.data(), 0.05));
  EXPECT_GE(NumberOf(report, "power"), 0.9);
  EXPECT_EQ(NumberOf(report, "total"), SampleSizeTotal(3, sizes.data()));
  EXPECT_NEAR(sizes[0], 2 * sizes[1], 1);
}

TEST(Solve, AnswersBothSidesOfTheHalfWidth) {
  const Report found = Anova({{"sd", 6.0}, {"half-width", 1.5}, {"groups", 3.0}});
  const auto sizes = std::get<Numbers>(ResultOf(found, "n"));
  const Report back = Anova({{"sd", 6.0}, {"n", sizes}, {"interval", true}});
  EXPECT_EQ(NumberOf(found, "half-width"), NumberOf(back, "half-width"));
  EXPECT_LE(NumberOf(back, "half-width"), 1.5);
  Numbers fewer = sizes;
  for (double& size : fewer) size -= 1;
  EXPECT_GT(NumberOf(Anova({{"sd", 6.0}, {"n", fewer}, {"interval", true}}), "half-width"), 1.5);
}

TEST(Solve, SpreadsOneSizeOverTheGroups) {
  const Report one = Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}});
  const Report each = Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{20, 20, 20}}});
  EXPECT_EQ(NumberOf(one, "power"), NumberOf(each, "power"));
  EXPECT_EQ(one.sentence, each.sentence);
}

TEST(Solve, FlagsThatAreNotSetAskNothing) {
  const Report report = Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}, {"interval", false}});
  EXPECT_EQ(report.question, Question::Power);
}

TEST(Solve, RefusesInputsThatDisagree) {
  EXPECT_EQ(Complaint<InputError>("anova", {{"means", means}, {"sd", 6.0}, {"n", Numbers{20, 20}}}),
            "--n gives 2 groups, but --means gives 3.");
  EXPECT_EQ(Complaint<InputError>("anova", {{"effect-f", 0.2}, {"n", Numbers{20}}}),
            "The number of groups is not known: give --groups.");
  EXPECT_EQ(Complaint<InputError>("anova", {{"means", Numbers{1}}, {"sd", 6.0}, {"n", Numbers{20}}}),
            "--means gives 1 group, but must give at least 2.");
  EXPECT_EQ(Complaint<InputError>("anova", {{"mean", 1.0}}), "--mean is no input of anova.");
}

TEST(Solve, RefusesADesignWithoutErrorDegreesOfFreedom) {
  EXPECT_THROW(Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{1}}}), InputError);
  EXPECT_NO_THROW(Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{1, 1, 2}}}));
}

TEST(Solve, SaysWhyThereIsNoSampleSize) {
  EXPECT_EQ(Complaint<NoSolution>("anova", {{"means", Numbers{5, 5}}, {"sd", 6.0}, {"power", 0.8}}),
            "The means are all equal: without an effect, no sample size reaches the power.");
  EXPECT_EQ(Complaint<NoSolution>("anova", {{"effect-f", 1e-300}, {"groups", 3.0}, {"power", 0.8}}),
            "No sample size was found that reaches a power of 0.8.");
  EXPECT_EQ(Complaint<NoSolution>("anova", {{"sd", 1e300}, {"half-width", 1e-300}, {"groups", 3.0}}),
            "No sample size was found that reaches a half-width of 1e-300.");
}

TEST(Solve, DoesNotReportSizesThatMissTheTargetByFar) {
  EXPECT_EQ(Complaint<NoSolution>(
                "contrast",
                {{"coefficients", Numbers{1, -1, 0}}, {"sd", 1.0}, {"half-width", 1e-18}, {"alpha", 0.999999999}}),
            "No sample size was found that reaches a half-width of 1e-18.");
}

TEST(Solve, NeedsNoEffectForAPowerBelowAlpha) {
  const Report report = Anova({{"means", Numbers{5, 5}}, {"sd", 6.0}, {"power", 0.04}});
  EXPECT_EQ(std::get<Numbers>(ResultOf(report, "n")), (Numbers{2, 2}));
}

TEST(Solve, ContrastTakesRoundedThirds) {
  const InputValues design{{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}};
  InputValues typed = design;
  typed["coefficients"] = Numbers{0.3333333, 0.6666667, -0.9999999};
  InputValues exact = design;
  exact["coefficients"] = Numbers{1.0 / 3, 2.0 / 3, -1};
  const planner::Test& contrast = *FindTest("contrast");
  EXPECT_NEAR(NumberOf(Solved(contrast, typed), "power"), NumberOf(Solved(contrast, exact), "power"), 1e-6);
}

TEST(Solve, ContrastPowerDoesNotDependOnTheScaleOfTheCoefficients) {
  const InputValues design{{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}};
  InputValues small = design;
  small["coefficients"] = Numbers{-0.5, -0.5, 1};
  InputValues large = design;
  large["coefficients"] = Numbers{-3.3, -3.3, 6.6};
  const planner::Test& contrast = *FindTest("contrast");
  EXPECT_NEAR(NumberOf(Solved(contrast, small), "power"), NumberOf(Solved(contrast, large), "power"), 1e-12);
}

TEST(Solve, ContrastRefusesCoefficientsThatDoNotSumToZero) {
  for (const Numbers& coefficients : {Numbers{1, 0, 0}, Numbers{0, 0, 0}, Numbers{1, 1, 5}}) {
    EXPECT_EQ(Complaint<InputError>("contrast", {{"coefficients", coefficients}, {"sd", 1.0}, {"half-width", 1.0}}),
              "--coefficients must sum to zero, and must not all be zero.");
  }
}

TEST(Solve, PairwiseDoesNotDependOnTheOrderOfThePair) {
  const InputValues design{{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}};
  InputValues forward = design;
  forward["pair"] = Numbers{1, 3};
  InputValues backward = design;
  backward["pair"] = Numbers{3, 1};
  const planner::Test& pairwise = *FindTest("pairwise");
  EXPECT_EQ(NumberOf(Solved(pairwise, forward), "power"), NumberOf(Solved(pairwise, backward), "power"));
}

TEST(Solve, PairwiseWithoutAdjustmentIsTheContrastOfThePair) {
  const InputValues design{{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}};
  InputValues pair = design;
  pair["pair"] = Numbers{1, 3};
  pair["adjust"] = std::string("none");
  InputValues contrast = design;
  contrast["coefficients"] = Numbers{1, 0, -1};
  EXPECT_EQ(NumberOf(Solved(*FindTest("pairwise"), pair), "power"),
            NumberOf(Solved(*FindTest("contrast"), contrast), "power"));
}

TEST(Solve, PairwiseRefusesGroupsThatAreNotThere) {
  const InputValues design{{"sd", 6.0}, {"n", Numbers{20}}, {"groups", 3.0}, {"interval", true}};
  InputValues beyond = design;
  beyond["pair"] = Numbers{1, 4};
  EXPECT_EQ(Complaint<InputError>("pairwise", beyond), "--pair names a group beyond the number of groups.");
  InputValues same = design;
  same["pair"] = Numbers{2, 2};
  EXPECT_EQ(Complaint<InputError>("pairwise", same), "--pair must name two different groups.");
}

TEST(Render, ReportsANote) {
  const Report report = Anova({{"means", means}, {"sd", 6.0}, {"n", Numbers{20}}, {"alpha", 0.95}});
  EXPECT_EQ(report.note, "A significance level of 0.95 rejects more often than not without any effect.");
  EXPECT_NE(RenderText(report).find("\nNote: " + report.note + "\n"), std::string::npos);
  EXPECT_NE(RenderMarkdown(report).find("\n" + report.note + "\n"), std::string::npos);
  EXPECT_EQ(nlohmann::json::parse(RenderJson(report))["note"], report.note);
}

InputValues TwoProportions(const std::string& test, const std::string& name, Value value) {
  return {{"proportions", Numbers{0.5, 0.75}}, {"test", test}, {name, std::move(value)}};
}

TEST(Solve, StopsOnRequest) {
  const planner::Test& test = *FindTest("two-proportions");
  for (const std::string method : {"z", "conditional"}) {
    for (const int question : {1, 2}) {
      CountingStop request(question);
      EXPECT_THROW(Solved(test, TwoProportions(method, "power", 0.8), &request), Stopped) << method;
    }
    CountingStop request(1);
    EXPECT_THROW(Solved(test, TwoProportions(method, "n", Numbers{50}), &request), Stopped) << method;
  }
}

// The refinement of an exact search keeps the sizes that it has when it is stopped; they are no answer.
TEST(Solve, StopsLateInASearch) {
  const planner::Test& test = *FindTest("two-proportions");
  const InputValues search = TwoProportions("conditional", "power", 0.8);
  CountingStop counter;
  const Report answer = Solved(test, search, &counter);
  ASSERT_GT(counter.asked, 1000);
  for (const int left : {1, 2, 100, 1000}) {
    CountingStop request(counter.asked - left + 1);
    EXPECT_THROW(Solved(test, search, &request), Stopped) << left;
  }
  CountingStop request(counter.asked + 1);
  EXPECT_EQ(Solved(test, search, &request).sentence, answer.sentence);
}

// Asking at every table would take the exact z test hundreds of times as long as its power.
TEST(Solve, AsksOnlyWhereThatCostsLittle) {
  CountingStop counter;
  InputValues exact = TwoProportions("z", "n", Numbers{400});
  exact["exact"] = true;
  Solved(*FindTest("two-proportions"), exact, &counter);
  EXPECT_LT(counter.asked, 10);
}

TEST(Solve, ShowsUncountableSizesInFourDigits) {
  const Report report = Solved(*FindTest("mean"), {{"effect-d", 1e-9}, {"power", 0.8}});
  EXPECT_NE(report.sentence.find(" needs 7.849e+18 observations;"), std::string::npos) << report.sentence;
  EXPECT_NEAR(NumberOf(report, "n"), 7.84886e18, 1e13);
  const Report groups = Solved(*FindTest("two-means"), {{"effect-d", 1e-9}, {"power", 0.8}, {"ratio", 2.0}});
  EXPECT_NE(groups.sentence.find(" needs 1.177e+19 and 2.355e+19 observations in 2 groups (3.532e+19 in total);"),
            std::string::npos)
      << groups.sentence;
}

TEST(Solve, CountsTheEntriesOfAList) {
  EXPECT_EQ(Complaint<InputError>("two-proportions", {{"proportions", Numbers{0.5}}, {"n", Numbers{20}}}),
            "--proportions has 1 entry, but there are 2 groups.");
  EXPECT_EQ(Complaint<InputError>("two-proportions", {{"proportions", Numbers{0.5, 0.6, 0.7}}, {"n", Numbers{20}}}),
            "--proportions has 3 entries, but there are 2 groups.");
}

}  // namespace
}  // namespace planner
