#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "run.h"

namespace {

TEST(Output, VersionIsThatOfTheProject) {
  const Outcome run = RunProgram({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "kelpower " KELPOWER_VERSION "\n");
}

TEST(Output, OverviewSaysHowToAskAndListsTheTests) {
  const Outcome help = RunProgram({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("kelpower TEST --help"), std::string::npos);
  EXPECT_NE(help.out.find(RunProgram({"list"}).out), std::string::npos);
  EXPECT_EQ(RunProgram({"list", "--help"}).out, help.out);
}

TEST(Output, EveryTestHasHelpAndIsListed) {
  const Outcome list = RunProgram({"list"});
  EXPECT_EQ(list.status, 0);
  for (const planner::Test& test : planner::Tests()) {
    const Outcome help = RunProgram({test.name, "--help"});
    EXPECT_EQ(help.status, 0) << test.name;
    EXPECT_EQ(help.out.rfind(test.title, 0), 0u) << test.name;
    EXPECT_NE(list.out.find(test.title), std::string::npos) << test.name;
  }
}

TEST(Output, EffectSizesHaveHelpAndAreListed) {
  EXPECT_NE(RunProgram({"list"}).out.find("\neffect  "), std::string::npos);
  EXPECT_NE(RunProgram({"--help"}).out.find("kelpower effect --help"), std::string::npos);
  const Outcome help = RunProgram({"effect", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.out.rfind("Effect sizes\n", 0), 0u);
}

TEST(Output, EveryFormatOfEffectSizes) {
  for (const planner::Example& example : planner::EffectSizes().inputs.examples) {
    for (const char* format : {"text", "json", "csv", "markdown"}) {
      std::vector<std::string> arguments = Words(example.arguments);
      arguments.insert(arguments.end(), {"--format", format});
      const Outcome run = RunProgram(arguments);
      EXPECT_EQ(run.status, 0) << example.arguments << ' ' << format << run.err;
      EXPECT_EQ(nlohmann::json::accept(run.out), std::string(format) == "json") << run.out;
    }
  }
}

TEST(Output, HelpIsGivenWhateverElseIsWrong) {
  for (const char* argument : {"--sd=-1", "--nonsense", "--power=2"}) {
    EXPECT_EQ(RunProgram({"anova", argument, "--help"}).status, 0) << argument;
  }
}

TEST(Output, EveryFormatOfEveryExample) {
  for (const planner::Test& test : planner::Tests()) {
    for (const planner::Example& example : test.examples) {
      for (const char* format : {"text", "json", "csv", "markdown"}) {
        std::vector<std::string> arguments = Words(example.arguments);
        arguments.insert(arguments.end(), {"--format", format});
        const Outcome run = RunProgram(arguments);
        EXPECT_EQ(run.status, 0) << example.arguments << ' ' << format;
        EXPECT_EQ(run.out.find('\033'), std::string::npos);
        if (std::string(format) == "json") {
          EXPECT_TRUE(nlohmann::json::accept(run.out)) << run.out;
        }
      }
    }
  }
}

TEST(Output, AliasesMeanTheSame) {
  const Outcome plain = RunProgram(Words("anova --means 10,12,15 --sd 6 --n 20"));
  const Outcome alias = RunProgram(Words("anova --means 10,12,15 --sd 6 --group-sizes 20,20,20"));
  EXPECT_EQ(plain.out, alias.out);
}

TEST(Output, NumbersMayStartWithAMinus) {
  for (const char* arguments : {"anova --means -.5,1 --sd 3 --n 5", "anova --means=-.5,1 --sd=3 --n=5",
                                "anova --means -0.5,+1 --sd 3e0 --n 5"}) {
    EXPECT_NE(RunProgram(Words(arguments)).out.find("-0.5, 1\n"), std::string::npos) << arguments;
  }
}

}  // namespace
