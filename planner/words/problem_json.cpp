#include "words/problem_json.h"

#include <string>

#include "words/parse.h"
#include "words/problem.h"

namespace planner {
namespace {

struct CodeWord {
  Code code;
  const char* word;
};

constexpr CodeWord codeWords[] = {
    {Code::NotAnInput, "not-an-input"},
    {Code::NotAllowed, "not-allowed"},
    {Code::UselessAlone, "useless-alone"},
    {Code::AsksSomethingElse, "asks-something-else"},
    {Code::Exclusive, "exclusive"},
    {Code::DoNotGoTogether, "do-not-go-together"},
    {Code::TwoQuestions, "two-questions"},
    {Code::Incomplete, "incomplete"},
    {Code::GroupsDisagree, "groups-disagree"},
    {Code::GroupsUnknown, "groups-unknown"},
    {Code::TooFewGroups, "too-few-groups"},
    {Code::TooManyGroups, "too-many-groups"},
    {Code::WrongLength, "wrong-length"},
    {Code::ConditionFails, "condition-fails"},
    {Code::SolvedForIsGiven, "solved-for-is-given"},
    {Code::NotSolvedFor, "not-solved-for"},
    {Code::NothingUnknown, "nothing-unknown"},
    {Code::SolvesWithoutTarget, "solves-without-target"},
    {Code::NoEffect, "no-effect"},
    {Code::SizesNotFound, "sizes-not-found"},
    {Code::NotComputable, "not-computable"},
    {Code::TargetNotReached, "target-not-reached"},
    {Code::TargetReachedAlways, "target-reached-always"},
    {Code::Stopped, "stopped"},
    {Code::TestUnknown, "test-unknown"},
    {Code::TestMissing, "test-missing"},
    {Code::TooManyDesigns, "too-many-designs"},
};

/// Codes that a front end has no use to tell apart: their sentence says what is wrong with the chart or the file.
const char* WordOfGroup(Code code) {
  const int number = static_cast<int>(code);
  return number >= 300 && number < 400 ? "chart" : "designs";
}

void WriteNames(JsonWriter& json, const std::vector<std::string>& names) {
  json.OpenArray();
  for (const std::string& name : names) json.Name(name);
  json.CloseArray();
}

void WriteMissing(JsonWriter& json, const std::vector<Names>& ways) {
  json.Key("missing");
  json.OpenArray();
  for (const Names& way : ways) {
    json.OpenArray();
    for (Name name : way) json.Name(name.Text());
    json.CloseArray();
  }
  json.CloseArray();
}

/// The value that is not allowed. Of other problems the values are figures of the sentence.
bool HasValue(const Problem& problem) { return problem.code == Code::NotAllowed && !problem.values.empty(); }

/// The words of the input `solve` are names of inputs, and spelt as such.
std::string WithNamesSpelt(std::string text, const Problem& problem, NameStyle style) {
  if (!problem.allowed || problem.allowed->name.Text() != "solve") return text;
  for (const Choice& choice : problem.allowed->choices) {
    const std::size_t place = text.rfind(choice.word);
    if (place != std::string::npos) text.replace(place, choice.word.size(), Spelt(choice.word, style));
  }
  return text;
}

}  // namespace

const char* WordOf(Code code) {
  for (const CodeWord& known : codeWords) {
    if (known.code == code) return known.word;
  }
  return WordOfGroup(code);
}

const char* KindOf(Code code) {
  const int number = static_cast<int>(code);
  if (code == Code::Stopped) return "stopped";
  return number >= 400 && number < 500 ? "no-solution" : "input";
}

void WriteProblem(JsonWriter& json, const Problem& problem) {
  json.OpenObject();
  json.Text("kind", KindOf(problem.code));
  json.Text("code", WordOf(problem.code));
  if (!problem.condition.empty()) json.Text("condition", problem.condition);
  if (!problem.inputs.empty()) {
    json.Key("parameter");
    json.Name(problem.inputs.front());
  }
  json.Key("parameters");
  WriteNames(json, problem.inputs);
  if (HasValue(problem)) {
    json.Key("value");
    json.Of(problem.values.front());
  }
  if (problem.allowed) json.Text("allowed", WithNamesSpelt(Allowed(*problem.allowed), problem, json.Names()));
  if (!problem.missing.empty()) WriteMissing(json, problem.missing);
  const std::string sentence = Sentence(problem, [&](std::string_view name) { return Spelt(name, json.Names()); });
  json.Text("message", WithNamesSpelt(sentence, problem, json.Names()));
  json.Text("template", SentenceTemplate(problem));
  json.CloseObject();
}

}  // namespace planner
