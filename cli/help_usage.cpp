#include "help_usage.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "format/format.h"
#include "help.h"

using namespace planner;

namespace {

/// What stands for the value of an option in usage lines.
struct Metavariable {
  std::string_view input;
  std::string_view text;
};

constexpr Metavariable metavariables[] = {
    {"means", "M1,M2"},
    {"mean", "M"},
    {"mean-difference", "D"},
    {"mean-ratio", "RATIO"},
    {"cv", "CV"},
    {"margin", "MARGIN"},
    {"equivalence", "LOWER,UPPER"},
    {"test-value", "M0"},
    {"sd", "SD"},
    {"sds", "SD1,SD2"},
    {"sd-difference", "SD"},
    {"effect-d", "D"},
    {"effect-f", "F"},
    {"effect-f2", "F2"},
    {"eta-squared", "ETA2"},
    {"n", "N"},
    {"ratio", "R"},
    {"ratios", "R1,R2,R3"},
    {"groups", "K"},
    {"levels", "A,B"},
    {"term", "I,J"},
    {"covariates", "P"},
    {"measurements", "M"},
    {"epsilon", "EPS"},
    {"coefficients", "C1,C2,C3"},
    {"pair", "I,J"},
    {"power", "POWER"},
    {"half-width", "W"},
    {"alpha", "ALPHA"},
    {"proportion", "P"},
    {"null", "VALUE0"},
    {"proportions", "P1,P2"},
    {"proportion1", "P1"},
    {"proportion2", "P2"},
    {"risk-difference", "RD"},
    {"risk-ratio", "RR"},
    {"odds-ratio", "OR"},
    {"p12", "P12"},
    {"p21", "P21"},
    {"correlation", "RHO"},
    {"r", "R"},
    {"r-squared", "R2"},
    {"r-squared-reduced", "R2"},
    {"predictors", "K"},
    {"tested", "Q"},
    {"partialled-out", "K"},
    {"t", "T"},
    {"f-statistic", "F"},
    {"df", "DF"},
    {"hedges-g", "G"},
    {"superiority", "P"},
    {"correlations", "R1,R2"},
    {"effect-q", "Q"},
    {"effect-h", "H"},
    {"events", "E1,E2"},
    {"counts", "A,B,C,D"},
    {"confidence", "C"},
};

std::string MetavariableOf(const Test& test, Name name) {
  const Parameter& parameter = *FindParameter(test, name);
  if (parameter.kind == Kind::Flag) return "";
  const bool isOfManyGroups = test.groups == groupsFromInputs && name == Name("means");
  if (isOfManyGroups) return " M1,M2,M3";
  for (const auto& [input, text] : metavariables) {
    if (input == name.Text()) return Formatted(" {}", text);
  }
  return parameter.kind == Kind::Choice ? " WORD" : parameter.IsList() ? " X1,X2" : " X";
}

/// Routes that differ in single inputs, as one line: what is needed, with the inputs that may stand there.
struct Call {
  const Route* route;
  std::vector<Names> needs;
};

Call CallOf(const Route& route) {
  Call call{&route, {}};
  for (Name need : route.needs) call.needs.push_back({need});
  return call;
}

/// The only place at which what the calls need differs, if there is one.
std::optional<std::size_t> OnlyDifference(const Call& call, const Call& other) {
  if (call.needs.size() != other.needs.size() || call.route->accepts != other.route->accepts) return std::nullopt;
  std::optional<std::size_t> place;
  for (std::size_t i = 0; i < call.needs.size(); ++i) {
    if (call.needs[i] == other.needs[i]) continue;
    if (place) return std::nullopt;
    place = i;
  }
  return place;
}

/// Joins the first two calls that can be joined. Gives whether there were any.
bool JoinTwo(std::vector<Call>& calls) {
  for (auto call = calls.begin(); call != calls.end(); ++call) {
    for (auto other = call + 1; other != calls.end(); ++other) {
      const std::optional<std::size_t> place = OnlyDifference(*call, *other);
      if (!place) continue;
      Names& inputs = call->needs[*place];
      inputs.insert(inputs.end(), other->needs[*place].begin(), other->needs[*place].end());
      calls.erase(other);
      return true;
    }
  }
  return false;
}

std::string Given(const Test& test, Name name) { return OptionOf(name.Text()) + MetavariableOf(test, name); }

std::string OneOf(const Test& test, const Names& inputs) {
  std::string text;
  for (Name input : inputs) text += (text.empty() ? "" : " | ") + Given(test, input);
  return inputs.size() == 1 ? text : Formatted("({})", text);
}

std::string Line(const Test& test, const Call& call) {
  std::string text = "kelpower " + test.name;
  const std::optional<Name> asker = AskedBy(call.route->question);
  for (const Names& inputs : call.needs) text += ' ' + OneOf(test, inputs);
  if (asker) text += ' ' + Given(test, *asker);
  for (Name input : call.route->accepts) {
    if (input != asker && !Contains(OfferedInputs(), input)) text += Formatted(" [{}]", Given(test, input));
  }
  return text;
}

}  // namespace

std::string Usage(const Test& test, const Route& route) { return Line(test, CallOf(route)); }

std::vector<std::string> Usages(const Test& test, Question question) {
  std::vector<Call> calls;
  for (const Route& route : test.routes) {
    if (route.question == question) calls.push_back(CallOf(route));
  }
  while (JoinTwo(calls)) {
  }
  std::vector<std::string> lines;
  for (const Call& call : calls) lines.push_back(Line(test, call));
  return lines;
}

const char* HeadingOf(Question question) {
  switch (question) {
    case Question::Power: return "Power of a design";
    case Question::SampleSize: return "Sample size for a power";
    case Question::HalfWidth: return "Half-width of the confidence interval of a design";
    case Question::SampleSizeForHalfWidth: return "Sample size for a half-width";
    case Question::EffectSizes: return "What you have";
  }
  return "";
}

const Example& FirstExample(const Test& test) {
  const auto asksForSizes = [](const Example& example) {
    const bool hasSizes = example.arguments.find(" --n ") != std::string::npos;
    return !hasSizes && example.arguments.find(" --power ") != std::string::npos;
  };
  const auto found = std::find_if(test.examples.begin(), test.examples.end(), asksForSizes);
  return found == test.examples.end() ? test.examples.front() : *found;
}

std::string ExampleText(const Example& example) {
  return Formatted("  kelpower {}\n    {}\n", example.arguments, example.sentence);
}

std::string UsageSection(const Test& test, const Highlights& highlights) {
  std::string text;
  for (Question question :
       {Question::Power, Question::SampleSize, Question::HalfWidth, Question::SampleSizeForHalfWidth}) {
    if (!Answers(test, question)) continue;
    text += Formatted("{}{}{}\n", highlights.heading, HeadingOf(question), highlights.end);
    for (const std::string& usage : Usages(test, question)) text += Formatted("  {}\n", usage);
    text += '\n';
  }
  return text;
}
