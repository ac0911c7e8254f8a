#include "words/file_of_designs.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "support.h"
#include "words/csv.h"
#include "words/row_answers.h"

namespace planner {
namespace {

std::vector<std::string> Split(std::string_view text) {
  CsvRecord record;
  record.Split(text);
  return {record.Fields().begin(), record.Fields().end()};
}

using Fields = std::vector<std::string>;

TEST(Csv, RecordsAreSplitAtCommas) {
  EXPECT_EQ(Split("a,b,c\n"), (Fields{"a", "b", "c"}));
  EXPECT_EQ(Split("a,,\r\n"), (Fields{"a", "", ""}));
  EXPECT_EQ(Split(""), (Fields{""}));
  EXPECT_EQ(Split(","), (Fields{"", ""}));
}

TEST(Csv, QuotesKeepWhatTheyEnclose) {
  EXPECT_EQ(Split("\"a,b\",\"say \"\"x\"\"\",\"two\nlines\"\r\n"), (Fields{"a,b", "say \"x\"", "two\nlines"}));
  EXPECT_EQ(Split("\"\",\"\"\"\"\n"), (Fields{"", "\""}));
  EXPECT_EQ(Split("5\" pipe,\"a\"b\n"), (Fields{"5\" pipe", "ab"}));
  EXPECT_EQ(Split("\"open,\n"), (Fields{"open,"}));
}

TEST(Csv, FieldsReadBackAsTheyWere) {
  for (const char* text : {"plain", "a,b", "say \"x\"", "two\nlines", "a\rb", "", "\"", "\"\"", ",", " blank "}) {
    EXPECT_EQ(Split(CsvField(text) + ",end\n"), (Fields{text, "end"})) << text;
  }
}

TEST(Csv, ALineFeedInQuotesEndsNoRecord) {
  EXPECT_EQ(CsvRecordEnd("a,b\nc", 0), 4U);
  EXPECT_EQ(CsvRecordEnd("a,\"b\nc\"\nd", 0), 8U);
  EXPECT_EQ(CsvRecordEnd("a,b\"\nc", 0), 5U);
  EXPECT_EQ(CsvRecordEnd("\"a\"\"\n\"\nb", 0), 7U);
  EXPECT_EQ(CsvRecordEnd("a,b", 0), std::string_view::npos);
  EXPECT_EQ(CsvRecordEnd("\"a\nb", 0), std::string_view::npos);
}

std::string Answered(const FileOfDesigns& file, std::string_view rows) {
  RowAnswers answers(file, nullptr);
  std::string text;
  EXPECT_TRUE(answers.Answer(rows, text));
  return text;
}

std::string AnsweredCsv(const std::string& text, const Test* test = nullptr, DesignFormat format = DesignFormat::Csv) {
  const std::size_t end = text.find('\n') + 1;
  const FileOfDesigns file(DesignFormat::Csv, format, ColumnsOf(text.substr(0, end)), test,
                           std::string_view(text).substr(end));
  return file.Head() + Answered(file, std::string_view(text).substr(end));
}

std::string PowerOf(const std::string& test, const InputValues& values) {
  return CsvValue(Solve(*FindTest(test), values).value);
}

const std::string power40 = PowerOf("two-means", {{"effect-d", 0.5}, {"n", Numbers{40}}});

TEST(FileOfDesigns, AnswersRowsOfOneTest) {
  EXPECT_EQ(AnsweredCsv("effect-d,n\n0.5,40\n0.5,40 40\n", FindTest("two-means")),
            "effect-d,n,total,power,note,error\n0.5,40,80," + power40 + ",,\n0.5,40 40,80," + power40 + ",,\n");
}

TEST(FileOfDesigns, AnswersRowsOfSeveralTests) {
  const std::string answers = AnsweredCsv("test,effect-d,n\ntwo-means,0.5,40\nmean,0.5,40\n");
  EXPECT_EQ(answers, "test,effect-d,n,total,power,note,error\ntwo-means,0.5,40,80," + power40 + ",,\nmean,0.5,40,," +
                         PowerOf("mean", {{"effect-d", 0.5}, {"n", 40.0}}) + ",,\n");
}

TEST(FileOfDesigns, HasFiguresOfTheTestsOfTheFirstRows) {
  const std::string head = "test,means,sd,n";
  const std::string first = "two-means,52 47,10,40\n";
  const FileOfDesigns file(DesignFormat::Csv, DesignFormat::Csv, ColumnsOf(head), nullptr, first);
  EXPECT_EQ(file.Head(), head + ",effect-d,total,power,note,error\n");
  const std::string answers = Answered(file, first + "anova,1 2 3,2,10\n" + first);
  EXPECT_NE(answers.find("\nanova,1 2 3,2,10,,30,0.4"), std::string::npos) << answers;
  EXPECT_NE(answers.find("The result \"\"effect-f\"\" has no column here"), std::string::npos) << answers;
  EXPECT_EQ(answers.find("two-means,52 47,10,40,0.5,80,"), 0U);
}

TEST(FileOfDesigns, TellsAResultApartFromAColumnOfItsName) {
  const std::string answers = AnsweredCsv("effect-d,power\n0.5,0.8\n", FindTest("two-means"));
  EXPECT_EQ(answers.substr(0, answers.find('\n')), "effect-d,power,n,total,result-power,note,error");
  EXPECT_EQ(answers.find("\n0.5,0.8,64 64,128,0.801"), answers.find('\n'));
}

TEST(FileOfDesigns, AnswersTheSameInEveryFormat) {
  const std::string row = "\"effect-d\":0.5,\"n\":[40]";
  const std::string results = ",\"total\":80,\"power\":" + power40 + "}";
  const std::string csv = "effect-d,n,one-sided\n0.5,40,\n";
  EXPECT_EQ(AnsweredCsv(csv, FindTest("two-means"), DesignFormat::Ndjson), "{" + row + results + "\n");
  EXPECT_EQ(AnsweredCsv(csv, FindTest("two-means"), DesignFormat::Json), ",\n{" + row + results);
  const FileOfDesigns lines(DesignFormat::Ndjson, DesignFormat::Ndjson, {}, FindTest("two-means"), "");
  EXPECT_EQ(Answered(lines, "  { " + row + " } \r\n\n"), "{ " + row + results + "\n");
  const std::string object = "{" + row + "}\n";
  const FileOfDesigns toCsv(DesignFormat::Ndjson, DesignFormat::Csv, FieldsOfLines(object), FindTest("two-means"),
                            object);
  EXPECT_EQ(toCsv.Head() + Answered(toCsv, object), "effect-d,n,total,power,note,error\n0.5,40,80," + power40 + ",,\n");
  EXPECT_EQ(
      Answered(toCsv, "{\"effect-d\":0.5,\"n\":40,\"one-sided\":false}\n"),
      "0.5,40,80," + power40 + ",,\"The field \"\"one-sided\"\" has no column here, since the first rows lack it.\"\n");
}

TEST(FileOfDesigns, ReadsADocumentOfJson) {
  EXPECT_EQ(LinesOfJson("[{\"n\": 1},\n {\"n\": [1, 2.5]}]"), "{\"n\":1}\n{\"n\":[1,2.5]}\n");
  EXPECT_EQ(LinesOfJson("{\"n\": 1}"), "{\"n\":1}\n");
  EXPECT_EQ(LinesOfJson("[]"), "");
  for (const std::string& text : {std::string("3"), std::string("[1,"), std::string(""), std::string("\xff"),
                                  std::string(100000, '['), std::string(100000, '[') + std::string(100000, ']')}) {
    EXPECT_THROW(LinesOfJson(text), InputError) << text.substr(0, 10);
  }
}

struct BadRow {
  const char* row;
  const char* error;
};

TEST(FileOfDesigns, SaysOfARowWhatIsWrong) {
  const std::string head = "test,effect-d,n,one-sided,power\n";
  const BadRow rows[] = {
      {"two-means,nan,40,,", "effect-d is \"nan\", but must be a number from -1000000 to 1000000."},
      {"two-means,1e999,40,,", "effect-d is \"1e999\", but must be a number from -1000000 to 1000000."},
      {"two-means,1e300,40,,", "effect-d is 1e+300, but must be a number from -1000000 to 1000000."},
      {"two-means,0.5,4x,,",
       "n is \"4x\", but must be a whole number from 2 to 1000000000, or a list of such, one for each group."},
      {"two-means,0.5,40,maybe,", "one-sided is \"maybe\", but must be true or false."},
      {"two-means,0.5,40 50 60,,", "n has 3 entries, but there are 2 groups."},
      {"two-means,0.5", "The row has 2 fields, but there are 5 columns."},
      {"two-means,0.5,40,,,,", "The row has 7 fields, but there are 5 columns."},
      {"nothing,0.5,40,,", "\"nothing\" is not a test."},
      {",0.5,40,,", "The row names no test."},
      {"two-means,0,,,0.8", "The effect size is zero: without an effect, no sample size reaches the power."},
      {"anova,0.5,40,,", "The column \"effect-d\" is not an input of anova."},
  };
  for (const auto& [row, error] : rows) {
    const std::string answers = AnsweredCsv(head + row + "\ntwo-means,0.5,40,,\n");
    const std::string line = answers.substr(answers.find('\n') + 1);
    const Fields fields = Split(line.substr(0, CsvRecordEnd(line, 0)));
    EXPECT_EQ(fields.back(), error) << row;
    EXPECT_EQ(static_cast<std::ptrdiff_t>(fields.size()),
              std::count(answers.begin(), answers.begin() + static_cast<std::ptrdiff_t>(answers.find('\n')), ',') + 1);
    EXPECT_NE(answers.find(power40), std::string::npos) << "the row after " << row;
  }
}

TEST(FileOfDesigns, SaysOfALineOfJsonWhatIsWrong) {
  const FileOfDesigns file(DesignFormat::Ndjson, DesignFormat::Ndjson, {}, FindTest("two-means"), "");
  const BadRow rows[] = {
      {"{\"effect-d\":0.5,\"n\":40", "The line is not an object of JSON that describes a design."},
      {"[1]", "The line is not an object of JSON that describes a design."},
      {"\xff\xfe", "The line is not an object of JSON that describes a design."},
      {"{\"effect-d\":\"0.5\",\"n\":40}", "effect-d is \"0.5\", but must be a number from -1000000 to 1000000."},
      {"{\"effect-d\":[0.5],\"n\":40}", "effect-d is 0.5, but must be a number from -1000000 to 1000000."},
      {"{\"effect-d\":0.5,\"n\":{\"a\":1}}",
       "n is \"{\"a\":1}\", but must be a whole number from 2 to 1000000000, or a list of such, one for each group."},
      {"{\"effect-d\":0.5,\"n\":40,\"group-sizes\":40}", "The column \"group-sizes\" is there more than once."},
      {"{\"effect-d\":0.5,\"m\":40}", "The column \"m\" is not an input of two-means."},
      {"{\"test\":\"x\"}", "\"x\" is not a test."},
  };
  for (const auto& [row, error] : rows) {
    const auto json = nlohmann::json::parse(Answered(file, row), nullptr, false);
    ASSERT_TRUE(json.is_object()) << row;
    EXPECT_EQ(json["error"], error) << row;
  }
}

std::string Refused(const std::string& line, const Test* test = nullptr) {
  try {
    FileOfDesigns(DesignFormat::Csv, DesignFormat::Csv, ColumnsOf(line), test, "");
  } catch (const InputError& error) {
    return Sentence(error.problem, [](std::string_view name) { return std::string(name); });
  }
  return "";
}

TEST(FileOfDesigns, RefusesColumnsThatAreNone) {
  EXPECT_EQ(Refused("test,n,sex\n"), "The column \"sex\" is not an input of any test.");
  EXPECT_EQ(Refused("n,groups\n", FindTest("two-means")), "The column \"groups\" is not an input of two-means.");
  EXPECT_EQ(Refused("test,n,n\n"), "The column \"n\" is there more than once.");
  EXPECT_EQ(Refused("n,group-sizes\n", FindTest("two-means")), "The column \"n\" is there more than once.");
  EXPECT_EQ(Refused("effect-d,n\n"),
            "No column \"test\" names the test of each design, and none is named for all of them.");
  EXPECT_EQ(Refused("\n"), "There is no line that names the columns.");
  EXPECT_EQ(Refused("test,n\n"), "");
}

// Whatever bytes come, each row gets its answer or its error, in as many fields as there are columns.
TEST(FileOfDesigns, BearsAnyBytes) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  const std::string letters = "\",\n\r 0123456789.-+e:[]{}\\tnwo-meas\xff\x00\xc3";
  for (int round = 0; round < 500; ++round) {
    std::string rows = "two-means,0.5,40,true\n";
    for (int i = 0; i < 300; ++i) {
      if (random() % 40 == 0) rows += "two-means,0.5,";
      rows += letters[random() % letters.size()];
    }
    const std::string head = "test,effect-d,n,one-sided\n";
    for (DesignFormat format : {DesignFormat::Csv, DesignFormat::Ndjson}) {
      const std::string answers = AnsweredCsv(head + rows, nullptr, format);
      std::size_t columns = 0;
      for (std::size_t at = 0; at < answers.size();) {
        const std::size_t end = format == DesignFormat::Csv ? CsvRecordEnd(answers, at) : answers.find('\n', at) + 1;
        ASSERT_LE(end, answers.size()) << answers;
        const std::string_view row = std::string_view(answers).substr(at, end - at);
        if (format == DesignFormat::Csv) {
          const std::size_t count = Split(row).size();
          if (columns == 0) columns = count;
          ASSERT_EQ(count, columns) << row;
        } else {
          ASSERT_TRUE(nlohmann::json::accept(row)) << row;
        }
        at = end;
      }
    }
    const FileOfDesigns lines(DesignFormat::Ndjson, DesignFormat::Csv, FieldsOfLines(rows), nullptr, rows);
    Answered(lines, rows);
    Answered(FileOfDesigns(DesignFormat::Ndjson, DesignFormat::Json, {}, nullptr, rows), rows);
  }
}

}  // namespace
}  // namespace planner
