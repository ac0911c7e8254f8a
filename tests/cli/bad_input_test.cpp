#include <gtest/gtest.h>

#include <fstream>

#include "run.h"

// Rows of bad_input.tsv: the exit status, the arguments and the sentence on the error stream, separated by tabs.
namespace {

struct Row {
  int status;
  std::string arguments;
  std::string sentence;
};

std::vector<Row> Rows() {
  std::vector<Row> rows;
  std::ifstream file(KELPOWER_SOURCE "/tests/cli/bad_input.tsv");
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t first = line.find('\t');
    const std::size_t second = line.find('\t', first + 1);
    rows.push_back(
        {std::stoi(line.substr(0, first)), line.substr(first + 1, second - first - 1), line.substr(second + 1)});
  }
  return rows;
}

TEST(BadInput, GetsOneSentenceAndItsStatus) {
  ASSERT_GE(Rows().size(), 40u);
  for (const Row& row : Rows()) {
    const Outcome run = RunProgram(Words(row.arguments));
    EXPECT_EQ(run.status, row.status) << row.arguments;
    EXPECT_EQ(run.err, "kelpower: " + row.sentence + '\n') << row.arguments;
    EXPECT_EQ(run.out, "") << row.arguments;
  }
}

TEST(BadInput, OddArgumentsAreRefusedToo) {
  const std::vector<std::vector<std::string>> odd = {
      {""},
      {" "},
      {"anova", ""},
      {"anova", "--"},
      {"anova", "-"},
      {"anova", "--="},
      {"anova", "--sd", ""},
      {"anova", "--sd="},
      {"anova", "--means", "\xff\xfe"},
      {"anova", "--means", "1,2", "--sd", "1", "--n", std::string(100000, '9')},
      {"anova", std::string(100000, '-')},
      {"anova", "--" + std::string(100000, 'x')},
      {"anova", "--format", "xml"},
      {"anova", "@file"},
      {"{}", "{0}"},
      {"anova", "--{}", "%n%s"},
  };
  for (const auto& arguments : odd) {
    const Outcome run = RunProgram(arguments);
    EXPECT_EQ(run.status, 2) << testing::PrintToString(arguments).substr(0, 100);
    EXPECT_EQ(run.err.rfind("kelpower: ", 0), 0u);
    EXPECT_EQ(run.out, "");
  }
}

}  // namespace
