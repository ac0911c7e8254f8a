#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <sstream>
#include <vector>

#include "format/format.h"
#include "help.h"
#include "help_inputs.h"
#include "help_usage.h"
#include "man_page.h"
#include "solve/axes.h"
#include "solve/solve.h"
#include "words/example_inputs.h"
#include "words/explain.h"
#include "words/numbers.h"

using namespace planner;

namespace {

bool IsCapital(char letter) { return std::isupper(static_cast<unsigned char>(letter)) != 0; }

/// Whether a value may follow the option.
bool IsOpen(const std::string& option) { return option.back() != ']' && option.back() != ')'; }

/// A word of a usage line: an option, a value that the user chooses, or to be typed.
std::string WordInFonts(std::string word) {
  std::string opening;
  std::string closing;
  if (word == "|") return word;
  if (word.front() == '[' || word.front() == '(') opening = word.front(), word.erase(0, 1);
  if (word.back() == ']' || word.back() == ')') closing = word.back(), word.pop_back();
  return opening + (IsCapital(word.front()) ? Italic(word) : Bold(word)) + closing;
}

/// An option with what stands for its value.
std::string TermOf(const std::string& names, std::string_view value) {
  return value.empty() ? names : Formatted("{} {}", names, WordInFonts(std::string(value)));
}

void AddQuestions(ManPage& page, const Test& test) {
  page.Section("QUESTIONS");
  page.Paragraph("What you leave out is what is solved for.");
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    page.Subsection(HeadingOf(question));
    std::vector<std::string> calls;
    for (const std::string& usage : Usages(test, question)) calls.push_back(UsageInFonts(usage));
    page.Lines(calls);
  }
  if (!test.unknowns.empty()) {
    page.Subsection("Effect that a design detects");
    page.Paragraph("Give " + Bold("--n") + " and " + Bold("--power") + ", and leave the effect out. " +
                   Bold("--solve") + " " + Italic("NAME") + " asks for another number.");
  }
  page.Subsection("Many designs at once");
  page.Paragraph("Give an option several times, or a number as a list " + Bold("0.8,0.9") + " or a range " +
                 Bold("20:100:20") + " (from, to, step). All combinations are answered as one table.");
}

std::string RangeOfAxis(const Axis& axis) {
  if (axis.isOfSizes) return ", from the smallest";
  return axis.usual ? Formatted(", {} to {}", axis.usual->from, axis.usual->to) : "";
}

void AddCharts(ManPage& page, const Test& test) {
  constexpr OptionMeaning options[] = {
      {"--chart", "AXIS", "draws the power, with --interval the half-width, over an axis"},
      {"--chart", "AXIS-AXIS", "draws the power over two axes"},
      {"--y", "n", "draws the sizes that reach --power or --half-width, over any other axis"},
      {"--from", "NUMBER", "start of the axis; of two axes two numbers, such as 12,2"},
      {"--to", "NUMBER", "end of the axis, in the same way"},
      {"--step", "NUMBER", "step between points, as a share of the range; whole numbers go by ones"},
      {"--output", "FILE",
       "writes a file (.svg, .png, .pdf, .csv or .json); without it the chart is drawn in characters"},
      {"--title", "TEXT", "title of the picture"},
      {"--width", "PIXELS", "width of the picture"},
      {"--height", "PIXELS", "height of the picture"},
      {"--dpi", "NUMBER", "dots per inch of a .png"},
  };
  page.Section("CHARTS");
  page.Paragraph(
      "The usual range of an axis goes from a power near alpha to one of 0.99, with the design inside. Give the design "
      "by its sizes, or by " +
      Bold("--power") + " to draw it at the sizes found. One option may have several values, for a curve each.");
  AddOptions(page, options);
  page.Subsection("Axes");
  for (const Axis& axis : AllAxes(test)) page.Item(Bold(axis.name), Prose(axis.title + RangeOfAxis(axis)));
}

/// A formula without its numbers and their signs.
std::string ShapeOf(const std::string& formula) {
  static constexpr std::string_view ofNumbers = "0123456789.-()";
  std::string shape;
  std::copy_if(formula.begin(), formula.end(), std::back_inserter(shape),
               [](char letter) { return ofNumbers.find(letter) == std::string_view::npos; });
  return shape;
}

/// The parts of a formula, each on a line.
std::string InLines(const std::string& formula) {
  std::string text;
  for (std::size_t at = 0; at < formula.size();) {
    const std::size_t end = std::min(formula.find("; ", at), formula.size());
    if (!text.empty()) text += "\n.br\n";
    text += Prose(formula.substr(at, end - at));
    at = end + 2;
  }
  return text;
}

}  // namespace

std::string UsageInFonts(const std::string& usage) {
  std::istringstream words(usage);
  std::string text;
  for (std::string word, before; words >> word; before = word) {
    const bool isValue = before.find("--") <= 1 && IsOpen(before) && word != "|" && word.find("--") > 1;
    if (!text.empty()) text += isValue || word == "|" ? "\\~" : " ";
    text += WordInFonts(word);
  }
  return text;
}

void AddOptions(ManPage& page, std::span<const OptionMeaning> options) {
  for (const auto& [name, value, meaning] : options) page.Item(TermOf(Bold(name), value), Prose(meaning));
}

void AddInputs(ManPage& page, const Test& test, bool areOffered) {
  for (const Parameter& parameter : test.parameters) {
    if (Contains(OfferedInputs(), parameter.name) != areOffered) continue;
    std::vector<std::string> names;
    for (const std::string& name : NamesOf(parameter)) names.push_back(Bold(OptionOf(name)));
    std::string text = Prose(MeaningOf(parameter));
    if (const std::string range = RangeOf(test, parameter); !range.empty()) {
      text += Formatted("\n.br\n{}", Prose(Formatted("({})", range)));
    }
    page.Item(TermOf(Joined(names, ", "), KindOfValue(parameter)), text);
  }
}

void AddCall(ManPage& page, const std::string& arguments, const std::string& sentence) {
  page.Paragraph(Prose(sentence));
  page.Command("kelpower " + arguments);
}

void AddExamples(ManPage& page, const Test& test) {
  for (const Example& example : test.examples) {
    page.Item(Bold("kelpower " + example.arguments), Prose(example.sentence));
  }
}

void AddFormulas(ManPage& page, const Test& test) {
  page.Section("METHOD");
  page.Paragraph("The formulas, with the numbers of the examples above.");
  std::set<std::string> shapes;
  for (const Example& example : test.examples) {
    const Explanation explanation = Explain(Solve(test, InputsOf(test, example)));
    if (!shapes.insert(ShapeOf(explanation.formula)).second) continue;
    page.Paragraph(InLines(explanation.formula) + "\n.br\n" + Prose("Source: " + explanation.source + "."));
  }
}

void AddTest(ManPage& page, const Test& test) {
  AddQuestions(page, test);
  page.Section("OPTIONS");
  AddInputs(page, test);
  constexpr OptionMeaning options[] = {
      {"--explain", "", "also tell what is behind the answer, and how other programs are asked the same"},
      {"--format", "WORD", "text (default), json, csv, markdown or ndjson"},
      {"--save", "FILE.json", "keep the design for kelpower-run(1)"},
      {"--jobs", "NUMBER", "threads for a table of many designs; default one on each core"},
      {"--help", "", "a summary of this page"},
  };
  AddOptions(page, options);
  page.Subsection("Before the study starts");
  AddInputs(page, test, true);
  AddCharts(page, test);
  page.Section("EXAMPLES");
  AddExamples(page, test);
  AddFormulas(page, test);
}

void AddExitStatus(ManPage& page) {
  constexpr OptionMeaning statuses[] = {
      {"0", "", "answered"},    {"1", "", "output could not be written"}, {"2", "", "wrong input"},
      {"3", "", "no solution"}, {"130", "", "stopped by Ctrl-C"},
  };
  page.Section("EXIT STATUS");
  page.Paragraph("The reason is one sentence on the standard error.");
  AddOptions(page, statuses);
}
