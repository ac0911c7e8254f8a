#include "help.h"

#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "format/format.h"
#include "help_charts.h"
#include "help_inputs.h"
#include "help_usage.h"

using namespace planner;

namespace {

/// "--n, --group-sizes LIST"
std::string OptionText(const Parameter& parameter) {
  std::string text;
  for (const std::string& name : NamesOf(parameter)) text += (text.empty() ? "" : ", ") + OptionOf(name);
  return parameter.kind == Kind::Flag ? text : Formatted("{} {}", text, KindOfValue(parameter));
}

/// How the remaining number of a design is asked for.
std::string UnknownSection(const Test& test, const Highlights& highlights) {
  if (test.unknowns.empty()) return "";
  return Formatted(
      "{}Effect that a design detects{}\n  Give --n and --power, and leave the effect out; --solve NAME asks for another "
      "number.\n\n",
      highlights.heading, highlights.end);
}

std::string TableSection(const Test& test, const Highlights& highlights) {
  return Formatted(
      "{}Many designs at once{}\n  Give an option several times, or a number as a list 0.8,0.9 or a range 20:100:20 (from, "
      "to, step):\n  all combinations are answered as one table. \"kelpower run FILE\" answers a file of designs.\n"
      "  kelpower {}\n\n",
      highlights.heading, highlights.end, CallOfTable(test));
}

std::size_t OptionWidth(const Test& test) {
  std::size_t width = 0;
  for (const Parameter& parameter : test.parameters) width = std::max(width, OptionText(parameter).size());
  return width;
}

/// The lines of the options that are offered around every question, or of the others.
std::string InputLines(const Test& test, std::size_t width, bool areOffered = false) {
  std::string text;
  for (const Parameter& parameter : test.parameters) {
    if (Contains(OfferedInputs(), parameter.name) != areOffered) continue;
    text += Formatted("  {:<{}}  {}\n", OptionText(parameter), width, MeaningOf(parameter));
    if (const std::string range = RangeOf(test, parameter); !range.empty()) {
      text += Formatted("  {:<{}}  ({})\n", "", width, range);
    }
  }
  return text;
}

std::string OptionLines(const Test& test) {
  const std::size_t width = OptionWidth(test);
  std::string text = InputLines(test, width);
  text += Formatted("  {:<{}}  also tell what is behind the answer, and how other programs are asked the same\n",
                    "--explain", width);
  text += Formatted("  {:<{}}  text (default), json, csv, markdown or ndjson\n", "--format WORD", width);
  text += Formatted("  {:<{}}  keep the design for \"kelpower run\"\n", "--save FILE.json", width);
  text +=
      Formatted("  {:<{}}  threads for a table of many designs; default one on each core\n", "--jobs NUMBER", width);
  text += Formatted("  {:<{}}  this help\n", "--help", width);
  return text;
}

}  // namespace

std::string OptionOf(std::string_view input) { return Formatted("--{}", input); }

std::string HelpOf(const Test& test, const Highlights& highlights) {
  const auto heading = [&](const char* words) {
    return Formatted("{}{}{}\n", highlights.heading, words, highlights.end);
  };
  const Example& first = FirstExample(test);
  std::string text = heading(test.title.c_str());
  text += Formatted("{}\n{}\n\n", test.about, test.whenNot);
  text += heading("For example") + ExampleText(first) + "What you leave out is what is solved for.\n\n";
  text += UsageSection(test, highlights) + UnknownSection(test, highlights) + TableSection(test, highlights);
  text += heading("Options") + OptionLines(test) + '\n';
  text += heading("Before the study starts") + InputLines(test, OptionWidth(test), true);
  text += ChartSection(test, highlights);
  text += Formatted("\n{}", heading("More examples"));
  for (const Example& example : test.examples) {
    if (&example != &first) text += ExampleText(example);
  }
  return text;
}

std::string HelpOfEffects(const Highlights& highlights) {
  const Effects& effects = EffectSizes();
  const Test& test = effects.inputs;
  const auto heading = [&](const std::string& words) {
    return Formatted("{}{}{}\n", highlights.heading, words, highlights.end);
  };
  std::string text = heading(test.title) + Formatted("{}\n{}\n\n", test.about, test.whenNot);
  text += heading("For example") + ExampleText(test.examples.front());
  for (std::size_t i = 0; i < effects.conversions.size(); ++i) {
    const std::string& title = effects.conversions[i].title;
    if (!title.empty()) text += '\n' + heading(title);
    text += "  " + Usage(test, test.routes[i]) + '\n';
  }
  const std::size_t width = OptionWidth(test);
  text += '\n' + heading("Options") + InputLines(test, width);
  text += Formatted("  {:<{}}  also tell the formula and source of each effect size\n", "--explain", width);
  text += Formatted("  {:<{}}  text (default), json, csv or markdown\n", "--format WORD", width);
  text += Formatted("  {:<{}}  this help\n", "--help", width);
  text += '\n' + heading("More examples");
  for (std::size_t i = 1; i < test.examples.size(); ++i) text += ExampleText(test.examples[i]);
  return text;
}

std::string HelpOfRun(const Highlights& highlights) {
  return Formatted(
      "{0}Answers a file of designs{1}\n"
      "Each row is a design and gets its answer, in the order of the file. What a row leaves out is what is solved for.\n\n"
      "  kelpower run FILE.csv|FILE.ndjson|FILE.json [--test NAME] [--format WORD] [--output FILE] [--jobs NUMBER]\n\n"
      "{0}The file{1}\n"
      "  The column \"test\" names the test, the others are its options without dashes. An empty field is not given.\n"
      "  In csv a list is separated by spaces, and a flag is true or false. In json a file is an array of objects, or one.\n"
      "  The answers are the rows with the results, a note where one is due, and the error of a row that has no answer.\n\n"
      "{0}Options{1}\n"
      "  FILE           .csv, .ndjson or .json; - for the standard input\n"
      "  --test NAME    the test of all rows, where no column names it\n"
      "  --format WORD  csv, ndjson or json; default that of the file\n"
      "  --output FILE  the file of the answers; default the standard output\n"
      "  --jobs NUMBER  threads; default one on each core\n"
      "  --help         this help\n\n"
      "{0}Example{1}: kelpower run designs.csv --output answers.csv\n",
      highlights.heading, highlights.end);
}

std::string ListOfTests(const Highlights& highlights) {
  std::size_t width = 0;
  for (const Test& test : Tests()) width = std::max(width, test.name.size());
  std::string text;
  for (const Test& test : Tests()) {
    text += Formatted("{}{:<{}}{}  {}\n", highlights.heading, test.name, width, highlights.end, test.title);
  }
  text += Formatted("\n{}{:<{}}{}  No test: converts what a study reports into effect sizes\n", highlights.heading,
                    EffectSizes().inputs.name, width, highlights.end);
  return text;
}
