#include "complete.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "fitting.h"
#include "format/format.h"
#include "help.h"
#include "help_inputs.h"
#include "solve/axes.h"

using namespace planner;

namespace {

/// An option that is no input, and what its value may be. `values` are words, or say that it is a file, a test or an
/// axis; empty for a flag or a number.
struct PlainOption {
  const char* name;
  const char* meaning;
  std::vector<std::string> values = {};
  bool takesValue = true;
};

const std::string aTest = ":tests";
const std::string anAxis = ":axes";

const std::vector<PlainOption> optionsOfTests{
    {"--chart", "draw the power over an axis", {anAxis}},
    {"--explain", "tell what is behind the answer", {}, false},
    {"--format", "how the answer is written", {"text", "json", "csv", "markdown", "ndjson"}},
    {"--help", "what the test takes and answers", {}, false},
    {"--jobs", "threads for many designs"},
    {"--save", "keep the design in a file", {anyFile}},
};

const std::vector<PlainOption> optionsOfCharts{
    {"--dpi", "dots per inch of a .png"},
    {"--from", "start of the axis"},
    {"--height", "height of the picture in pixels"},
    {"--output", "the file of the chart", {anyFile}},
    {"--step", "step between points"},
    {"--title", "title of the picture"},
    {"--to", "end of the axis"},
    {"--width", "width of the picture in pixels"},
    {"--y", "draw the sizes", {"n"}},
};

const std::vector<PlainOption> optionsOfRun{
    {"--format", "how the answers are written", {"csv", "ndjson", "json"}},
    {"--help", "what files of designs look like", {}, false},
    {"--jobs", "threads"},
    {"--output", "the file of the answers", {anyFile}},
    {"--test", "the test of all rows", {aTest}},
};

const std::vector<PlainOption> optionsOfEffect{
    {"--explain", "tell the formulas and sources", {}, false},
    {"--format", "how the answer is written", {"text", "json", "csv", "markdown"}},
    {"--help", "what can be converted", {}, false},
};

const std::vector<PlainOption> optionsOfList{
    {"--format", "how the list is written", {"text", "json"}},
};

const PlainOption* Find(const std::vector<PlainOption>& options, std::string_view name) {
  const auto found =
      std::find_if(options.begin(), options.end(), [&](const PlainOption& option) { return option.name == name; });
  return found == options.end() ? nullptr : &*found;
}

bool StartsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

std::vector<Candidate> TestNames() {
  std::vector<Candidate> names;
  for (const Test& test : Tests()) names.push_back({test.name, test.title});
  return names;
}

std::vector<Candidate> FirstWords() {
  std::vector<Candidate> words = TestNames();
  words.push_back({"effect", "effect sizes from what a study reports"});
  words.push_back({"list", "the tests"});
  words.push_back({"run", "answer a file of designs"});
  words.push_back({"--help", "what there is, with examples"});
  words.push_back({"--version", "the version"});
  return words;
}

/// One axis, or with one begun also the second of a surface.
std::vector<Candidate> AxisNames(const Test& test, const std::string& begun) {
  std::vector<Candidate> names;
  for (const Axis& axis : AllAxes(test)) {
    names.push_back({axis.name, axis.title});
    if (!StartsWith(begun, axis.name + "-")) continue;
    for (const Axis& second : AllAxes(test)) {
      if (second.name != axis.name) names.push_back({axis.name + "-" + second.name, axis.title + "; " + second.title});
    }
  }
  return names;
}

/// A command line as far as it has been typed.
class Line {
public:
  explicit Line(std::vector<std::string> words) : command_(words.front()), last_(words.back()) {
    words_.assign(words.begin() + 1, words.end() - 1);
    if (command_ == "effect") inputs_ = &EffectSizes().inputs;
    if (const Test* test = FindTest(command_)) inputs_ = isOfTest_ = test;
  }

  std::vector<Candidate> Next() const {
    if (const std::optional<std::string> option = OptionBeforeValue()) return ValuesOf(*option);
    if (StartsWith(last_, "--") && last_.find('=') != std::string::npos) return ValuesAfterEquals();
    if (command_ == "run" && !StartsWith(last_, "-")) return {{anyFile}};
    return OptionNames();
  }

private:
  std::vector<PlainOption> PlainOptions() const {
    if (command_ == "run") return optionsOfRun;
    if (command_ == "list") return optionsOfList;
    if (command_ == "effect") return optionsOfEffect;
    std::vector<PlainOption> options;
    if (!isOfTest_) return options;
    options = optionsOfTests;
    if (IsGiven("--chart")) options.insert(options.end(), optionsOfCharts.begin(), optionsOfCharts.end());
    return options;
  }

  static std::string NameIn(const std::string& word) { return word.substr(0, word.find('=')); }

  bool IsGiven(const std::string& option) const {
    return std::any_of(words_.begin(), words_.end(), [&](const std::string& word) { return NameIn(word) == option; });
  }

  const Parameter* InputOf(const std::string& option) const {
    return inputs_ && StartsWith(option, "--") ? FindParameter(*inputs_, std::string_view(option).substr(2)) : nullptr;
  }

  bool TakesValue(const std::string& option) const {
    if (const Parameter* parameter = InputOf(option)) return parameter->kind != Kind::Flag;
    const std::vector<PlainOption> options = PlainOptions();
    const PlainOption* plain = Find(options, option);
    return plain && plain->takesValue;
  }

  /// The option whose value is the last word, if it is one.
  std::optional<std::string> OptionBeforeValue() const {
    if (words_.empty() || !TakesValue(words_.back())) return std::nullopt;
    return words_.back();
  }

  std::vector<Candidate> ValuesOf(const std::string& option) const {
    std::vector<Candidate> values;
    if (const Parameter* parameter = InputOf(option)) {
      for (const Choice& choice : parameter->choices) {
        values.push_back({choice.word, choice.wording == choice.word ? "" : choice.wording});
      }
      return values;
    }
    const std::vector<PlainOption> options = PlainOptions();
    const PlainOption* plain = Find(options, option);
    for (const std::string& word : plain->values) {
      if (word == anAxis) return AxisNames(*isOfTest_, last_.substr(last_.find('=') + 1));
      if (word == aTest) return TestNames();
      values.push_back({word});
    }
    return values;
  }

  std::vector<Candidate> ValuesAfterEquals() const {
    const std::string option = NameIn(last_);
    if (!TakesValue(option)) return {};
    std::vector<Candidate> values = ValuesOf(option);
    for (Candidate& value : values) {
      if (value.word != anyFile) value.word = option + "=" + value.word;
    }
    return values;
  }

  Names GivenInputs() const {
    Names names;
    for (const std::string& word : words_) {
      if (const Parameter* parameter = InputOf(NameIn(word))) names.push_back(parameter->name);
    }
    return names;
  }

  /// By its own name, or by the one that has been begun.
  void AddInput(std::vector<Candidate>& names, const Parameter& parameter) const {
    for (const std::string& name : NamesOf(parameter)) {
      if (!StartsWith(OptionOf(name), last_)) continue;
      names.push_back({OptionOf(name), MeaningOf(parameter)});
      return;
    }
  }

  std::vector<Candidate> OptionNames() const {
    std::vector<Candidate> names;
    const Names given = GivenInputs();
    for (const Parameter& parameter : inputs_ ? inputs_->parameters : std::vector<Parameter>()) {
      Names together = given;
      together.push_back(parameter.name);
      if (!Contains(given, parameter.name) && GoTogether(*inputs_, together)) AddInput(names, parameter);
    }
    for (const PlainOption& option : PlainOptions()) {
      if (!IsGiven(option.name)) names.push_back({option.name, option.meaning});
    }
    return names;
  }

  std::string command_;
  std::string last_;
  std::vector<std::string> words_;  // between the two
  const Test* inputs_ = nullptr;    // of the command, if it has any
  const Test* isOfTest_ = nullptr;
};

/// bash takes the parts of --option=value for words of their own.
std::vector<std::string> WithoutEquals(const std::vector<std::string>& words) {
  std::vector<std::string> others;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] != "=")
      others.push_back(words[i]);
    else if (i + 1 == words.size())
      others.emplace_back();
  }
  return others;
}

}  // namespace

std::vector<Candidate> Candidates(std::vector<std::string> words) {
  words = WithoutEquals(words);
  if (words.empty()) words.emplace_back();
  std::vector<Candidate> all = words.size() == 1 ? FirstWords() : Line(words).Next();
  const std::string& last = words.back();
  all.erase(std::remove_if(all.begin(), all.end(),
                           [&](const Candidate& it) { return it.word != anyFile && !StartsWith(it.word, last); }),
            all.end());
  return all;
}

std::string Completions(const std::vector<std::string>& words) {
  std::string text;
  for (const Candidate& candidate : Candidates(words)) {
    text +=
        candidate.meaning.empty() ? candidate.word + '\n' : Formatted("{}\t{}\n", candidate.word, candidate.meaning);
  }
  return text;
}
