#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "support.h"
#include "words/render.h"

// What answers say of what they take for granted, and of what is odd about a question.
namespace planner {
namespace {

/// The report of a question as it is typed.
Report Answered(const std::string& arguments) {
  const planner::Test& test = *FindTest(arguments.substr(0, arguments.find(' ')));
  return Solved(test, ValuesTyped(test, arguments));
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

double ResultOf(const Report& report, const std::string& name) {
  for (const Entry& entry : report.results) {
    if (entry.name == name) return std::get<double>(entry.value);
  }
  ADD_FAILURE() << name;
  return 0;
}

TEST(Said, NoColumnOfACsvTwice) {
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      const std::string csv = RenderCsv(Answered(example.arguments));
      std::istringstream columns(csv.substr(0, csv.find('\n')));
      std::set<std::string> names;
      for (std::string name; std::getline(columns, name, ',');) {
        EXPECT_TRUE(names.insert(name).second) << name << ": " << example.arguments;
      }
    }
  }
}

TEST(Said, VariancesOfTwoMeans) {
  EXPECT_TRUE(Holds(Answered("two-means --means 52,47 --sd 10,14 --n 40").sentence, "unequal, Welch's test"));
  EXPECT_TRUE(Holds(Answered("two-means --means 52,47 --sd 10 --n 40").sentence, "(variances pooled)"));
}

TEST(Said, StandardErrorAndTailsOfTwoProportions) {
  const std::string question = "two-proportions --proportions 0.5,0.75 --n 30 ";
  EXPECT_TRUE(Holds(RenderText(Answered(question)), "standard error "));
  EXPECT_TRUE(Holds(Answered(question).sentence, "two-sided pooled z test"));
  EXPECT_TRUE(Holds(Answered(question + "--unpooled").sentence, "two-sided unpooled z test"));
  EXPECT_TRUE(Holds(Answered(question + "--exact").sentence, "exact pooled z test"));
  EXPECT_TRUE(Holds(Answered(question + "--method conditional").sentence, "at most half of the level in each tail"));
  EXPECT_FALSE(Holds(Answered(question + "--method conditional --one-sided").sentence, "tail"));
  EXPECT_TRUE(
      Holds(Answered(question + "--method arcsine").sentence, "corrected by half an observation in each group"));
}

// Who does not know the correlation of pairs plans cautiously with none.
TEST(Said, PairsWithoutACorrelation) {
  const std::string question = "paired-means --means 25,21 --sds 8,8 --power 0.8 --correlation ";
  EXPECT_EQ(ResultOf(Answered(question + "0"), "n"), ResultOf(Answered(question + "1e-7"), "n"));
  EXPECT_EQ(ResultOf(Answered(question + "0"), "n"), 65);
  // The differences vary most where one measurement rises as the other falls.
  EXPECT_EQ(ResultOf(Answered(question + "-1"), "n"),
            ResultOf(Answered("paired-means --mean-difference 4 --sd-difference 16 --power 0.8"), "n"));
}

TEST(Said, WhatPredictorsThatAreNotTestedExplain) {
  const std::string question = "regression --r-squared 0.3 --predictors 6 --tested 2 --power 0.8 --r-squared-reduced ";
  EXPECT_EQ(ResultOf(Answered(question + "0"), "n"), 27);
  EXPECT_EQ(ResultOf(Answered(question + "0.25"), "n"), 139);
}

TEST(Said, TheLevelThatAnExactTestAttains) {
  // Both directions of a test of 30 and 30: the level is the power where the proportions are equal.
  const Report exact = Answered("two-proportions --proportions 0.5,0.75 --n 30 --exact");
  const Report equal = Answered("two-proportions --proportions 0.625,0.625 --n 30 --exact");
  EXPECT_DOUBLE_EQ(ResultOf(exact, "attained-level"), ResultOf(equal, "power"));
  const Report pairs =
      Answered("paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --exact");
  EXPECT_LT(ResultOf(pairs, "attained-level"), 0.05);
  EXPECT_GT(ResultOf(pairs, "attained-level"), 0.01);
}

/// The size found, of each group.
int SizeIn(const Report& report) {
  for (const Entry& entry : report.results) {
    if (entry.name != "n") continue;
    const auto* sizes = std::get_if<Numbers>(&entry.value);
    return static_cast<int>(sizes ? sizes->front() : std::get<double>(entry.value));
  }
  ADD_FAILURE() << "no size";
  return 0;
}

TEST(Said, WhatAnExactTestDoesAtTheSizesFound) {
  const std::set<std::string> ofSizes{"attained-level",  "attained-at-margin", "rejects-to", "rejects-from",
                                      "equivalent-from", "equivalent-to",      "power"};
  for (const std::string design :
       {"proportion --proportion 0.15 --null 0.1 --exact", "two-proportions --proportions 0.3,0.5 --exact",
        "two-proportions --proportions 0.3,0.5 --method conditional", "paired-proportions --p12 0.1 --p21 0.2 --exact",
        "proportion --proportion 0.5 --null 0.5 --equivalence -0.1,0.1 --exact",
        "two-proportions --proportions 0.3,0.32 --margin -0.1 --non-inferiority --exact"}) {
    const Report found = Answered(design + " --power 0.8");
    const Report given = Answered(design + " --n " + std::to_string(SizeIn(found)));
    std::set<std::string> told;
    for (const Entry& entry : given.results) {
      if (ofSizes.count(entry.name) == 0) continue;
      EXPECT_EQ(ResultOf(found, entry.name), std::get<double>(entry.value)) << design << ' ' << entry.name;
      told.insert(entry.name);
    }
    EXPECT_GE(told.size(), 2u) << design;
  }
}

TEST(Said, DiscordantPairsAndTheLevelOfAComparison) {
  const Report pairs = Answered("paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60");
  EXPECT_NEAR(ResultOf(pairs, "p12") - ResultOf(pairs, "p21"), 0.2, 1e-15);
  EXPECT_NEAR(ResultOf(pairs, "p21"), 0.4 * 0.4 - 0.3 * 0.24, 1e-15);
  const Report pair = Answered("pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20");
  EXPECT_DOUBLE_EQ(ResultOf(pair, "level-per-comparison"), 0.05 / 3);
}

TEST(Said, TheConfidenceOfAnInterval) {
  EXPECT_TRUE(Holds(RenderText(Answered("mean --sd 10 --n 40 --interval --alpha 0.1")), "90%"));
  EXPECT_FALSE(Holds(RenderText(Answered("mean --effect-d 0.4 --n 40")), "confidence"));
}

TEST(Said, ASecondProportionRelativeToTheFirst) {
  const Report ratio = Answered("two-proportions --proportion1 0.3 --risk-ratio 1.5 --n 100");
  EXPECT_DOUBLE_EQ(ResultOf(ratio, "proportion2"), 0.45);
  EXPECT_TRUE(Holds(ratio.sentence, "a risk ratio of 1.5 from 0.3 to 0.45"));
  const double power = ResultOf(ratio, "power");
  for (const char* effect : {"--proportion2 0.45", "--risk-difference 0.15", "--odds-ratio 1.909090909090909"}) {
    const Report other = Answered(std::string("two-proportions --proportion1 0.3 --n 100 ") + effect);
    EXPECT_NEAR(ResultOf(other, "power"), power, 1e-12) << effect;
  }
  const Report proportions = Answered("two-proportions --proportions 0.3,0.45 --n 100");
  EXPECT_DOUBLE_EQ(ResultOf(proportions, "risk-ratio"), 1.5);
  EXPECT_NEAR(ResultOf(proportions, "risk-difference"), 0.15, 1e-15);
  EXPECT_NEAR(ResultOf(proportions, "odds-ratio"), 0.45 / 0.55 / (0.3 / 0.7), 1e-14);
}

TEST(Said, FlagsForReadingOnlyWhereTheyAreSet) {
  const Report report = Answered("contrast --coefficients 1,-1,0 --effect-d 0.5 --n 40");
  EXPECT_FALSE(Holds(RenderText(report), "one-sided test"));
  EXPECT_TRUE(Holds(RenderJson(report), "\"one-sided\": false"));
  EXPECT_TRUE(Holds(RenderCsv(report), "one-sided"));
  EXPECT_TRUE(Holds(RenderText(Answered("mean --effect-d 0.5 --n 40 --one-sided")), "one-sided test"));
}

TEST(Said, AnOddLevelOrPower) {
  EXPECT_TRUE(Holds(Answered("mean --effect-d 0.4 --n 40 --alpha 0.95").note, "A significance level of 0.95"));
  EXPECT_TRUE(Holds(Answered("mean --effect-d 0 --n 40").note, "not above the significance level"));
  EXPECT_EQ(Answered("mean --effect-d 0.4 --n 40").note, "");
}

TEST(Said, APowerOfNothingIsZero) {
  const Report report = Answered("proportion --proportion 0 --null 0.5 --n 3 --exact --one-sided --alpha 0.01");
  EXPECT_EQ(ResultOf(report, "power"), 0);
  EXPECT_EQ(report.results.back().shown, "0");
}

}  // namespace
}  // namespace planner
