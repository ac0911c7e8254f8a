#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>

#include "catalogue/catalogue.h"
#include "run.h"

// Tables of alternatives and files of designs, as the program answers them.
namespace {

/// A folder that is gone with the test.
class Designs : public testing::Test {
protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("kelpower-designs-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  std::string Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
  }

  static std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::filesystem::path folder_;
};

std::string ManyRows(int count) {
  std::ostringstream rows;
  rows << "test,effect-d,n,power\n";
  for (int i = 0; i < count; ++i) {
    if (i % 3 == 0) rows << "two-means,0." << 2 + i % 7 << ',' << 10 + i % 90 << ",\n";
    if (i % 3 == 1) rows << "mean,0." << 2 + i % 7 << ",,0." << 5 + i % 4 << "\n";
    if (i % 3 == 2) rows << "\"mean\",0." << 2 + i % 7 << ",\"two\nlines\",\r\n";
  }
  return rows.str();
}

TEST_F(Designs, AreAnsweredTheSameByAnyNumberOfThreads) {
  const std::string file = Write("many.csv", ManyRows(20000));
  const Outcome one = RunProgram({"run", file, "--jobs", "1"});
  EXPECT_EQ(one.status, 0);
  EXPECT_EQ(RunProgram({"run", file, "--jobs", "2"}).out, one.out);
  EXPECT_EQ(RunProgram({"run", file, "--jobs", "7"}).out, one.out);
  EXPECT_EQ(RunProgram({"run", file, "--output", Path("answers.csv")}).out, "");
  EXPECT_EQ(Read(Path("answers.csv")), one.out);
  // A third of the rows have a field of two lines; one line names the columns.
  EXPECT_EQ(std::count(one.out.begin(), one.out.end(), '\n'), 20000 + 6666 + 1);
}

TEST_F(Designs, AreAnsweredAsSingleQuestionsAre) {
  const std::string file = Write("one.csv", "effect-d,power\n0.5,0.8\n");
  const Outcome run = RunProgram({"run", file, "--test", "two-means", "--format", "json"});
  const auto rows = nlohmann::json::parse(run.out);
  const auto single =
      nlohmann::json::parse(RunProgram(Words("two-means --effect-d 0.5 --power 0.8 --format json")).out);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0]["n"], single["results"]["n"]);
  EXPECT_EQ(rows[0]["total"], single["results"]["total"]);
}

TEST_F(Designs, BearOddFiles) {
  const std::string design = "effect-d,n\r\n0.5,40";
  const std::string plain = RunProgram({"run", Write("a.csv", design), "--test", "two-means"}).out;
  EXPECT_NE(plain.find("\n0.5,40,80,0.59"), std::string::npos) << plain;
  const auto out = [&](const std::string& content) {
    return RunProgram({"run", Write("b.csv", content), "--test", "two-means"}).out;
  };
  EXPECT_EQ(out("\xEF\xBB\xBF" + design + "\n"), plain) << "a byte-order mark";
  EXPECT_EQ(out("\"effect-d\",n\n\n0.5,40\n\r\n\n"), plain) << "quotes and empty lines";
  EXPECT_EQ(out("effect-d , n\n 0.5, 40 \n").find(" 0.5, 40 ,80,0.59"),
            out("effect-d , n\n 0.5, 40 \n").find('\n') + 1);
  EXPECT_EQ(out("effect-d,n\n"), "effect-d,n,total,power,note,error\n");
}

TEST_F(Designs, RefuseFilesThatAreNone) {
  const auto refused = [&](const std::string& name, const std::string& content) {
    const Outcome run = RunProgram({"run", Write(name, content)});
    EXPECT_EQ(run.status, 2) << content.substr(0, 50);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err.substr(0, 200);
    return run.err;
  };
  EXPECT_EQ(refused("a.csv", ""), "kelpower: There is no line that names the columns.\n");
  EXPECT_EQ(refused("a.csv", "test,sex\n"), "kelpower: The column \"sex\" is not an input of any test.\n");
  EXPECT_EQ(refused("a.json", "{"), "kelpower: This is not JSON of one design or an array of designs.\n");
  refused("a.csv", std::string(100, '\0'));
  refused("a.json", std::string(1000000, '['));
}

TEST_F(Designs, EndAtARowThatIsNone) {
  const std::string open = "test,effect-d,n\nmean,0.5,20\nmean,\"" + std::string(3000000, 'x');
  const Outcome run = RunProgram({"run", Write("a.csv", open)});
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("is a quote missing?"), std::string::npos) << run.err;
  EXPECT_EQ(run.out.rfind("test,effect-d,n,total,power,note,error\nmean,0.5,20,,0.56", 0), 0U) << run.out;
}

TEST_F(Designs, DoNotOverwriteTheirOwnFile) {
  const std::string file = Write("a.csv", "test,n\n");
  EXPECT_EQ(RunProgram({"run", file, "--output", file}).status, 2);
  EXPECT_EQ(Read(file), "test,n\n");
  EXPECT_EQ(RunProgram({"run", file, "--output", Path("no/folder.csv")}).status, 1);
}

TEST_F(Designs, KeptAreAnsweredAgain) {
  for (const planner::Test& test : planner::Tests()) {
    for (const planner::Example& example : test.examples) {
      std::vector<std::string> arguments = Words(example.arguments);
      const std::string file = Path("kept.json");
      arguments.insert(arguments.end(), {"--format", "json", "--save", file});
      const Outcome single = RunProgram(arguments);
      ASSERT_EQ(single.status, 0) << example.arguments;
      const auto results = nlohmann::json::parse(single.out)["results"];
      const Outcome run = RunProgram({"run", file});
      ASSERT_EQ(run.status, 0) << example.arguments;
      const auto rows = nlohmann::json::parse(run.out);
      ASSERT_EQ(rows.size(), 1U);
      EXPECT_FALSE(rows[0].contains("error")) << rows[0];
      for (const auto& [name, value] : results.items()) {
        EXPECT_EQ(rows[0].contains("result-" + name) ? rows[0]["result-" + name] : rows[0][name], value)
            << example.arguments << ": " << name;
      }
    }
  }
}

TEST_F(Designs, OfATableAreKeptToo) {
  const std::string file = Path("kept.json");
  const Outcome table = RunProgram({"two-means", "--effect-d", "0.2,0.5", "--n", "20:40:20", "--save", file});
  EXPECT_EQ(table.status, 0);
  const auto rows = nlohmann::json::parse(RunProgram({"run", file}).out);
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[3]["effect-d"], 0.5);
  EXPECT_EQ(rows[3]["n"], nlohmann::json::array({40}));
}

TEST(Table, IsTheSameForAnyNumberOfThreads) {
  std::vector<std::string> arguments = Words("two-means --effect-d 0.1:0.9:0.1 --n 10:300:1 --format csv --jobs 1");
  const Outcome one = RunProgram(arguments);
  EXPECT_EQ(one.status, 0);
  EXPECT_EQ(std::count(one.out.begin(), one.out.end(), '\n'), 9 * 291 + 1);
  arguments.back() = "3";
  EXPECT_EQ(RunProgram(arguments).out, one.out);
}

TEST(Table, IsJsonInBothForms) {
  const auto rows =
      nlohmann::json::parse(RunProgram(Words("proportion --proportion 0.6,0.7 --null 0.5 --n 40 --format json")).out);
  ASSERT_EQ(rows.size(), 2U);
  const std::string lines = RunProgram(Words("proportion --proportion 0.6,0.7 --null 0.5 --n 40 --format ndjson")).out;
  EXPECT_EQ(nlohmann::json::parse(lines.substr(0, lines.find('\n'))), rows[0]);
  const std::string single = RunProgram(Words("proportion --proportion 0.6 --null 0.5 --n 40 --format ndjson")).out;
  EXPECT_EQ(nlohmann::json::parse(single), rows[0]);
}

TEST(Table, HasWordsAsAlternatives) {
  const Outcome run = RunProgram(Words(
      "proportion --proportion 0.3 --n 50 --interval --interval-method wald --interval-method wilson --format csv"));
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find(",wald,"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find(",wilson,"), std::string::npos) << run.out;
}

}  // namespace
