#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "support.h"
#include "words/expand.h"
#include "words/explain.h"

// What is said to be behind an answer is what it was computed from.
namespace planner {
namespace {

/// The examples, and those of them that ask for a test with each flag set that goes with them.
std::vector<InputValues> Designs(const Test& test) {
  std::vector<InputValues> designs;
  for (const Example& example : test.examples) {
    const InputValues plain = ValuesTyped(test, example.arguments);
    designs.push_back(plain);
    for (const Parameter& parameter : test.parameters) {
      const bool isAFlag = parameter.kind == Kind::Flag && parameter.name != Name("interval");
      if (!isAFlag && parameter.kind != Kind::Choice) continue;
      InputValues changed = plain;
      if (isAFlag) {
        changed[std::string(parameter.name.Text())] = true;
        designs.push_back(changed);
      }
      for (const Choice& choice : parameter.choices) {
        changed[std::string(parameter.name.Text())] = choice.word;
        designs.push_back(changed);
      }
    }
  }
  return designs;
}

template <typename Check>
void ForEachAnswer(Check check) {
  int answered = 0;
  for (const Test& test : Tests()) {
    for (const InputValues& values : Designs(test)) {
      std::optional<Answer> answer;
      try {
        answer = Solve(test, values);
      } catch (const Failure&) {
        continue;  // the flag does not go with the example
      }
      check(*answer);
      ++answered;
    }
  }
  EXPECT_GT(answered, 150);
}

TEST(Details, GiveTheValueOnceMoreToTheLastDigit) {
  ForEachAnswer([](const Answer& answer) {
    EXPECT_EQ(DetailsOf(answer).value, answer.value) << answer.test->name << ' ' << answer.route->exportName;
  });
}

TEST(Details, SayFormulaAndSource) {
  ForEachAnswer([](const Answer& answer) {
    const Explanation explanation = Explain(answer);
    EXPECT_FALSE(explanation.figures.empty()) << answer.test->name;
    EXPECT_FALSE(explanation.formula.empty()) << answer.test->name;
    EXPECT_FALSE(explanation.source.empty()) << answer.test->name;
    for (const ProgramCall& program : explanation.programs) {
      EXPECT_TRUE(program.isSame || !program.remark.empty()) << program.call << " differs without a reason";
    }
  });
}

TEST(Details, FillEveryBrace) {
  const std::set<std::string> known{"n-or-power",
                                    "n-or-dot",
                                    "power-or-dot",
                                    "gpower-n",
                                    "answer",
                                    "tails",
                                    "sides",
                                    "alternative",
                                    "r-alternative",
                                    "r-direction",
                                    "r-proportion-direction",
                                    "r-groups-direction",
                                    "n1",
                                    "n2",
                                    "total",
                                    "groups",
                                    "sd1"};
  ForEachAnswer([&](const Answer& answer) {
    const Details details = DetailsOf(answer);
    const auto expect = [&](std::string_view name) {
      bool isKnown = known.count(std::string(name)) == 1;
      for (const DetailFigure& figure : details.figures) isKnown = isKnown || figure.name == name;
      std::string_view input = name;
      if (input.back() == '|' || input.back() == '_') input.remove_suffix(1);
      const Parameter* parameter = FindParameter(*answer.test, input);
      isKnown = isKnown || (parameter && (answer.inputs.Has(parameter->name) || parameter->name == Name("n")));
      EXPECT_TRUE(isKnown) << answer.test->name << " names " << name;
      return std::string();
    };
    Expand(details.formula, expect, [](std::string_view) { return false; });
    for (const Equivalent& program : details.equivalents) {
      Expand(program.call, expect, [](std::string_view) { return false; });
    }
  });
}

/// The figure of that name.
double FigureOf(const Details& details, const std::string& name) {
  for (const DetailFigure& figure : details.figures) {
    if (figure.name == name) return figure.value;
  }
  ADD_FAILURE() << name;
  return 0;
}

TEST(Details, AreThoseOfTables) {
  // Student's t of 38 degrees of freedom and F of 2 and 57: R 4.2, qt(.975, 38), qf(.95, 2, 57).
  const planner::Test& mean = *FindTest("two-means");
  const Details t = DetailsOf(Solve(mean, {{"effect-d", 0.5}, {"n", Numbers{20}}}));
  EXPECT_EQ(FigureOf(t, "df"), 38);
  EXPECT_NEAR(FigureOf(t, "critical-t"), 2.024394164, 1e-9);
  EXPECT_NEAR(FigureOf(t, "noncentrality"), 0.5 * std::sqrt(10.0), 1e-14);
  const Details f = DetailsOf(Solve(*FindTest("anova"), {{"effect-f", 0.25}, {"n", Numbers{20}}, {"groups", 3.0}}));
  EXPECT_EQ(FigureOf(f, "df1"), 2);
  EXPECT_EQ(FigureOf(f, "df2"), 57);
  EXPECT_NEAR(FigureOf(f, "critical-f"), 3.158842719, 1e-9);
  EXPECT_NEAR(FigureOf(f, "noncentrality"), 3.75, 1e-14);
}

TEST(Details, OfSizesFoundAskForTheSizes) {
  const Explanation explanation = Explain(Solve(*FindTest("two-means"), {{"effect-d", 0.5}, {"power", 0.8}}));
  EXPECT_EQ(explanation.programs.front().call,
            "pwr.t.test(power = 0.8, d = 0.5, sig.level = 0.05, type = \"two.sample\", alternative = "
            "\"two.sided\")$n");
}

}  // namespace
}  // namespace planner
