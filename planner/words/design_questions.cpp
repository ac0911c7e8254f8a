#include "words/design_questions.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "model/problem.h"
#include "words/report.h"

namespace planner {
namespace {

bool IsOfWords(const Parameter& parameter) { return parameter.kind == Kind::Flag || parameter.kind == Kind::Choice; }

/// The flags and words of the design, which decide what is asked.
std::vector<const Value*> WordsOf(const Designs& designs, std::size_t design) {
  std::vector<const Value*> words;
  for (std::size_t i = 0; i < designs.Inputs().size(); ++i) {
    if (IsOfWords(*designs.Inputs()[i].parameter)) words.push_back(&designs.ValueOf(i, design));
  }
  return words;
}

/// How many combinations of flags and words there are.
std::size_t MostQuestions(const Designs& designs) {
  std::size_t most = 1;
  for (const auto& [parameter, values] : designs.Inputs()) {
    if (IsOfWords(*parameter)) most *= values.size();
  }
  return most;
}

/// Appends what is missing of `some`, each after the one that it follows there.
void Merge(std::vector<ResultColumn>& all, const std::vector<ResultColumn>& some) {
  auto place = all.begin();
  for (const ResultColumn& column : some) {
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const ResultColumn& other) { return other.name == column.name; });
    place = (found == all.end() ? all.insert(place, column) : found) + 1;
  }
}

}  // namespace

std::vector<PreparedQuestion> QuestionsOf(const Designs& designs) {
  const std::size_t most = MostQuestions(designs);
  std::vector<PreparedQuestion> questions;
  std::set<std::vector<const Value*>> asked;
  std::optional<InputError> first;
  DesignRow row;
  for (std::size_t i = 0; i < designs.Count() && questions.size() < most; ++i) {
    std::vector<const Value*> words = WordsOf(designs, i);
    if (asked.count(words) > 0) continue;
    designs.Fill(i, row);
    try {
      questions.emplace_back(designs.AskedTest(), row.Values());
      asked.insert(std::move(words));
    } catch (const InputError& error) {
      if (!first) first = error;
    }
  }
  if (questions.empty()) throw *first;
  return questions;
}

std::vector<AskedInput> InputsOf(const std::vector<PreparedQuestion>& questions) {
  std::map<const Parameter*, const PreparedQuestion*> first;  // inputs of a test stand one behind the other
  for (const PreparedQuestion& question : questions) {
    const std::vector<const Parameter*> listed =
        ListedParameters(question.AskedTest(), question.ChosenRoute(), question.SolvedFor(), question.Design());
    for (const Parameter* parameter : listed) first.emplace(parameter, &question);
  }
  std::vector<AskedInput> inputs;
  for (const auto& [parameter, question] : first) inputs.push_back({parameter, question});
  return inputs;
}

std::vector<ResultColumn> ResultsOf(const std::vector<PreparedQuestion>& questions) {
  std::vector<ResultColumn> results;
  for (const PreparedQuestion& question : questions) {
    Merge(results, ResultColumnsOf(question));
  }
  return results;
}

}  // namespace planner
