#include "words/explain.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "format/format.h"
#include "solve/adjusted_value.h"
#include "words/expand.h"
#include "words/numbers.h"
#include "words/plan_notes.h"

namespace planner {
namespace {

/// The inputs with the sizes that were given or found; of clusters, with those of as many independent observations as
/// tell as much.
Inputs AtSizes(const Answer& answer) {
  Inputs inputs = answer.inputs;
  if (answer.test->groups == 1) {
    inputs.Set("n", answer.sizes.front());
  } else {
    inputs.Erase("ratios");
    inputs.SetList("n", answer.sizes);
  }
  return AtEffectiveSizes(std::move(inputs));
}

std::string SixDigits(double number) {
  const std::string all = Shortest(number);
  const std::string few = Formatted("{:.6g}", number);
  return few.size() < all.size() ? few : all;
}

/// Fifteen digits, which hide the rounding of the last one: 0.3 x 1.5 is 0.45.
std::string ForPrograms(double number) {
  const std::string all = Shortest(number);
  const std::string few = Formatted("{:.15g}", number);
  return few.size() < all.size() ? few : all;
}

/// Fills the braces of formulas and calls.
class Filled {
public:
  Filled(const Answer& answer, const Inputs& inputs, const Details& details)
      : answer_(answer), inputs_(inputs), details_(details) {}

  std::string Formula(const std::string& text) const { return Of(text, SixDigits); }
  std::string Call(const std::string& text) const { return Of(text, ForPrograms); }

private:
  using Digits = std::string (*)(double);

  std::string Of(const std::string& text, Digits digits) const {
    return Expand(
        text, [&](std::string_view name) { return LookUp(name, digits); }, [](std::string_view) { return false; });
  }

  std::string LookUp(std::string_view name, Digits digits) const {
    for (const DetailFigure& figure : details_.figures) {
      if (figure.name == name) return digits(figure.value);
    }
    if (const std::optional<std::string> word = OfSizes(name, digits)) return *word;
    if (const std::optional<std::string> word = OfSides(name)) return *word;
    return OfInput(name, digits);
  }

  /// What was given and what was asked for, of size and power, as the programs want it.
  std::optional<std::string> OfSizes(std::string_view name, Digits digits) const {
    const Numbers& sizes = answer_.sizes;
    const bool isFound = answer_.SizesFound();
    const std::string first = digits(sizes.front());
    const double total = std::accumulate(sizes.begin(), sizes.end(), 0.0);
    if (name == "total") return digits(total);
    if (name == "n1") return first;
    if (name == "n2") return digits(sizes.back());
    if (name == "groups") return digits(inputs_.Groups());
    if (name == "n-or-dot") return isFound ? "." : first;
    if (name == "answer") return isFound ? "$n" : "$power";
    const std::string target = isFound ? digits(inputs_.Number("power")) : "";
    if (name == "n-or-power") return isFound ? "power = " + target : "n = " + first;
    if (name == "power-or-dot") return isFound ? target : ".";
    if (name == "gpower-n") return isFound ? "power " + target : "sample size " + TotalOrGroups(total, digits);
    return std::nullopt;
  }

  std::string TotalOrGroups(double total, Digits digits) const {
    const Numbers& sizes = answer_.sizes;
    return sizes.size() == 2 ? digits(sizes[0]) + " and " + digits(sizes[1]) : digits(total);
  }

  std::optional<std::string> OfSides(std::string_view name) const {
    const bool isOneSided = inputs_.Has("one-sided") && inputs_.Flag("one-sided");
    const auto either = [&](const char* two, const char* one) { return isOneSided ? one : two; };
    if (name == "tails") return either("two", "one");
    if (name == "sides") return either("2", "1");
    if (name == "alternative") return either("\"two.sided\"", "\"greater\"");
    if (name == "r-alternative") return either("\"two.sided\"", "\"one.sided\"");
    if (name == "r-direction") return either("\"two.sided\"", Directed(IsAbove("r", "null")));
    if (name == "r-proportion-direction") return either("\"two.sided\"", Directed(IsAbove("proportion", "null")));
    if (name == "r-groups-direction") return either("\"two.sided\"", Directed(FigureOf("p1") > FigureOf("p2")));
    return std::nullopt;
  }

  static const char* Directed(bool isAbove) { return isAbove ? "\"greater\"" : "\"less\""; }

  bool IsAbove(Name expected, Name null) const { return inputs_.Number(expected) > inputs_.Number(null); }

  double FigureOf(std::string_view name) const {
    const auto& figures = details_.figures;
    const auto found =
        std::find_if(figures.begin(), figures.end(), [&](const DetailFigure& figure) { return figure.name == name; });
    return found == figures.end() ? 0 : found->value;
  }

  /// A list is "10, 12"; "{means|}" is "10|12", "{means_}" is "10 12", and "{sd1}" an entry.
  std::string OfInput(std::string_view name, Digits digits) const {
    if (name == "sd1") return digits(inputs_.List("sd").front());
    const char last = name.back();
    const bool isJoined = last == '|' || last == '_';
    const Parameter* parameter = FindParameter(*answer_.test, isJoined ? name.substr(0, name.size() - 1) : name);
    if (!parameter || !inputs_.Has(parameter->name)) return "";
    if (parameter->name == Name("alpha")) return digits(inputs_.Alpha());
    const Value value = inputs_.ValueOf(*parameter);
    if (const auto* number = std::get_if<double>(&value)) return digits(*number);
    const auto* numbers = std::get_if<Numbers>(&value);
    if (!numbers) return Shown(value);
    std::vector<std::string> words;
    for (double number : *numbers) words.push_back(digits(number));
    const std::string separator = last == '|' ? "|" : last == '_' ? " " : ", ";
    return Joined(words, separator, separator);
  }

  const Answer& answer_;
  const Inputs& inputs_;
  const Details& details_;
};

std::string RemarkOf(const ProgramCall& program) {
  if (program.isSame) return program.remark.empty() ? "" : "Note: " + program.remark + ".";
  return "Differs: " + program.remark + ".";
}

}  // namespace

Details DetailsOf(const Answer& answer) { return answer.test->details(answer.Asked(), AtSizes(answer)); }

Explanation Explain(const Answer& answer) {
  const Inputs inputs = AtSizes(answer);
  const Details details = answer.test->details(answer.Asked(), inputs);
  const Filled filled(answer, inputs, details);
  Explanation explanation{.heading = IsAboutPower(answer.Asked()) ? "Behind the power" : "Behind the half-width",
                          .figures = {},
                          .formula = filled.Formula(details.formula),
                          .source = details.source,
                          .programs = {}};
  bool programs = true;
  for (const auto& [name, label, value] : details.figures) {
    explanation.figures.push_back({name, label, value, SixDigits(value)});
  }
  for (const PlanNote& note : NotesOnPlan(answer)) {
    for (const auto& [name, label, value] : note.figures) {
      explanation.figures.push_back({name, label, value, SixDigits(value)});
    }
    explanation.formula += "; " + note.formula;
    explanation.source += "; " + note.source;
    if (!note.isKnownElsewhere) programs = false;
  }
  if (!programs) return explanation;
  for (const Equivalent& equivalent : details.equivalents) {
    explanation.programs.push_back(
        {equivalent.program, filled.Call(equivalent.call), equivalent.isSame, equivalent.remark});
  }
  return explanation;
}

std::string RenderText(const Explanation& explanation, const std::string& heading, const std::string& end) {
  std::size_t width = 0;
  for (const auto& figure : explanation.figures) width = std::max(width, figure.label.size());
  std::string text = Formatted("\n{}{}{}\n\n", heading, explanation.heading, end);
  for (const auto& figure : explanation.figures) {
    text += Formatted("  {:<{}}  {}\n", figure.label, width, figure.shown);
  }
  for (const ExplainedFormula& of : explanation.formulas) {
    text += Formatted("  {}: {}\n    Source: {}.\n", of.label, of.formula, of.source);
  }
  if (!explanation.formulas.empty()) return text;
  text += Formatted("\n  {}\n  Source: {}.\n", explanation.formula, explanation.source);
  if (explanation.programs.empty()) return text;
  text += Formatted("\n{}Asked of other programs{}\n", heading, end);
  for (const ProgramCall& program : explanation.programs) {
    text += Formatted("\n  {}: {}\n", program.program, program.call);
    if (const std::string remark = RemarkOf(program); !remark.empty()) text += Formatted("    {}\n", remark);
  }
  return text;
}

std::string RenderMarkdown(const Explanation& explanation) {
  std::string text = Formatted("\n**{}**\n\n", explanation.heading);
  for (const ExplainedFormula& of : explanation.formulas) {
    text += Formatted("- {}: {}. Source: {}.\n", of.label, of.formula, of.source);
  }
  if (!explanation.formulas.empty()) return text;
  text += "| | |\n|---|---|\n";
  for (const auto& figure : explanation.figures) text += Formatted("| {} | {} |\n", figure.label, figure.shown);
  text += Formatted("\n{}\n\nSource: {}.\n", explanation.formula, explanation.source);
  if (explanation.programs.empty()) return text;
  text += "\n**Asked of other programs**\n\n";
  for (const ProgramCall& program : explanation.programs) {
    const std::string remark = RemarkOf(program);
    text += Formatted("- {}: `{}`{}{}\n", program.program, program.call, remark.empty() ? "" : " ", remark);
  }
  return text;
}

}  // namespace planner
