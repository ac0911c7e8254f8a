#include "help.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "help_usage.h"
#include "solve/axes.h"

namespace {

TEST(Help, NamesEveryOptionAndShowsTheExamples) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string help = HelpOf(test);
    for (const planner::Parameter& parameter : test.parameters) {
      EXPECT_NE(help.find("  " + OptionOf(parameter.name.Text())), std::string::npos) << parameter.name.Text();
    }
    for (const auto& example : test.examples) EXPECT_NE(help.find(example.arguments), std::string::npos);
    EXPECT_EQ(help.find('{'), std::string::npos) << "inputs are named as options: " << help;
  }
}

TEST(Help, OfEffectSizesBeginsWithAnExampleAndNamesEveryInput) {
  const std::string help = HelpOfEffects();
  const planner::Test& inputs = planner::EffectSizes().inputs;
  for (const planner::Parameter& parameter : inputs.parameters) {
    EXPECT_NE(help.find("\n  " + OptionOf(parameter.name.Text())), std::string::npos) << parameter.name.Text();
  }
  for (const auto& example : inputs.examples) EXPECT_NE(help.find(example.arguments), std::string::npos);
  EXPECT_LT(help.find("For example\n  kelpower effect --means"), help.find("\nMeans and standard deviations"));
  EXPECT_EQ(help.find('{'), std::string::npos);
  EXPECT_EQ(help.find(" X"), std::string::npos) << "a value without a name";
  EXPECT_EQ(help.find("--jobs"), std::string::npos);
}

TEST(Help, BeginsWithTheCommonestCall) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string help = HelpOf(test);
    const std::size_t call = help.find("  kelpower " + test.name + " --");
    ASSERT_NE(call, std::string::npos) << test.name;
    EXPECT_NE(help.substr(call, help.find('\n', call) - call).find(" --power 0."), std::string::npos) << help;
    EXPECT_EQ(help.substr(call, help.find('\n', call) - call).find(" --n "), std::string::npos) << help;
    EXPECT_LT(call, help.find("Options")) << test.name;
    EXPECT_LT(help.find(test.whenNot), call) << test.name;
  }
}

/// The lines between two headings.
std::vector<std::string> UsageLines(const planner::Test& test) {
  const std::string help = HelpOf(test);
  std::istringstream usage(
      help.substr(help.find("Power of a design"), help.find("\nOptions") - help.find("Power of a design")));
  std::vector<std::string> lines;
  for (std::string line; std::getline(usage, line);) {
    if (line.rfind("  kelpower", 0) == 0) lines.push_back(line);
  }
  return lines;
}

TEST(Help, NamesEachInputOfAUsageLineOnceWithWhatStandsForItsValue) {
  for (const planner::Test& test : planner::Tests()) {
    const std::vector<std::string> lines = UsageLines(test);
    EXPECT_FALSE(lines.empty()) << test.name;
    for (const std::string& line : lines) {
      std::set<std::string> seen;
      std::istringstream words(line);
      std::string before;
      for (std::string word; words >> word; before = word) {
        const bool isOption = word.find("--") <= 1;
        EXPECT_TRUE(!isOption || seen.insert(word).second) << line;
        const planner::Parameter* parameter =
            before.rfind("--", 0) == 0 ? planner::FindParameter(test, before.substr(2)) : nullptr;
        const bool needsValue = parameter && parameter->kind != planner::Kind::Flag;
        EXPECT_FALSE(needsValue && isOption) << line;
      }
    }
  }
}

/// The lines that "(a | b)" stands for.
std::vector<std::string> Expanded(const std::string& line) {
  const std::size_t open = line.find('(');
  if (open == std::string::npos) return {line};
  const std::size_t close = line.find(')', open);
  std::vector<std::string> lines;
  for (std::size_t from = open + 1; from < close;) {
    const std::size_t to = std::min(line.find(" | ", from), close);
    const std::string one = line.substr(0, open) + line.substr(from, to - from) + line.substr(close + 1);
    for (const std::string& whole : Expanded(one)) lines.push_back(whole);
    from = to + 3;
  }
  return lines;
}

TEST(Help, ShowsEachWayToAskAQuestionOnce) {
  for (const planner::Test& test : planner::Tests()) {
    std::multiset<std::string> shown;
    std::multiset<std::string> ways;
    for (const auto question : {planner::Question::Power, planner::Question::SampleSize, planner::Question::HalfWidth,
                                planner::Question::SampleSizeForHalfWidth}) {
      const std::vector<std::string> lines = Usages(test, question);
      EXPECT_LE(lines.size(), 10u) << test.name;
      for (const std::string& line : lines) {
        for (const std::string& one : Expanded(line)) shown.insert(one);
      }
    }
    for (const planner::Route& route : test.routes) ways.insert(Usage(test, route));
    EXPECT_EQ(shown, ways);
  }
}

TEST(Help, SaysThatAListOfTwoIsTwoNumbers) {
  EXPECT_NE(HelpOf(*planner::FindTest("two-means")).find("(two numbers like 52,47)"), std::string::npos);
  EXPECT_NE(HelpOf(*planner::FindTest("paired-means")).find("(two numbers like 52,47)"), std::string::npos);
  EXPECT_NE(HelpOf(*planner::FindTest("anova")).find("(a list like 1,2,3, each entry a number)"), std::string::npos);
}

TEST(Help, ShowsEveryAxisOfChartsOnce) {
  constexpr std::size_t widest = 110;
  for (const planner::Test& test : planner::Tests()) {
    std::istringstream help(HelpOf(test));
    std::set<std::string> shown;
    bool isInCharts = false;
    for (std::string line; std::getline(help, line);) {
      if (line == "Charts") isInCharts = true;
      if (isInCharts && line.empty()) break;
      if (!isInCharts) continue;
      const bool isCommand = line.rfind("  kelpower ", 0) == 0;  // to be copied in one piece
      EXPECT_TRUE(isCommand || line.size() <= widest) << line;
      std::istringstream words(line);
      std::string name;
      words >> name;
      for (const planner::Axis& axis : planner::AllAxes(test)) {
        if (axis.name == name && line.find(axis.title) != std::string::npos) {
          EXPECT_TRUE(shown.insert(name).second) << line;
        }
      }
    }
    EXPECT_EQ(shown.size(), planner::AllAxes(test).size()) << test.name;
  }
}

}  // namespace
