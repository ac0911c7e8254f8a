#ifndef KELPOWER_PLANNER_WORDS_JSON_VALUES_H
#define KELPOWER_PLANNER_WORDS_JSON_VALUES_H

#include <string>
#include <string_view>

#include "model/value.h"
#include "solve/design_solver.h"

// JSON written in place, in one line, without a document in memory.
namespace planner {

void AppendJsonText(std::string& out, std::string_view text);
void AppendJson(std::string& out, const Numbers& numbers);
void AppendJson(std::string& out, const Value& value);

/// An object of JSON as its entries are added.
class OpenObject {
public:
  explicit OpenObject(std::string& out) : out_(out) { out_ += '{'; }
  /// Goes on with an object that stands there but for its closing bracket.
  OpenObject(std::string& out, bool isEmpty) : out_(out), isEmpty_(isEmpty) {}

  void Add(std::string_view name, const Value& value) { AppendJson(Begin(name), value); }
  void AddText(std::string_view name, std::string_view text) { AppendJsonText(Begin(name), text); }
  void AddNumbers(std::string_view name, const Numbers& numbers) { AppendJson(Begin(name), numbers); }
  void AddNumber(std::string_view name, double number);
  void Close() { out_ += '}'; }

private:
  std::string& Begin(std::string_view name);

  std::string& out_;
  bool isEmpty_ = true;
};

/// Adds the results of a design that is answered. `nameOf` gives the name of each in the object.
template <typename NameOf>
void AddResults(OpenObject& object, const DesignAnswer& answer, const NameOf& nameOf) {
  for (std::size_t i = 0; i < answer.columns->size(); ++i) {
    const ResultColumn& column = (*answer.columns)[i];
    if (column.reading == Reading::Sizes) {
      object.AddNumbers(nameOf(column.name), answer.SizesOf(column));
    } else if (answer.values[i] == answer.values[i]) {  // there may be none, a NaN
      object.AddNumber(nameOf(column.name), answer.values[i]);
    }
  }
}

inline void AddResults(OpenObject& object, const DesignAnswer& answer) {
  AddResults(object, answer, [](const std::string& name) -> const std::string& { return name; });
}

/// The results at these places as fields of CSV, each with a comma behind it; empty where there is none.
void AppendCsvResults(const DesignAnswer& answer, const std::vector<std::size_t>& places, std::string& out);

}  // namespace planner

#endif
