#include "words/design_questions.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <variant>

#include "model/problem.h"
#include "words/report.h"

namespace planner {
namespace {

/// How many shapes designs can have by this input alone.
std::size_t ShapesBy(const Alternatives& input) {
  std::set<std::size_t> lengths;
  for (const Value& value : input.values) {
    const auto* numbers = std::get_if<Numbers>(&value);
    const bool isNumber = numbers || std::holds_alternative<double>(value);
    if (!isNumber || input.parameter->role == Role::Shape) return input.values.size();
    lengths.insert(numbers ? numbers->size() : 1);
  }
  return lengths.size();
}

std::size_t MostShapes(const Designs& designs) {
  std::size_t most = 1;
  for (const Alternatives& input : designs.Inputs()) most *= ShapesBy(input);
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
  const std::size_t mostShapes = MostShapes(designs);
  std::vector<PreparedQuestion> questions;
  std::set<std::string> shapes;
  std::optional<InputError> first;
  DesignRow row;
  for (std::size_t i = 0; i < designs.Count() && questions.size() < mostShapes; ++i) {
    designs.Fill(i, row);
    if (shapes.count(row.Shape()) > 0) continue;
    try {
      questions.emplace_back(designs.AskedTest(), row.Values());
      shapes.insert(row.Shape());
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
