#include "solve/choose_route.h"

#include <gtest/gtest.h>

#include "support.h"

namespace planner {
namespace {

Test Toy() {
  return {.name = "toy",
          .title = "",
          .about = "",
          .parameters = {Number("sd", "", ""), Flag("one-sided", "", ""), Flag("interval", "", "")},
          .routes = {
              {.question = Question::Power,
               .needs = {"mean", "sd", "n"},
               .accepts = {"one-sided"},
               .exportName = "FromMean"},
              {.question = Question::Power,
               .needs = {"effect-d", "n"},
               .accepts = {"one-sided"},
               .exportName = "FromEffect"},
              {.question = Question::SampleSize,
               .needs = {"mean", "sd"},
               .accepts = {"one-sided", "ratios"},
               .exportName = "SizeFromMean"},
              {.question = Question::HalfWidth, .needs = {"sd", "n"}, .exportName = "Interval"},
          }};
}

std::string Chosen(Question question, const Names& given) {
  const Test test = Toy();
  return ChooseRoute(test, question, given).exportName;
}

std::string Complaint(Question question, const Names& given) {
  try {
    return Chosen(question, given);
  } catch (const InputError& error) {
    return Said(error);
  }
}

TEST(AskedQuestion, FollowsTheAskingOption) {
  EXPECT_EQ(AskedQuestion({"mean"}), Question::Power);
  EXPECT_EQ(AskedQuestion({"mean", "power"}), Question::SampleSize);
  EXPECT_EQ(AskedQuestion({"interval"}), Question::HalfWidth);
  EXPECT_EQ(AskedQuestion({"half-width"}), Question::SampleSizeForHalfWidth);
  EXPECT_THROW(AskedQuestion({"half-width", "power"}), InputError);
  EXPECT_THROW(AskedQuestion({"half-width", "interval"}), InputError);
}

TEST(GivenNames, LeavesOutFlagsThatAreNotSet) {
  EXPECT_EQ(GivenNames(Toy(), {{"interval", false}, {"one-sided", true}, {"sd", 2.0}}), (Names{"one-sided", "sd"}));
}

TEST(ChooseRoute, TakesTheRouteThatFits) {
  EXPECT_EQ(Chosen(Question::Power, {"mean", "sd", "n"}), "FromMean");
  EXPECT_EQ(Chosen(Question::Power, {"effect-d", "n", "one-sided", "alpha"}), "FromEffect");
  EXPECT_EQ(Chosen(Question::SampleSize, {"mean", "sd", "power"}), "SizeFromMean");
  EXPECT_EQ(Chosen(Question::HalfWidth, {"sd", "n", "interval"}), "Interval");
}

TEST(ChooseRoute, SaysWhatExcludesWhat) {
  EXPECT_EQ(Complaint(Question::Power, {"effect-d", "n", "sd"}), "--effect-d and --sd exclude each other.");
  EXPECT_EQ(Complaint(Question::SampleSize, {"mean", "n", "power", "sd"}),
            "--power asks for the sample size, so --n cannot be given as well.");
  EXPECT_EQ(Complaint(Question::Power, {"mean", "n", "ratios", "sd"}),
            "--ratios has a use only together with --power.");
}

TEST(ChooseRoute, SaysWhatIsMissing) {
  EXPECT_EQ(Complaint(Question::HalfWidth, {"interval", "n"}), "Also give --sd for the half-width.");
  EXPECT_EQ(Complaint(Question::Power, {"mean", "n"}), "Also give --sd for the power.");
  EXPECT_EQ(Complaint(Question::Power, {"mean", "sd"}),
            "Also give --n for the power; for the sample size, give --power in place of --n.");
  EXPECT_EQ(Complaint(Question::Power, {"n"}), "Also give --mean and --sd, or --effect-d for the power.");
}

}  // namespace
}  // namespace planner
