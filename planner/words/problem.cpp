#include "words/problem.h"

#include <cstddef>
#include <vector>

#include "format/format.h"
#include "words/expand.h"
#include "words/numbers.h"
#include "words/parse.h"

namespace planner {
namespace {

/// A value as it was given: words and texts in quotes.
std::string GivenAs(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return Formatted("\"{}\"", *text);
  const auto* numbers = std::get_if<Numbers>(&value);
  if (numbers && numbers->empty()) return "empty";
  return Shown(value);
}

/// Words a problem in the names that a front end gives the inputs. What the user typed is never taken for a name.
class WordsOfProblem {
public:
  WordsOfProblem(const Problem& problem, const NameOfInput& name) : problem_(problem), name_(name) {}

  std::string Sentence() const;

private:
  std::string Input(std::size_t i) const { return name_(problem_.inputs[i]); }

  std::vector<std::string> Inputs(std::size_t first = 0) const {
    std::vector<std::string> inputs;
    for (std::size_t i = first; i < problem_.inputs.size(); ++i) inputs.push_back(Input(i));
    return inputs;
  }

  std::string Figure(std::size_t i) const { return Shown(problem_.values[i]); }

  /// To four digits.
  std::string Rounded(std::size_t i) const { return Formatted("{:.4g}", std::get<double>(problem_.values[i])); }

  /// "--sd and --n, or --effect-f and --n"
  std::string Ways(const std::string& last, const std::string& other) const {
    constexpr std::size_t mostNamed = 8;
    std::vector<std::string> ways;
    for (const Names& names : problem_.missing) {
      if (ways.size() == mostNamed) {
        ways.emplace_back("others");
        break;
      }
      std::vector<std::string> way;
      for (Name name : names) way.push_back(name_(name.Text()));
      ways.push_back(Joined(way, " and "));
    }
    return Joined(ways, last, other);
  }

  std::string Incomplete() const;
  std::string GroupsDisagree() const;
  std::string WrongLength() const;
  std::string EndsCount() const;
  std::string EmptyChart() const;
  std::string TooLarge() const;
  std::string TooSlow() const;
  std::string SizesNotFound() const;
  std::string NothingUnknown() const;
  std::string TargetNotReached() const;
  std::string OfCondition() const;
  std::string ChartSentence() const;
  std::string SentenceOnDesigns() const;

  const Problem& problem_;
  const NameOfInput& name_;
};

std::string WordsOfProblem::Incomplete() const {
  std::string text = Formatted("Also give {} for {}", Ways(", or ", ", or "), Wording(*problem_.question));
  if (!problem_.inputs.empty()) {
    text += Formatted("; for the sample size, give {} in place of {}", Input(0), Input(1));
  }
  return text + ".";
}

std::string WordsOfProblem::GroupsDisagree() const {
  return Formatted("{} gives {} groups, but {} gives {}.", Input(0), Figure(0), Input(1), Figure(1));
}

std::string WordsOfProblem::WrongLength() const {
  const bool isOne = std::get<double>(problem_.values[0]) == 1;
  return Formatted("{} has {} {}, but there are {} groups.", Input(0), Figure(0), isOne ? "entry" : "entries",
                   Figure(1));
}

std::string WordsOfProblem::EndsCount() const {
  const bool isOne = std::get<double>(problem_.values[1]) == 1;
  return Formatted("{} is {}, but for {} {} must be {}.", Input(0), Figure(0), Input(1), problem_.words[0],
                   isOne ? "a number" : "two numbers, one for each axis");
}

std::string WordsOfProblem::EmptyChart() const {
  std::vector<std::string> axes;
  for (std::size_t i = 0; i < problem_.words.size(); ++i) {
    axes.push_back(problem_.words[i] + " " + Text(problem_.limits[i]));
  }
  return Formatted("{} leave nothing to draw; allowed are: {}.", Joined(Inputs(), " and "), Joined(axes, " and "));
}

std::string WordsOfProblem::TooLarge() const {
  if (problem_.inputs.size() == 1) {
    return Formatted("The grid has more than {} points: give a larger {}.", Figure(0), Input(0));
  }
  return Formatted("The range has more than {} points: bring {} closer together.", Figure(0),
                   Joined(Inputs(), " and "));
}

std::string WordsOfProblem::SizesNotFound() const {
  const std::string end = problem_.values.size() > 1 ? " up to " + Figure(1) : "";
  const std::string how = problem_.words.empty() ? "" : problem_.words[0];
  return Formatted("No sample size{} was found that reaches a {} of {}{}.", end, problem_.inputs[0], Figure(0), how);
}

std::string WordsOfProblem::NothingUnknown() const {
  return Formatted("{} and {} are given with all the rest, so nothing is left to solve for: leave one input out.",
                   Input(0), Input(1));
}

std::string WordsOfProblem::TargetNotReached() const {
  const bool isPower = problem_.inputs[0] == "power";
  return Formatted("{} {} is not reached by any {}: {} is at {} {}, at {}.", Input(0), Figure(0), Input(1),
                   isPower ? "the power" : "the half-width", isPower ? "most" : "least", Rounded(1), Rounded(2));
}

std::string WordsOfProblem::TooSlow() const {
  return Formatted(
      "The chart of an exact test takes too long with so many points and sizes this large: give a larger {}, bring {} "
      "and {} closer together, or draw a large-sample test.",
      Input(0), Input(1), Input(2));
}

/// The sentence of a condition. "<0>" in it stands for the first value, and so on.
std::string WordsOfProblem::OfCondition() const {
  std::string text = Expand(problem_.sentence, name_, [](std::string_view) { return false; });
  for (std::size_t i = 0; i < problem_.values.size(); ++i) {
    const std::string mark = Formatted("<{}>", i);
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark)) {
      text.replace(at, mark.size(), Figure(i));
    }
  }
  return text;
}

std::string WordsOfProblem::ChartSentence() const {
  switch (problem_.code) {
    case Code::ChartUnknown:
      return Formatted("{} is {}, but must be {}, or two of them joined by a hyphen.", Input(0),
                       GivenAs(problem_.values[0]), Joined(problem_.words, " or "));
    case Code::ChartSizesNeedTarget:
      return Formatted("{} n draws the sizes that reach a target: give {} in place of the sizes.", Input(0), Input(1));
    case Code::ChartOneAxis:
      return Formatted("{} {} has two axes, over which only a power is drawn: name one.", Input(0), problem_.words[0]);
    case Code::ChartOneDesign:
      return Formatted("{} has several values, but {} over two axes draws one design.", Input(0), Input(1));
    case Code::ChartVariesAlternatives:
      return Formatted("{} has several values, but {} varies it along an axis: give one.", Input(0), Input(1));
    case Code::ChartEndNotAllowed:
      return Formatted("{} is {}, but of {} must be {}.", Input(0), Figure(0), problem_.words[0],
                       Text(problem_.limits[0]));
    case Code::ChartEndsDescend:
      return Formatted("{} is {}, but must be below {}, which is {}.", Input(0), Figure(0), Input(1), Figure(1));
    case Code::ChartEndsCount: return EndsCount();
    case Code::ChartEndMissing: return Joined(Inputs(), " and ") + " go together: give both or neither.";
    case Code::ChartRangeUnknown:
      return Formatted("{} {} has no usual range for these inputs: also give {}.", Input(0), problem_.words[0],
                       Joined(Inputs(1), " and "));
    case Code::ChartStepUseless:
      return Formatted("{} has no use with {} {}: whole numbers go by ones.", Input(0), Input(1), problem_.words[0]);
    case Code::ChartStepNotAllowed:
      return Formatted("{} is {}, but must be {}: a share of the range.", Input(0), Figure(0),
                       Text(problem_.limits[0]));
    case Code::ChartStepTooLarge:
      return Formatted("{} is {}, but leaves fewer than two points to draw: give a smaller one.", Input(0), Figure(0));
    case Code::ChartTooLarge: return TooLarge();
    case Code::ChartTooSlow: return TooSlow();
    case Code::ChartEmpty: return EmptyChart();
    case Code::ChartWithoutPower:
      return Formatted("The test has no answer anywhere between {}.", Joined(Inputs(), " and "));
    default: return OfCondition();
  }
}

std::string WordsOfProblem::SentenceOnDesigns() const {
  switch (problem_.code) {
    case Code::TestNowhere:
      return "No column \"test\" names the test of each design, and none is named for all of them.";
    case Code::TestMissing: return "The row names no test.";
    case Code::TestUnknown: return Formatted("\"{}\" is not a test.", problem_.words[0]);
    case Code::ColumnUnknown:
      return Formatted("The column \"{}\" is not an input of {}.", problem_.words[0],
                       problem_.words.size() > 1 ? problem_.words[1] : "any test");
    case Code::ColumnRepeated: return Formatted("The column \"{}\" is there more than once.", problem_.words[0]);
    case Code::FieldsDisagree:
      return Formatted("The row has {} fields, but there are {} columns.", Figure(0), Figure(1));
    case Code::NotAnObject: return "The line is not an object of JSON that describes a design.";
    case Code::ColumnsMissing: return "There is no line that names the columns.";
    case Code::NotDesigns: return "This is not JSON of one design or an array of designs.";
    case Code::RangeUseless:
      return Formatted(
          "{} is \"{}\", but a range must be three numbers from:to:step with a step that leads from the "
          "one end to the other.",
          Input(0), Figure(0));
    case Code::FieldLate:
      return Formatted("The field \"{}\" has no column here, since the first rows lack it.", problem_.words[0]);
    case Code::ResultLate:
      return Formatted("The result \"{}\" has no column here, since the first rows are of other tests.",
                       problem_.words[0]);
    case Code::TooManyDesigns: return Formatted("These are more than {} designs.", Figure(0));
    default: return ChartSentence();
  }
}

std::string WordsOfProblem::Sentence() const {
  switch (problem_.code) {
    case Code::NotAnInput: return Formatted("{} is no input of {}.", Input(0), problem_.words[0]);
    case Code::NotAllowed:
      return Formatted("{} is {}, but must be {}{}.", Input(0), GivenAs(problem_.values[0]), Allowed(*problem_.allowed),
                       problem_.words.empty() ? "" : ": write " + problem_.words[0]);
    case Code::UselessAlone:
      return Formatted("{} has a use only together with {}.", Input(0), Joined(Inputs(1), " or "));
    case Code::AsksSomethingElse:
      return Formatted("{} asks for {}, so {} cannot be given as well.", Input(1), Wording(*problem_.question),
                       Input(0));
    case Code::Exclusive: return Joined(Inputs(), " and ") + " exclude each other.";
    case Code::DoNotGoTogether: return Joined(Inputs(), " and ") + " do not go together.";
    case Code::TwoQuestions:
      return Joined(Inputs(), " and ") + " exclude each other: each asks for an answer of its own.";
    case Code::Incomplete: return Incomplete();
    case Code::GroupsDisagree: return GroupsDisagree();
    case Code::GroupsUnknown: return Formatted("The number of groups is not known: give {}.", Input(0));
    case Code::TooFewGroups: return Formatted("{} gives 1 group, but must give at least 2.", Input(0));
    case Code::TooManyGroups:
      return Formatted("{} gives {} groups, but at most {} are allowed.", Input(0), Figure(0), Figure(1));
    case Code::WrongLength: return WrongLength();
    case Code::SolvedForIsGiven: return Formatted("{} is given, so {} cannot ask for it.", Input(0), Input(1));
    case Code::NotSolvedFor: return Formatted("{} cannot be solved for with {}.", Input(0), Input(1));
    case Code::NothingUnknown: return NothingUnknown();
    case Code::SolvesWithoutTarget:
      return Formatted("{} has a use only where the power or half-width to reach is given besides the sizes.",
                       Input(0));
    case Code::TargetNotReached: return TargetNotReached();
    case Code::TargetReachedAlways: return Formatted("{} {} is reached whatever {} is.", Input(0), Figure(0), Input(1));
    case Code::BelongsToSizesFound:
      return Formatted("{} goes with sizes that are found, so {} cannot be given as well.", Input(0), Input(1));
    case Code::BeyondPowerLimit:
      return Formatted(
          "{} {} is not reached by any sample size: with {} {} the expected power stays below {}, the probability that "
          "the effect has the direction expected.",
          Input(0), Figure(0), Input(1), Figure(1), Rounded(2));
    case Code::SizesNotFound: return SizesNotFound();
    case Code::NotComputable:
      return Formatted("These inputs have no answer: {} cannot be computed.", Wording(*problem_.question));
    case Code::Stopped: return "The computation was stopped; there is no answer.";
    default: return SentenceOnDesigns();
  }
}

}  // namespace

std::string SentenceTemplate(const Problem& problem) {
  return Sentence(problem, [](std::string_view name) { return Formatted("{{{}}}", name); });
}

std::string Sentence(const Problem& problem, const NameOfInput& name) {
  return WordsOfProblem(problem, name).Sentence();
}

std::string Wording(Question question) {
  switch (question) {
    case Question::Power: return "the power";
    case Question::SampleSize: return "the sample size";
    case Question::HalfWidth: return "the half-width";
    case Question::SampleSizeForHalfWidth: return "the sample size for a half-width";
    case Question::EffectSizes: return "the effect sizes";
  }
  return "";
}

}  // namespace planner
