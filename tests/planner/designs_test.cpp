#include "solve/designs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <string>

#include "solve/design_solver.h"
#include "support.h"
#include "words/csv.h"
#include "words/parse.h"
#include "words/table_of_designs.h"

namespace planner {
namespace {

Numbers NumbersOf(const std::vector<Value>& values) {
  Numbers numbers;
  for (const Value& value : values) {
    const auto* list = std::get_if<Numbers>(&value);
    numbers.push_back(list ? list->front() : std::get<double>(value));
  }
  return numbers;
}

const Parameter& ParameterOf(const std::string& test, const std::string& name) {
  return *FindParameter(*FindTest(test), std::string_view(name));
}

Numbers Parsed(const std::string& test, const std::string& name, const std::string& text) {
  return NumbersOf(ParseAlternatives(ParameterOf(test, name), text));
}

/// The values of a worked example, without the name of the test.
InputValues ValuesOf(const Test& test, const Example& example) {
  std::istringstream words(example.arguments);
  std::vector<std::string> all;
  for (std::string word; words >> word;) all.push_back(word);
  InputValues values;
  for (std::size_t i = 1; i < all.size(); ++i) {
    const Parameter& parameter = *FindParameter(test, std::string_view(all[i]).substr(2));
    const std::string name(parameter.name.Text());
    values[name] = parameter.kind == Kind::Flag ? Value(true) : Parse(parameter, all[++i]);
  }
  return values;
}

DesignRow RowOf(const Test& test, const InputValues& values) {
  DesignRow row;
  row.Start(test);
  for (const auto& [name, value] : values) row.Add(*FindParameter(test, std::string_view(name)), value);
  return row;
}

TEST(Alternatives, OfANumberAreListsAndRanges) {
  EXPECT_EQ(Parsed("mean", "effect-d", "0.5"), (Numbers{0.5}));
  EXPECT_EQ(Parsed("mean", "effect-d", "0.2,0.5,0.8"), (Numbers{0.2, 0.5, 0.8}));
  EXPECT_EQ(Parsed("mean", "n", "20:100:20"), (Numbers{20, 40, 60, 80, 100}));
  EXPECT_EQ(Parsed("mean", "n", "20:99:20"), (Numbers{20, 40, 60, 80}));
  EXPECT_EQ(Parsed("mean", "n", "100:20:-40"), (Numbers{100, 60, 20}));
  EXPECT_EQ(Parsed("mean", "n", "10,20:40:10"), (Numbers{10, 20, 30, 40}));
  EXPECT_EQ(Parsed("mean", "n", "20:20:5"), (Numbers{20}));
}

TEST(Alternatives, OfARangeHoldItsEndsAndAreNotFrayed) {
  EXPECT_EQ(Parsed("mean", "effect-d", "0.1:0.9:0.1"), (Numbers{0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9}));
  EXPECT_EQ(Parsed("mean", "effect-d", "-0.3:0.3:0.3"), (Numbers{-0.3, 0, 0.3}));
  EXPECT_EQ(Parsed("mean", "alpha", "0.01:0.05:0.02"), (Numbers{0.01, 0.03, 0.05}));
}

TEST(Alternatives, OfNumbersPerGroupAreRangesAlone) {
  EXPECT_EQ(ParseAlternatives(ParameterOf("two-means", "n"), "40,60"), (std::vector<Value>{Numbers{40, 60}}));
  EXPECT_EQ(ParseAlternatives(ParameterOf("two-means", "n"), "40:60:10"),
            (std::vector<Value>{Numbers{40}, Numbers{50}, Numbers{60}}));
  EXPECT_EQ(ParseAlternatives(ParameterOf("two-means", "means"), "1,2"), (std::vector<Value>{Numbers{1, 2}}));
  EXPECT_THROW(ParseAlternatives(ParameterOf("two-means", "means"), "1:2:1"), InputError);
}

TEST(Designs, AreAllCombinationsTheLastVaryingFastest) {
  const planner::Test& test = *FindTest("mean");
  const Designs designs(test, {{&ParameterOf("mean", "effect-d"), {0.2, 0.5}},
                               {&ParameterOf("mean", "alpha"), {0.05}},
                               {&ParameterOf("mean", "n"), {20.0, 40.0, 60.0}}});
  ASSERT_EQ(designs.Count(), 6U);
  Numbers order;
  for (std::size_t i = 0; i < designs.Count(); ++i) {
    order.push_back(std::get<double>(designs.ValueOf(0, i)) * 1000 + std::get<double>(designs.ValueOf(2, i)));
  }
  EXPECT_EQ(order, (Numbers{220, 240, 260, 520, 540, 560}));
}

TEST(Designs, AreAMillionAtMost) {
  std::vector<Value> thousand(1000, Value(0.5));
  std::vector<Value> more(1001, Value(20.0));
  const Parameter& d = ParameterOf("mean", "effect-d");
  const Parameter& n = ParameterOf("mean", "n");
  EXPECT_EQ(Designs(*FindTest("mean"), {{&d, thousand}, {&n, thousand}}).Count(), 1000000U);
  EXPECT_THROW(Designs(*FindTest("mean"), {{&d, thousand}, {&n, more}}), InputError);
}

/// Checks that a row has the results of the whole question, with the same names.
void CheckRow(DesignSolver& solver, const planner::Test& test, const InputValues& values) {
  const DesignAnswer& answer = solver.Solve(RowOf(test, values));
  ASSERT_TRUE(answer.IsAnswered());
  const Report report = Solved(test, values);
  std::size_t entry = 0;
  for (std::size_t i = 0; i < answer.columns->size(); ++i) {
    const ResultColumn& column = (*answer.columns)[i];
    const bool isSizes = column.reading == Reading::Sizes;
    if (!isSizes && std::isnan(answer.values[i])) continue;
    ASSERT_LT(entry, report.results.size());
    const Entry& said = report.results[entry++];
    EXPECT_EQ(column.name, said.name);
    EXPECT_EQ(column.label, said.label);
    EXPECT_EQ(isSizes ? Value(answer.SizesOf(column)) : Value(answer.values[i]), said.value) << column.name;
  }
  EXPECT_EQ(entry, report.results.size());
}

// Row after row, by the same solver, the answers are those of the whole question.
TEST(DesignSolver, AnswersEveryExampleAsTheQuestionItself) {
  DesignSolver solver;
  for (int round = 0; round < 2; ++round) {
    for (const planner::Test& test : Tests()) {
      for (const Example& example : test.examples) {
        SCOPED_TRACE(example.arguments);
        CheckRow(solver, test, ValuesOf(test, example));
      }
    }
  }
}

TEST(DesignSolver, TellsWhatAStudyPlansForAsTheQuestionItself) {
  DesignSolver solver;
  for (const std::string arguments :
       {"two-means --effect-d 0.5 --power 0.8 --dropout 0.15 --cluster-size 20 --icc 0.05",
        "two-means --effect-d 0.5 --power 0.8 --comparisons 3 --dropout 0.2",
        "two-proportions --proportions 0.3,0.5 --n 60 --cluster-size 10 --icc 0.02 --cluster-cv 0.4",
        "mean --sd 10 --half-width 2 --population 500", "mean --sd 10 --half-width 2 --assurance 0.9",
        "proportion --proportion 0.3 --half-width 0.1 --assurance 0.9 --dropout 0.1",
        "mean --effect-d 0.4 --effect-sd 0.1 --power 0.8"}) {
    SCOPED_TRACE(arguments);
    const planner::Test& test = *FindTest(arguments.substr(0, arguments.find(' ')));
    CheckRow(solver, test, ValuesTyped(test, arguments));
  }
}

TEST(DesignSolver, SpreadsANumberAnewInEachRow) {
  const planner::Test& test = *FindTest("two-means");
  DesignSolver solver;
  const auto power = [&](double sd, double n) {
    const InputValues values{{"means", Numbers{52, 47}}, {"sd", Numbers{sd}}, {"n", Numbers{n}}};
    const double row = solver.Solve(RowOf(test, values)).values.back();
    EXPECT_EQ(row, Solve(test, values).value);
    return row;
  };
  EXPECT_LT(power(10, 20), power(10, 40));
  EXPECT_GT(power(8, 40), power(12, 40));
}

TEST(DesignSolver, CountsTheGroupsAnewInEachRow) {
  const planner::Test& test = *FindTest("anova");
  DesignSolver solver;
  for (double groups : {3.0, 4.0, 3.0, 5.0}) {
    const InputValues values{{"effect-f", 0.25}, {"n", Numbers{20}}, {"groups", groups}};
    EXPECT_EQ(solver.Solve(RowOf(test, values)).values.back(), Solve(test, values).value);
  }
}

TEST(DesignSolver, SaysWhatIsWrongAndGoesOn) {
  const planner::Test& test = *FindTest("two-means");
  DesignSolver solver;
  const auto code = [&](const InputValues& values) {
    const DesignAnswer& answer = solver.Solve(RowOf(test, values));
    return answer.IsAnswered() ? Code{} : answer.problem->code;
  };
  const InputValues good{{"effect-d", 0.5}, {"n", Numbers{20}}};
  EXPECT_EQ(code(good), Code{});
  EXPECT_EQ(code({{"effect-d", 0.5}, {"n", Numbers{20.5}}}), Code::NotAllowed);
  EXPECT_EQ(code({{"effect-d", 0.5}, {"n", Numbers{}}}), Code::NotAllowed);
  EXPECT_EQ(code({{"effect-d", 0.5}}), Code::Incomplete);
  EXPECT_EQ(code({{"effect-d", 0.0}, {"power", 0.8}}), Code::NoEffect);
  EXPECT_EQ(code(good), Code{});
}

// A file may have a shape a row; the solver forgets old ones.
TEST(DesignSolver, BearsAnyNumberOfShapes) {
  const planner::Test& test = *FindTest("anova");
  DesignSolver solver;
  for (double groups = 2; groups < 600; ++groups) {
    const InputValues values{{"effect-f", 0.25}, {"n", Numbers{20}}, {"groups", groups}};
    EXPECT_TRUE(solver.Solve(RowOf(test, values)).IsAnswered());
  }
}

class StopsAtOnce : public StopRequest {
public:
  bool ShouldStop() override { return true; }
};

TEST(DesignSolver, IsStopped) {
  StopsAtOnce stop;
  DesignSolver solver(&stop);
  const DesignAnswer& answer = solver.Solve(RowOf(*FindTest("mean"), {{"effect-d", 0.5}, {"n", 20.0}}));
  ASSERT_FALSE(answer.IsAnswered());
  EXPECT_EQ(answer.problem->code, Code::Stopped);
}

std::string TableIn(TableFormat format, const Designs& designs) {
  const TableOfDesigns table(designs, format, [](std::string_view name) { return "--" + std::string(name); });
  TableOfDesigns::Rows rows(table, nullptr);
  std::string text;
  EXPECT_TRUE(rows.Append(0, 1, text));
  EXPECT_TRUE(rows.Append(1, designs.Count() - 1, text));
  const bool isRead = format == TableFormat::Text || format == TableFormat::Markdown;
  return isRead ? table.Read(text, {}) : table.Head() + text;
}

TEST(TableOfDesigns, HasANoteWhereThereIsNoAnswer) {
  const Designs designs(*FindTest("mean"),
                        {{&ParameterOf("mean", "effect-d"), {0.5, 0.0}}, {&ParameterOf("mean", "power"), {0.8}}});
  const std::string csv = TableIn(TableFormat::Csv, designs);
  EXPECT_NE(csv.find("\nmean,0,no,0.8,"), std::string::npos) << csv;
  EXPECT_NE(csv.find(",,,\"The effect size is zero"), std::string::npos) << csv;
  EXPECT_NE(TableIn(TableFormat::Text, designs).find("  note\n"), std::string::npos);
  const std::string json = TableIn(TableFormat::Ndjson, designs);
  EXPECT_NE(json.find("\"note\":\"The effect size is zero"), std::string::npos) << json;
}

TEST(TableOfDesigns, HasNoColumnOfNotesWithoutOne) {
  const Designs designs(*FindTest("mean"),
                        {{&ParameterOf("mean", "effect-d"), {0.5, 0.6}}, {&ParameterOf("mean", "n"), {20.0}}});
  EXPECT_EQ(TableIn(TableFormat::Text, designs),
            "One-sample t test of a mean\n\n"
            "  effect size d   power\n"
            "            0.5  0.5645\n"
            "            0.6  0.7210\n\n"
            "Held fixed: sample size 20; significance level 0.05.\n");
}

using FieldsByColumn = std::map<std::string, std::string>;

/// The rows of a table, without empty fields.
std::vector<FieldsByColumn> RowsOf(const std::string& csv) {
  CsvRecord heads;
  CsvRecord record;
  heads.Split(std::string_view(csv).substr(0, csv.find('\n')));
  std::vector<FieldsByColumn> rows;
  for (std::size_t from = csv.find('\n') + 1; from < csv.size();) {
    const std::size_t end = CsvRecordEnd(csv, from);
    record.Split(std::string_view(csv).substr(from, end - from));
    EXPECT_EQ(record.Count(), heads.Count()) << csv;
    FieldsByColumn& row = rows.emplace_back();
    for (std::size_t i = 0; i < std::min(heads.Count(), record.Count()); ++i) {
      if (!record.Fields()[i].empty()) row[std::string(heads.Fields()[i])] = record.Fields()[i];
    }
    from = end;
  }
  return rows;
}

/// The values that the flag or the choice can have.
std::vector<Value> WordsOf(const Parameter& parameter) {
  if (parameter.kind == Kind::Flag) return {false, true};
  std::vector<Value> words;
  for (const Choice& choice : parameter.choices) words.emplace_back(choice.word);
  return words;
}

Designs DesignsWith(const planner::Test& test, InputValues values, const Parameter& varied, std::vector<Value> words) {
  values.erase(std::string(varied.name.Text()));
  std::vector<Alternatives> inputs;
  for (const auto& [name, value] : values) inputs.push_back({FindParameter(test, std::string_view(name)), {value}});
  inputs.push_back({&varied, std::move(words)});
  return {test, std::move(inputs)};
}

/// The table of one design, or no row where it cannot be asked.
FieldsByColumn Alone(const Designs& design) {
  try {
    return RowsOf(TableIn(TableFormat::Csv, design)).front();
  } catch (const InputError&) {
    return {};
  }
}

/// Holds each row of the table of all words against the design alone. Gives how many could be asked.
std::ptrdiff_t CompareWithAlone(const planner::Test& test, const InputValues& values, const Parameter& varied) {
  const std::vector<Value> words = WordsOf(varied);
  std::vector<FieldsByColumn> alone;
  for (const Value& word : words) alone.push_back(Alone(DesignsWith(test, values, varied, {word})));
  const std::ptrdiff_t asked = std::ssize(alone) - std::count(alone.begin(), alone.end(), FieldsByColumn());
  if (asked == 0) return 0;
  std::vector<FieldsByColumn> rows = RowsOf(TableIn(TableFormat::Csv, DesignsWith(test, values, varied, words)));
  EXPECT_EQ(rows.size(), alone.size());
  for (std::size_t i = 0; i < std::min(rows.size(), alone.size()); ++i) {
    for (const auto& [column, field] : alone[i]) {
      EXPECT_EQ(rows[i][column], field) << test.name << ' ' << varied.name.Text() << ' ' << column;
    }
  }
  return asked;
}

// An exact test has inputs and results that an approximate one lacks.
TEST(TableOfDesigns, HasEachResultInItsColumnWhateverTheWords) {
  std::ptrdiff_t compared = 0;
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      for (const Parameter& parameter : test.parameters) {
        const bool isOfWords = parameter.kind == Kind::Flag || parameter.kind == Kind::Choice;
        if (isOfWords) compared += CompareWithAlone(test, ValuesOf(test, example), parameter);
      }
    }
  }
  EXPECT_GT(compared, 500);
}

TEST(TableOfDesigns, HasTheColumnsOfAllDesignsInTheOrderOfAReport) {
  for (const std::vector<Value>& methods :
       {std::vector<Value>{"z", "conditional"}, std::vector<Value>{"conditional", "z"}}) {
    const Designs designs(*FindTest("two-proportions"),
                          {{&ParameterOf("two-proportions", "proportions"), {Numbers{0.3, 0.5}}},
                           {&ParameterOf("two-proportions", "method"), methods},
                           {&ParameterOf("two-proportions", "power"), {0.8}}});
    const std::string csv = TableIn(TableFormat::Csv, designs);
    EXPECT_NE(csv.find(",n,total,lasting-n,attained-level,power,note\n"), std::string::npos) << csv;
    for (FieldsByColumn& row : RowsOf(csv)) {
      const bool isExact = row["method"] == "conditional";
      EXPECT_EQ(row["n"], isExact ? "102 102" : "93 93");
      EXPECT_EQ(row["lasting-n"], isExact ? "102 102" : "");
      EXPECT_EQ(row["attained-level"].substr(0, 6), isExact ? "0.0380" : "");
    }
  }
}

TEST(TableOfDesigns, ListsAnInputThatOnlySomeDesignsTake) {
  const Designs designs(*FindTest("proportion"), {{&ParameterOf("proportion", "proportion"), {0.6}},
                                                  {&ParameterOf("proportion", "null"), {0.5}},
                                                  {&ParameterOf("proportion", "n"), {100.0}},
                                                  {&ParameterOf("proportion", "exact"), {false, true}}});
  std::vector<FieldsByColumn> rows = RowsOf(TableIn(TableFormat::Csv, designs));
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0]["exact"], "no");
  EXPECT_EQ(rows[0].count("rejects-from"), 0u);
  EXPECT_EQ(rows[1]["exact"], "yes");
  EXPECT_EQ(rows[1].count("rejects-from"), 1u);
}

TEST(TableOfDesigns, IsRefusedWhereNothingCanBeAsked) {
  const Designs designs(*FindTest("mean"), {{&ParameterOf("mean", "n"), {20.0, 30.0}}});
  EXPECT_THROW(TableIn(TableFormat::Csv, designs), InputError);
}

}  // namespace
}  // namespace planner
