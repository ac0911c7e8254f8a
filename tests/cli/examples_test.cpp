#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <regex>
#include <sstream>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "run.h"

// Every example that the help and the documents show is run, and must give what they say.
namespace {

struct ShownRun {
  std::string where;
  std::string command;
  std::string output;
};

/// The runs shown in a document: in a block that starts with ```console, a line "$ kelpower ..." and what follows it up
/// to the next such line or the end of the block.
std::vector<ShownRun> ShownRuns(const std::filesystem::path& document) {
  const std::string prompt = "$ kelpower";
  std::vector<ShownRun> runs;
  std::ifstream file(document);
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("```", 0) == 0) {
      inside = line == "```console";
    } else if (inside && line.rfind(prompt, 0) == 0) {
      runs.push_back({document.filename().string(), line.substr(prompt.size()), ""});
    } else if (inside && !runs.empty()) {
      runs.back().output += line + '\n';
    }
  }
  return runs;
}

std::vector<std::filesystem::path> Documents() {
  const std::filesystem::path source = KELPOWER_SOURCE;
  std::vector<std::filesystem::path> documents{source / "README.md", source / "planner" / "README.md"};
  for (const auto& folder : {source / "docs", source / "tests" / "cli" / "golden"}) {
    if (!std::filesystem::is_directory(folder)) continue;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() == ".md") documents.push_back(entry.path());
    }
  }
  return documents;
}

/// Blank lines at the end are not compared, so that a document may separate its runs by them.
std::string WithoutTrailingBlanks(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

/// The text with every number of many digits cut to twelve, since the last digits of a result may change with the
/// accuracy of the distribution functions. The planner's tests compare results with the library to the last digit.
std::string WithTwelveDigits(const std::string& text) {
  static const std::regex longNumber(R"((\d+\.\d{11,})(e[+-]?\d+)?)");
  std::string cut;
  auto done = text.begin();
  for (std::sregex_iterator match(text.begin(), text.end(), longNumber), end; match != end; ++match) {
    std::ostringstream number;
    number << std::setprecision(12) << std::stod(match->str());
    cut.append(done, (*match)[0].first);
    cut += number.str();
    done = (*match)[0].second;
  }
  return cut.append(done, text.end());
}

void ExpectSentences(const planner::Test& test) {
  for (const planner::Example& example : test.examples) {
    const Outcome run = RunProgram(Words(example.arguments));
    EXPECT_EQ(run.status, 0) << example.arguments << '\n' << run.err;
    EXPECT_NE(run.out.find("\n\n" + example.sentence + '\n'), std::string::npos) << example.arguments << '\n'
                                                                                 << run.out;
  }
}

TEST(Examples, OfTheHelpGiveTheirSentence) {
  for (const planner::Test& test : planner::Tests()) ExpectSentences(test);
  ExpectSentences(planner::EffectSizes().inputs);
}

// What a conversion says that a test takes, the test takes.
TEST(Examples, OfEffectSizesLeadToATest) {
  int count = 0;
  for (const planner::Example& example : planner::EffectSizes().inputs.examples) {
    const std::string text = RunProgram(Words(example.arguments)).out;
    const std::size_t use = text.find("  use it as");
    if (use == std::string::npos) continue;
    const std::size_t begin = text.find_first_not_of(' ', use + 11);
    const std::string told = text.substr(begin, std::min(text.find('\n', begin), text.find(" or ", begin)) - begin);
    const Outcome run = RunProgram(Words(told + " --n 20"));
    const bool lacksMore = run.err.find("Also give --") != std::string::npos || run.err.ends_with("give --groups.\n");
    const bool isTaken = run.status == 0 || lacksMore;
    EXPECT_TRUE(isTaken) << told << '\n' << run.err;
    ++count;
  }
  EXPECT_GE(count, 8);
}

TEST(Examples, OfTheDocumentsGiveTheirOutput) {
  int count = 0;
  std::filesystem::current_path(KELPOWER_SOURCE);  // documents name files from there
  for (const auto& document : Documents()) {
    for (const ShownRun& shown : ShownRuns(document)) {
      const Outcome run = RunProgram(Words(shown.command));
      EXPECT_EQ(WithTwelveDigits(WithoutTrailingBlanks(run.out + run.err)),
                WithTwelveDigits(WithoutTrailingBlanks(shown.output)))
          << shown.where << ": kelpower" << shown.command;
      ++count;
    }
  }
  EXPECT_GE(count, 10) << "the documents are not found";
}

}  // namespace
