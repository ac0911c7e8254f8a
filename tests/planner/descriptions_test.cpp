#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "solve/axes.h"
#include "solve/choose_route.h"
#include "support.h"
#include "words/expand.h"

// What every description must keep to, whichever test it describes.
namespace planner {

/// How the test framework shows a description.
void PrintTo(const Test& test, std::ostream* stream) { *stream << test.name; }

namespace {

class Descriptions : public testing::TestWithParam<Test> {};

std::string NameOf(const testing::TestParamInfo<Test>& description) {
  std::string name = description.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(, Descriptions, testing::ValuesIn(Tests()), NameOf);

std::set<std::string> Exports() {
  std::ifstream file(KELPOWER_EXPORTS);
  std::set<std::string> names;
  for (std::string line; std::getline(file, line);) names.insert(line);
  return names;
}

bool IsLowercaseWord(const std::string& text) {
  return !text.empty() && text.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos &&
         text.front() != '-';
}

TEST_P(Descriptions, HaveNameTitleAndPurpose) {
  EXPECT_TRUE(IsLowercaseWord(GetParam().name));
  EXPECT_FALSE(GetParam().title.empty());
  EXPECT_EQ(GetParam().about.back(), '.');
  EXPECT_EQ(FindTest(GetParam().name)->title, GetParam().title) << "another test has the same name";
}

TEST_P(Descriptions, NameEveryParameterOnce) {
  std::set<std::string> names{"format", "help",  "chart", "from",   "to",  "step",
                              "y",      "title", "width", "height", "dpi", "output"};
  for (const Parameter& parameter : GetParam().parameters) {
    EXPECT_TRUE(IsLowercaseWord(std::string(parameter.name.Text())));
    EXPECT_TRUE(names.emplace(parameter.name.Text()).second) << parameter.name.Text();
    for (const std::string& alias : parameter.aliases) EXPECT_TRUE(names.insert(alias).second) << alias;
    EXPECT_FALSE(parameter.label.empty()) << parameter.name.Text();
    EXPECT_FALSE(parameter.meaning.empty()) << parameter.name.Text();
  }
}

TEST_P(Descriptions, HaveDefaultsThatAreAllowed) {
  for (const Parameter& parameter : GetParam().parameters) {
    if (!parameter.fallback) continue;
    EXPECT_TRUE(parameter.Allows(*parameter.fallback)) << parameter.name.Text();
  }
}

TEST_P(Descriptions, CountTheRowsOrColumnsOfTables) {
  for (const Parameter& parameter : GetParam().parameters) {
    if (!parameter.rows && !parameter.columns) continue;
    EXPECT_NE(parameter.rows.has_value(), parameter.columns.has_value()) << parameter.name.Text();
    EXPECT_EQ(parameter.kind, Kind::List) << parameter.name.Text();
    const Parameter* count = FindParameter(GetParam(), parameter.rows ? *parameter.rows : *parameter.columns);
    ASSERT_NE(count, nullptr) << parameter.name.Text();
    EXPECT_EQ(count->kind, Kind::Number) << parameter.name.Text();
    EXPECT_TRUE(count->limits.whole) << parameter.name.Text();
  }
}

TEST_P(Descriptions, HaveRoutesOverKnownParametersAndExports) {
  const std::set<std::string> exports = Exports();
  for (const Route& route : GetParam().routes) {
    for (Name name : route.needs) EXPECT_TRUE(FindParameter(GetParam(), name)) << name.Text();
    for (Name name : route.accepts) EXPECT_TRUE(FindParameter(GetParam(), name)) << name.Text();
    EXPECT_EQ(exports.count(route.exportName), route.exportName.empty() ? 0u : 1u) << route.exportName;
    EXPECT_EQ(exports.count(route.oneSidedExport), route.oneSidedExport.empty() ? 0u : 1u) << route.oneSidedExport;
    if (!AsksForSizes(route.question)) {
      EXPECT_FALSE(route.sizes);
    } else if (!route.exportName.empty() || (GetParam().unevenness && Contains(route.needs, "exact"))) {
      EXPECT_TRUE(route.sizes);  // an even power alone tells where to look
    }
    EXPECT_NE(AsksForSizes(route.question), static_cast<bool>(route.value));
  }
}

TEST_P(Descriptions, UseEveryParameter) {
  for (const Parameter& parameter : GetParam().parameters) {
    const Names common{"power", "half-width", "interval", "alpha", "solve", "below"};
    if (Contains(common, parameter.name)) continue;
    const auto& routes = GetParam().routes;
    EXPECT_TRUE(std::any_of(routes.begin(), routes.end(), [&](const Route& route) {
      return route.Takes(parameter.name);
    })) << parameter.name.Text();
  }
}

TEST_P(Descriptions, CanCheckTheSizesTheyFind) {
  EXPECT_TRUE(Answers(GetParam(), Question::Power));
  if (Answers(GetParam(), Question::SampleSizeForHalfWidth)) {
    EXPECT_TRUE(Answers(GetParam(), Question::HalfWidth));
  }
}

TEST_P(Descriptions, AskConditionsOfKnownParameters) {
  for (const auto* conditions : {&GetParam().conditions, &GetParam().sizeExists}) {
    for (const Condition& condition : *conditions) {
      for (Name name : condition.about) EXPECT_TRUE(FindParameter(GetParam(), name)) << name.Text();
      EXPECT_TRUE(IsLowercaseWord(condition.code));
      EXPECT_EQ(condition.sentence.back(), '.');
      const auto expect = [&](std::string_view name) {
        EXPECT_TRUE(FindParameter(GetParam(), name)) << name;
        return std::string();
      };
      Expand(condition.sentence, expect, [](std::string_view) { return false; });
    }
  }
}

TEST_P(Descriptions, VaryADesignOnEveryAxis) {
  std::set<std::string> names;
  for (const Axis& axis : AllAxes(GetParam())) {
    EXPECT_TRUE(IsLowercaseWord(axis.name));
    EXPECT_TRUE(names.insert(axis.name).second) << axis.name;
    EXPECT_FALSE(axis.title.empty()) << axis.name;
    EXPECT_FALSE(axis.symbol.empty()) << axis.name;
    EXPECT_TRUE(axis.design && axis.vary) << axis.name;
    for (Name name : axis.needs) EXPECT_TRUE(FindParameter(GetParam(), name)) << name.Text();
  }
  EXPECT_TRUE(names.count("n"));
  EXPECT_TRUE(names.count("alpha"));
}

TEST_P(Descriptions, TellTheSideOfAOneSidedTest) {
  const bool hasSides = FindParameter(GetParam(), Name("one-sided")) != nullptr;
  EXPECT_EQ(GetParam().effect != nullptr, hasSides);
}

TEST_P(Descriptions, HaveASentenceForEveryQuestionTheyAnswer) {
  for (const Route& route : GetParam().routes) {
    const auto& sentences = GetParam().sentences;
    EXPECT_EQ(std::count_if(sentences.begin(), sentences.end(),
                            [&](const ReportSentence& sentence) { return sentence.question == route.question; }),
              1)
        << Wording(route.question);
  }
}

TEST_P(Descriptions, FillTheirSentencesWithKnownNames) {
  std::set<std::string> known{
      "sizes", "total", "groups", "power", "half-width", "target-power", "target-half-width", "confidence"};
  for (const Parameter& parameter : GetParam().parameters) known.emplace(parameter.name.Text());
  for (const Phrase& phrase : GetParam().phrases) known.insert(phrase.name);
  for (const Assumption& assumption : GetParam().assumptions) known.insert(assumption.name);
  const auto expect = [&](std::string_view name) {
    EXPECT_EQ(known.count(std::string(name)), 1u) << name;
    return std::string();
  };
  const auto expectFlag = [&](std::string_view name) {
    const Parameter* parameter = FindParameter(GetParam(), name);
    EXPECT_TRUE(parameter && parameter->kind == Kind::Flag) << name;
    return false;
  };
  for (const ReportSentence& sentence : GetParam().sentences) Expand(sentence.text, expect, expectFlag);
  for (const Phrase& phrase : GetParam().phrases) {
    for (const auto& [input, wording] : phrase.wordings) {
      EXPECT_TRUE(FindParameter(GetParam(), input)) << input.Text();
      Expand(wording, expect, expectFlag);
    }
  }
}

TEST_P(Descriptions, SayWhatTheyAssumeOfKnownInputs) {
  for (const Assumption& assumption : GetParam().assumptions) {
    EXPECT_TRUE(IsLowercaseWord(assumption.name));
    EXPECT_NE(assumption.wording.find("<0>"), std::string::npos) << assumption.name;
    for (Name name : assumption.needs) EXPECT_TRUE(FindParameter(GetParam(), name)) << name.Text();
  }
  EXPECT_EQ(GetParam().whenNot.rfind("Not for ", 0), 0u);
  EXPECT_TRUE(GetParam().details);
}

TEST_P(Descriptions, HaveAnExampleOfEveryQuestion) {
  for (const Route& route : GetParam().routes) {
    const std::optional<Name> asker = AskedBy(route.question);
    const auto asks = [&](const Example& example) {
      return !asker || example.arguments.find(" --" + std::string(asker->Text())) != std::string::npos;
    };
    EXPECT_TRUE(std::any_of(GetParam().examples.begin(), GetParam().examples.end(), asks)) << Wording(route.question);
  }
}

}  // namespace
}  // namespace planner
