#include "man_page.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "format/format.h"
#include "help_usage.h"
#include "usage_error.h"
#include "words/numbers.h"

using namespace planner;

namespace {

std::chrono::sys_seconds Today() {
  const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
  if (!epoch) return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  const std::string_view text = epoch;
  constexpr long long last = 253402300799;  // of the year 9999
  long long seconds = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc() || end != text.data() + text.size() || seconds < 0 || seconds > last) {
    throw UsageError(Formatted("SOURCE_DATE_EPOCH is \"{}\", but must be a number of seconds since 1970.", text));
  }
  return std::chrono::sys_seconds(std::chrono::seconds(seconds));
}

std::string Date() {
  const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(Today()));
  return Formatted("{:04}-{:02}-{:02}", static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                   static_cast<unsigned>(day.day()));
}

ManPage Begin(const std::string& name, const std::string& title) {
  ManPage page(name, Date(), KELPOWER_VERSION);
  page.Section("NAME");
  page.Paragraph(Literal(name) + " \\- " + Prose(title));
  return page;
}

/// References to other pages.
void AddSeeAlso(ManPage& page, const std::vector<std::string>& names) {
  page.Section("SEE ALSO");
  std::vector<std::string> references;
  for (const std::string& name : names) references.push_back(Bold(name) + "(1)");
  page.Paragraph(Joined(references, ",\n", ",\n"));
}

/// The tests that the text names.
std::vector<std::string> TestsNamedIn(const std::string& text) {
  std::vector<std::string> names;
  for (const Test& test : Tests()) {
    const std::size_t at = text.find("see " + test.name);
    const std::size_t end = at == std::string::npos ? at : at + 4 + test.name.size();
    const bool isWhole = at != std::string::npos && (end == text.size() || std::string(".;, ").find(text[end]) < 4);
    if (isWhole) names.push_back("kelpower-" + test.name);
  }
  return names;
}

std::string OfTest(const Test& test) {
  ManPage page = Begin("kelpower-" + test.name, test.title);
  page.Section("SYNOPSIS");
  const std::string call = "kelpower " + test.name;
  page.Lines({UsageInFonts(call + " INPUTS [--explain] [--format WORD] [--save FILE]"),
              UsageInFonts(call + " INPUTS --chart AXIS [--output FILE]")});
  page.Section("DESCRIPTION");
  page.Paragraph(Prose(test.about) + "\n" + Prose(test.whenNot));
  AddTest(page, test);
  AddExitStatus(page);
  std::vector<std::string> others{"kelpower", "kelpower-run", "kelpower-effect"};
  for (std::string& name : TestsNamedIn(test.whenNot)) others.push_back(std::move(name));
  AddSeeAlso(page, others);
  return page.Text();
}

/// The formulas of each effect size, with what they start from.
void AddFormulas(ManPage& page, const Effects& effects) {
  page.Section("METHOD");
  for (const EffectFormula& formula : effects.formulas) {
    const auto& sizes = effects.sizes;
    const auto size =
        std::find_if(sizes.begin(), sizes.end(), [&](const EffectSize& it) { return it.name == formula.effect; });
    page.Item(Prose(size->label), Formatted("{}\n.br\n{}", Prose(formula.formula), Prose(formula.source)));
  }
}

std::string OfEffects() {
  const Effects& effects = EffectSizes();
  ManPage page = Begin("kelpower-effect", "convert what a study reports into effect sizes");
  page.Section("SYNOPSIS");
  page.Lines({UsageInFonts("kelpower effect INPUTS [--explain] [--format WORD]")});
  page.Section("DESCRIPTION");
  page.Paragraph(Prose(effects.inputs.about) + "\n" + Prose(effects.inputs.whenNot));
  page.Section("QUESTIONS");
  for (std::size_t i = 0; i < effects.conversions.size(); ++i) {
    const std::string& title = effects.conversions[i].title;
    if (!title.empty()) page.Subsection(Prose(title));
    page.Lines({UsageInFonts(Usage(effects.inputs, effects.inputs.routes[i]))});
  }
  page.Section("OPTIONS");
  AddInputs(page, effects.inputs);
  constexpr OptionMeaning options[] = {
      {"--explain", "", "also tell the formula and source of each effect size"},
      {"--format", "WORD", "text (default), json, csv or markdown"},
      {"--help", "", "a summary of this page"},
  };
  AddOptions(page, options);
  page.Section("EXAMPLES");
  AddExamples(page, effects.inputs);
  AddFormulas(page, effects);
  AddExitStatus(page);
  AddSeeAlso(page, {"kelpower", "kelpower-run"});
  return page.Text();
}

std::string OfRun() {
  ManPage page = Begin("kelpower-run", "answer a file of designs");
  page.Section("SYNOPSIS");
  page.Lines({UsageInFonts("kelpower run FILE [--test NAME] [--format WORD] [--output FILE] [--jobs NUMBER]")});
  page.Section("DESCRIPTION");
  page.Paragraph(
      "Each row of the file is a design and gets its answer, in the order of the file. What a row leaves out is what is "
      "solved for. The answers are the rows with the results, a note where one is due, and the error of a row that has "
      "no answer.");
  page.Paragraph("The column " + Bold("test") +
                 " names the test. The others are its options without dashes. An empty field is not given. In CSV a "
                 "list is separated by spaces, and a flag is true or false. A JSON file is an array of objects, or one "
                 "object.");
  page.Section("OPTIONS");
  constexpr OptionMeaning options[] = {
      {"FILE", "", ".csv, .ndjson or .json; - for the standard input"},
      {"--test", "NAME", "the test of all rows, where no column names it"},
      {"--format", "WORD", "csv, ndjson or json; default that of the file"},
      {"--output", "FILE", "the file of the answers; default the standard output"},
      {"--jobs", "NUMBER", "threads; default one on each core"},
      {"--help", "", "a summary of this page"},
  };
  AddOptions(page, options);
  page.Section("EXAMPLES");
  AddCall(page, "run designs.csv --output answers.csv", "Answer the designs of a file:");
  AddCall(page, "two-means --effect-d 0.5 --power 0.8 --save study.json", "Keep a design in a file:");
  AddCall(page, "run study.json", "Answer it again:");
  AddExitStatus(page);
  AddSeeAlso(page, {"kelpower", "kelpower-effect"});
  return page.Text();
}

constexpr OptionMeaning commands[] = {
    {"kelpower", "TEST", "answers a question about a study with this test; its own page tells how"},
    {"kelpower run", "FILE", "answers a file of designs: kelpower-run(1)"},
    {"kelpower effect", "", "converts what a study reports into effect sizes: kelpower-effect(1)"},
    {"kelpower list", "", "names the tests; with --format json describes them for programs"},
};

void AddFirstExamples(ManPage& page) {
  AddCall(page, "two-means --effect-d 0.5 --power 0.8", "How many subjects does a medium effect need?");
  AddCall(page, "two-means --n 35,50 --sd 10 --power 0.8",
          "Which difference do 35 and 50 subjects detect, at a standard deviation of 10?");
  AddCall(page, "two-means --effect-d 0.2:0.8:0.1 --power 0.8,0.9", "A table of sizes.");
  AddCall(page, "two-means --effect-d 0.3,0.5,0.8 --power 0.8 --chart n --output curves.svg",
          "A figure of three curves.");
  AddCall(page, "two-means --effect-d 0.5 --power 0.8 --cluster-size 20 --icc 0.05 --dropout 0.15",
          "Clusters of 20, of whom 15 % drop out.");
}

std::string OfProgram() {
  ManPage page = Begin("kelpower", "plan studies: power, sample size and precision of statistical tests");
  page.Section("SYNOPSIS");
  std::vector<std::string> calls;
  for (const char* arguments : {"TEST INPUTS [--explain] [--format WORD] [--chart AXIS]", "run FILE", "effect INPUTS",
                                "list", "--help", "--version"}) {
    calls.push_back(UsageInFonts(Formatted("kelpower {}", arguments)));
  }
  page.Lines(calls);
  page.Section("DESCRIPTION");
  page.Paragraph(
      "Answers how many subjects a study needs: the power of a test, the sample size for a power, the half-width of a "
      "confidence interval and the size for it, the effect that a design detects, and charts of all of them. What you "
      "leave out is what is solved for.");
  page.Subsection("Commands");
  AddOptions(page, commands);
  page.Subsection("Tests");
  for (const Test& test : Tests()) page.Item(Bold(test.name), Prose(test.title));
  page.Section("OPTIONS");
  constexpr OptionMeaning options[] = {
      {"--help", "", "what there is, with examples; after a command its own help"},
      {"--version", "", "the version"},
  };
  AddOptions(page, options);
  page.Section("EXAMPLES");
  AddFirstExamples(page);
  AddExitStatus(page);
  page.Section("ENVIRONMENT");
  page.Item(Bold("NO_COLOR"), "where it is set, output has no colours");
  std::vector<std::string> others{"kelpower-run", "kelpower-effect"};
  for (const Test& test : Tests()) others.push_back("kelpower-" + test.name);
  others.push_back("gnuplot");
  AddSeeAlso(page, others);
  return page.Text();
}

}  // namespace

std::string ManPageOf(const std::string& command) {
  if (command.empty()) return OfProgram();
  if (command == "run") return OfRun();
  if (command == "effect") return OfEffects();
  if (const Test* test = FindTest(command)) return OfTest(*test);
  throw UsageError(Formatted("\"{}\" has no manual page.", command));
}
