#include "words/problem.h"

#include <gtest/gtest.h>

#include "support.h"

namespace planner {
namespace {

Problem ProblemOf(const std::string& test, const InputValues& values) {
  try {
    Solve(*FindTest(test), values);
  } catch (const Failure& failure) {
    return failure.problem;
  }
  ADD_FAILURE() << "nothing thrown";
  return {.code = Code::Stopped};
}

TEST(Problem, IsData) {
  const Problem problem = ProblemOf("anova", {{"effect-f", 0.2}, {"n", Numbers{20, 20}}, {"alpha", 2.0}});
  EXPECT_EQ(problem.code, Code::NotAllowed);
  EXPECT_EQ(problem.inputs, std::vector<std::string>{"alpha"});
  EXPECT_EQ(std::get<double>(problem.values[0]), 2);
  EXPECT_EQ(problem.allowed->limits.high, 1);
}

TEST(Problem, NamesTheConditionThatFails) {
  const Problem problem = ProblemOf("anova", {{"effect-f", 0.2}, {"n", Numbers{1, 1}}});
  EXPECT_EQ(problem.code, Code::ConditionFails);
  EXPECT_EQ(problem.condition, "error-degrees");
  EXPECT_EQ(problem.inputs, std::vector<std::string>{"n"});
}

TEST(Problem, IsWordedInTheNamesOfAFrontEnd) {
  const Problem problem = ProblemOf("mean", {{"sd", 4.0}, {"half-width", 0.8}, {"test-value", 40.0}});
  EXPECT_EQ(SentenceTemplate(problem),
            "{half-width} asks for the sample size for a half-width, so {test-value} cannot be given as well.");
  const auto title = [](std::string_view name) { return "the " + std::string(name); };
  EXPECT_EQ(Sentence(problem, title),
            "the half-width asks for the sample size for a half-width, so the test-value cannot be given as well.");
}

TEST(Problem, SaysWhatAFlagMustBe) {
  const Problem problem = ProblemOf("mean", {{"effect-d", 0.4}, {"n", 40.0}, {"one-sided", 1.0}});
  EXPECT_EQ(SentenceTemplate(problem), "{one-sided} is 1, but must be true or false.");
}

TEST(Problem, NamesInputsThatDoNotGoTogether) {
  const Problem problem{.code = Code::DoNotGoTogether, .inputs = {"mean", "sd", "exact"}};
  EXPECT_EQ(SentenceTemplate(problem), "{mean}, {sd} and {exact} do not go together.");
}

TEST(Problem, LeavesWhatTheUserTypedAlone) {
  const Parameter adjust = OneOf("adjust", "", "", {{"none", 0, ""}});
  const Problem problem{
      .code = Code::NotAllowed, .inputs = {"adjust"}, .values = {std::string("{n} <0>")}, .allowed = adjust};
  const auto shout = [](std::string_view) { return std::string("!"); };
  EXPECT_EQ(Sentence(problem, shout), "! is \"{n} <0>\", but must be none.");
}

}  // namespace
}  // namespace planner
