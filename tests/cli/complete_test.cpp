#include "complete.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "model/problem.h"
#include "run.h"
#include "solve/axes.h"
#include "solve/choose_route.h"

namespace {

using Texts = std::vector<std::string>;

Texts WordsAfter(Texts words) {
  Texts next;
  for (const Candidate& candidate : Candidates(std::move(words))) next.push_back(candidate.word);
  return next;
}

bool IsAmong(const std::string& word, const Texts& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

TEST(Complete, NamesEveryTestAndCommand) {
  const Texts words = WordsAfter({""});
  for (const planner::Test& test : planner::Tests()) EXPECT_TRUE(IsAmong(test.name, words)) << test.name;
  for (const char* word : {"run", "effect", "list", "--help", "--version"}) EXPECT_TRUE(IsAmong(word, words)) << word;
  EXPECT_EQ(WordsAfter({}), words);
  EXPECT_EQ(WordsAfter({"two-m"}), Texts{"two-means"});
  EXPECT_EQ(WordsAfter({"thing"}), Texts{});
  EXPECT_EQ(WordsAfter({"thing", ""}), Texts{});
}

/// Each option of the examples is offered after those before it.
void WalkThrough(const planner::Test& test) {
  for (const planner::Example& example : test.examples) {
    Texts typed;
    for (const std::string& word : Words(example.arguments)) {
      typed.push_back(word);
      const bool isOption = word.rfind("--", 0) == 0;
      EXPECT_TRUE(!isOption || IsAmong(word, WordsAfter(typed))) << example.arguments << ": " << word;
    }
  }
}

TEST(Complete, WalksThroughEveryExample) {
  for (const planner::Test& test : planner::Tests()) WalkThrough(test);
  WalkThrough(planner::EffectSizes().inputs);
}

/// A value of the parameter's kind; which one does not matter to the choice of a route.
planner::Value AnyValue(const planner::Parameter& parameter) {
  switch (parameter.kind) {
    case planner::Kind::Number: return 1.0;
    case planner::Kind::Flag: return true;
    case planner::Kind::Choice: return parameter.choices.front().word;
    case planner::Kind::List:
    case planner::Kind::PerGroup: break;
  }
  return planner::Numbers{1, 2};
}

/// Whether the planner says of two inputs that they exclude each other.
bool PlannerRefuses(const planner::Test& test, const planner::Parameter& one, const planner::Parameter& other) {
  try {
    planner::FindAsked(
        test, {{std::string(one.name.Text()), AnyValue(one)}, {std::string(other.name.Text()), AnyValue(other)}});
    return false;
  } catch (const planner::InputError& error) {
    // Something is still missing, or another number can be solved for.
    constexpr planner::Code incomplete[] = {planner::Code::Incomplete, planner::Code::UselessAlone,
                                            planner::Code::SolvesWithoutTarget, planner::Code::SolvedForIsGiven,
                                            planner::Code::NotSolvedFor};
    return std::find(std::begin(incomplete), std::end(incomplete), error.problem.code) == std::end(incomplete);
  }
}

TEST(Complete, NeverOffersWhatThePlannerRefusesBesideAnother) {
  int refused = 0;
  for (const planner::Test& test : planner::Tests()) {
    for (const planner::Parameter& given : test.parameters) {
      const std::string option = "--" + std::string(given.name.Text());
      Texts typed{test.name, option};
      if (given.kind != planner::Kind::Flag) typed.emplace_back("1");
      typed.emplace_back("--");
      const Texts offered = WordsAfter(typed);
      EXPECT_FALSE(IsAmong(option, offered)) << test.name << ' ' << option;
      for (const planner::Parameter& other : test.parameters) {
        const std::string name = "--" + std::string(other.name.Text());
        if (&other == &given || !PlannerRefuses(test, given, other)) continue;
        ++refused;
        EXPECT_FALSE(IsAmong(name, offered)) << test.name << ' ' << option << ' ' << name;
      }
    }
  }
  EXPECT_GT(refused, 1000);
}

TEST(Complete, OffersATargetBesideTheSizesWhileAnEffectIsLeftToFind) {
  EXPECT_TRUE(IsAmong("--power", WordsAfter({"two-means", "--n", "64", "--"})));
  EXPECT_TRUE(IsAmong("--n", WordsAfter({"two-means", "--sd", "4", "--power", "0.8", "--"})));
  const Texts complete = WordsAfter({"two-means", "--effect-d", "0.5", "--n", "64", "--power", "0.8", "--"});
  EXPECT_TRUE(IsAmong("--solve", complete)) << "--solve alpha";
  EXPECT_FALSE(IsAmong("--sd", complete));
}

TEST(Complete, OffersTheValuesOfAnOption) {
  EXPECT_EQ(WordsAfter({"pairwise", "--adjust", ""}), (Texts{"bonferroni", "sidak", "none"}));
  EXPECT_EQ(WordsAfter({"pairwise", "--adjust", "s"}), Texts{"sidak"});
  EXPECT_EQ(WordsAfter({"pairwise", "--adjust=s"}), Texts{"--adjust=sidak"});
  EXPECT_EQ(WordsAfter({"pairwise", "--adjust", "=", "s"}), Texts{"sidak"}) << "bash separates the sign";
  EXPECT_EQ(WordsAfter({"pairwise", "--adjust", "="}), (Texts{"bonferroni", "sidak", "none"}));
  EXPECT_EQ(WordsAfter({"two-means", "--format", "js"}), Texts{"json"});
  EXPECT_EQ(WordsAfter({"effect", "--format", "nd"}), Texts{});
  EXPECT_EQ(WordsAfter({"run", "--test", "pears"}), Texts{"pearson"});
  EXPECT_EQ(WordsAfter({"two-means", "--n", ""}), Texts{}) << "a number";
  EXPECT_EQ(WordsAfter({"two-means", "--n=6"}), Texts{});
  EXPECT_EQ(WordsAfter({"two-means", "--one-sided=t"}), Texts{}) << "a flag takes none";
}

TEST(Complete, AsksForFilesWhereOneIsNamed) {
  const Texts files{anyFile};
  EXPECT_EQ(WordsAfter({"run", ""}), files);
  EXPECT_EQ(WordsAfter({"run", "des"}), files);
  EXPECT_EQ(WordsAfter({"run", "designs.csv", "--output", ""}), files);
  EXPECT_EQ(WordsAfter({"two-means", "--save", "st"}), files);
  EXPECT_EQ(WordsAfter({"two-means", "--save=st"}), files);
}

TEST(Complete, OffersAxesAndTheOptionsOfAChart) {
  const planner::Test& test = *planner::FindTest("two-means");
  const Texts axes = WordsAfter({"two-means", "--chart", ""});
  EXPECT_EQ(axes.size(), planner::AllAxes(test).size());
  EXPECT_TRUE(IsAmong("n-effect-d", WordsAfter({"two-means", "--chart", "n-"}))) << "a surface";
  EXPECT_FALSE(IsAmong("--output", WordsAfter({"two-means", "--n", "20", "--"})));
  EXPECT_TRUE(IsAmong("--output", WordsAfter({"two-means", "--n", "20", "--chart", "n", "--"})));
}

TEST(Complete, KnowsOtherNamesOfAnInput) {
  EXPECT_EQ(WordsAfter({"two-means", "--group"}), Texts{"--group-sizes"});
  EXPECT_FALSE(IsAmong("--n", WordsAfter({"two-means", "--group-sizes", "20", "--"})));
}

TEST(Complete, PrintsACandidateALineWithItsMeaning) {
  const Outcome run = RunProgram({"--complete", "anova", "--e"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_NE(run.out.find("\n--explain\t"), std::string::npos) << run.out;
  for (const std::string& line : Texts{"\t", "\n"}) EXPECT_NE(run.out.substr(0, 1), line);
}

}  // namespace
