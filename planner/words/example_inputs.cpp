#include "words/example_inputs.h"

#include <sstream>

#include "words/parse.h"

namespace planner {

InputValues InputsOf(const Test& test, const Example& example) {
  InputValues values;
  std::istringstream words(example.arguments);
  std::string word;
  words >> word;  // the name of the test
  while (words >> word) {
    const Parameter* parameter = FindParameter(test, std::string_view(word).substr(2));
    if (!parameter) continue;
    std::string text = "yes";
    if (parameter->kind != Kind::Flag) words >> text;
    values[std::string(parameter->name.Text())] = Parse(*parameter, text);
  }
  return values;
}

}  // namespace planner
