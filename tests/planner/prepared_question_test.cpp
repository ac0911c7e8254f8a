#include "solve/prepared_question.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <new>

#include "kelpower.h"
#include "support.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace planner {
namespace {

const InputValues design{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40, 60}}};

TEST(PreparedQuestion, AnswersEachRowAsTheLibraryDoes) {
  PreparedQuestion question(*FindTest("two-means"), design);
  question.SetColumns({{"means", 0}, {"n", 1}});
  for (double mean : {48.0, 50.5, 57.0}) {
    for (double n2 : {20.0, 60.0, 100.0}) {
      const Row row = question.Evaluate(Numbers{mean, n2});
      EXPECT_EQ(row.status, RowStatus::Answered);
      EXPECT_EQ(row.value, PowerIndependentNondirectional(40, mean, 10, n2, 47, 14, 0.05));
    }
  }
}

TEST(PreparedQuestion, TakesNoMemoryForARow) {
  PreparedQuestion question(*FindTest("two-means"), design);
  question.SetColumns({{"means", 0}});
  Numbers row{50};
  question.Evaluate(row);
  const std::size_t before = allocations;
  for (row[0] = 50; row[0] < 60; row[0] += 1) question.Evaluate(row);
  EXPECT_EQ(allocations, before);
}

TEST(PreparedQuestion, TakesNoMemoryForARowOfClusters) {
  PreparedQuestion question(*FindTest("two-means"), {{"means", Numbers{52, 47}},
                                                     {"sd", Numbers{10, 14}},
                                                     {"n", Numbers{40, 60}},
                                                     {"cluster-size", 20.0},
                                                     {"icc", 0.05},
                                                     {"comparisons", 3.0}});
  question.SetColumns({{"means", 0}, {"n", 1}, {"icc"}});
  Numbers row{50, 60, 0.01};
  question.Evaluate(row);
  const std::size_t before = allocations;
  for (row[0] = 50; row[0] < 60; row[0] += 1) EXPECT_EQ(question.Evaluate(row).status, RowStatus::Answered);
  EXPECT_EQ(allocations, before);
}

// Rows may share what an exact test computes once: its regions at given sizes and level.
TEST(PreparedQuestion, KeepsOfAnExactTestOnlyWhatItsDesignsShare) {
  PreparedQuestion question(*FindTest("two-proportions"),
                            {{"proportions", Numbers{0.3, 0.5}}, {"n", Numbers{20, 30}}, {"exact", true}});
  question.SetColumns({{"proportions", 1}, {"n", 0}, {"alpha"}});
  for (double p2 : {0.5, 0.6}) {
    for (double n1 : {20.0, 25.0}) {
      for (double alpha : {0.05, 0.01}) {
        EXPECT_EQ(question.Evaluate(Numbers{p2, n1, alpha}).value,
                  PowerIndSampBinom(n1, 30, 0.3, p2, 1, 0, 0, alpha, 0, 0, nullptr));
        EXPECT_EQ(PreparedQuestion(question).Evaluate(Numbers{0.1, 40, alpha}).value,
                  PowerIndSampBinom(40, 30, 0.3, 0.1, 1, 0, 0, alpha, 0, 0, nullptr));
      }
    }
  }
}

TEST(PreparedQuestion, RefusesARowAndAnswersTheNext) {
  PreparedQuestion question(*FindTest("anova"), {{"effect-f", 0.25}, {"n", Numbers{20, 20, 20}}});
  question.SetColumns({{"effect-f"}, {"n", 2}});
  const auto status = [&](double f, double n) { return question.Evaluate(Numbers{f, n}).status; };
  EXPECT_EQ(status(-1, 20), RowStatus::InputRefused);
  EXPECT_EQ(status(0.25, 20.5), RowStatus::InputRefused);
  EXPECT_EQ(status(std::nan(""), 20), RowStatus::InputRefused);
  EXPECT_TRUE(std::isnan(question.Evaluate(Numbers{-1, 20}).value));
  EXPECT_EQ(status(0.25, 20), RowStatus::Answered);
  EXPECT_EQ(question.Evaluate(Numbers{0.25}).status, RowStatus::InputRefused) << "a row too short";
}

TEST(PreparedQuestion, ChecksTheConditionsOfEachRow) {
  PreparedQuestion question(*FindTest("paired-proportions"), {{"p12", 0.3}, {"p21", 0.1}, {"n", 50.0}});
  question.SetColumns({{"p12"}});
  EXPECT_EQ(question.Evaluate(Numbers{0.9}).status, RowStatus::Answered);
  EXPECT_EQ(question.Evaluate(Numbers{0.95}).status, RowStatus::InputRefused);
}

TEST(PreparedQuestion, FindsSizesRowByRow) {
  const planner::Test& test = *FindTest("two-means");
  PreparedQuestion question(test, {{"effect-d", 0.5}, {"power", 0.8}});
  question.SetColumns({{"effect-d"}});
  EXPECT_EQ(question.Evaluate(Numbers{0.5}).status, RowStatus::Answered);
  EXPECT_EQ(question.Sizes(), (Numbers{64, 64}));
  EXPECT_EQ(question.Evaluate(Numbers{0}).status, RowStatus::NoAnswer);
  const Row row = question.Evaluate(Numbers{0.8});
  EXPECT_EQ(row.value, Solve(test, {{"effect-d", 0.8}, {"power", 0.8}}).value);
}

TEST(PreparedQuestion, RefusesColumnsThatAreNoNumbersGiven) {
  PreparedQuestion question(*FindTest("two-means"), design);
  EXPECT_THROW(question.SetColumns({{"effect-d"}}), InputError);
  EXPECT_THROW(question.SetColumns({{"one-sided"}}), InputError);
  EXPECT_THROW(question.SetColumns({{"n", 2}}), InputError);
  EXPECT_THROW(question.SetColumns({{"predictors"}}), InputError);
}

}  // namespace
}  // namespace planner
