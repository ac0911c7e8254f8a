#ifndef KELPOWER_PLANNER_SOLVE_PREPARED_QUESTION_H
#define KELPOWER_PLANNER_SOLVE_PREPARED_QUESTION_H

#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "model/answer.h"
#include "model/inputs.h"
#include "model/problem.h"
#include "model/test.h"
#include "solve/choose_route.h"
#include "solve/find_unknown.h"
#include "solve/plan.h"
#include "solve/whole_sizes.h"

namespace planner {

/// What a prepared question gives for one design.
enum class RowStatus {
  Answered,
  InputRefused,  // a value beyond its limits, or a condition that fails
  NoAnswer,      // no size reaches the target, or the power cannot be computed
  Stopped,
};

struct Row {
  RowStatus status;
  double value;  // the power or half-width, with what was found; NaN unless answered
};

/// An input that varies from design to design: a number, or an entry of a list.
struct Column {
  Name name;
  std::size_t entry = 0;
};

/// A question with its route chosen, to be asked of many designs. Answering one for its power or half-width takes no
/// memory and looks nothing up: it costs little more than the library's own call. Copies serve threads side by side.
class PreparedQuestion {
public:
  /// `values` are those of the first design. The question and the route follow from them. Throws an InputError.
  ///
  /// The test and the request must outlive the question. `stop` may end a long computation; it may be null. Once it has
  /// answered true it must go on to.
  PreparedQuestion(const Test& test, const InputValues& values, StopRequest* stop = nullptr);

  /// Says which inputs the rows give. Throws an InputError when one is no number that was given, or is the number of
  /// groups, which decides how long the lists are.
  void SetColumns(std::vector<Column> columns);

  /// Answers the design whose varying inputs are the entries of `row`, in the order of the columns.
  Row Evaluate(std::span<const double> row);

  /// Answers the design that the inputs describe. Their conditions are checked but not their limits, because charts go
  /// where no input could, such as to a fraction of an observation.
  Row Evaluate(const Inputs& inputs);

  /// Who is asked to stop from here on, of a copy that serves another call; null for none.
  void SetStop(StopRequest* stop) { inputs_.SetStop(stop); }

  /// Lets what designs of the same sizes share be kept. The last digits of a value may then depend on it.
  void ExpectSharedSizes() {
    if (route_.surfaceValue) value_ = route_.surfaceValue;
  }

  /// The sizes that the last answer found.
  const Numbers& Sizes() const { return sizes_; }

  /// The sizes of the last answer of a test of groups, or those that it found.
  const Numbers& SizesOfAnswer() const { return AsksForSizes(route_.question) ? sizes_ : inputs_.List("n"); }

  /// Whether sizes are found of a power that jumps with the size; then those from which on all reach the target.
  bool IsUneven() const;
  const Numbers& LastingSizes() const { return lasting_; }

  /// That the interval of the data is as narrow as asked, at the sizes of the last answer; NaN where none is asked for.
  double Assured() const { return assured_; }

  /// The figure, of those that the circumstances of the study add and that is no number of people or clusters.
  std::optional<double> Figure(Planned planned) const;

  /// The figure of the last answer; one of sizes at those that were found.
  double FigureOf(const Derived& figure) const;

  /// What is solved for, or null; and its number in the last answer.
  const Unknown* SolvedFor() const { return unknown_; }
  double FoundUnknown() const { return found_; }

  /// Puts what was solved for in the last answer into the design, as figures that follow from it need.
  void TakeUnknown();

  /// The whole answer for the inputs as they are. Throws an InputError, a NoSolution, or Stopped.
  Answer Solve();

  const Test& AskedTest() const { return test_; }
  const Route& ChosenRoute() const { return route_; }
  const Inputs& Design() const { return inputs_; }

private:
  class Trial;  // of whole sizes

  struct BoundColumn {
    Column column;
    bool isEntry;
    Limits limits;
  };

  const Condition* FailingEffect(const Inputs& inputs) const;
  Row Checked(const Inputs& inputs);
  Row ValueOf(const Inputs& inputs) const;
  Row FindSizes(const Inputs& inputs);
  Row FindFrom(const Numbers& start, Trial& trial);
  Row AtUncountable(const Inputs& inputs, Numbers sizes);
  Row FindUnevenAssurance(const Inputs& inputs);
  Numbers Start(const Inputs& inputs, const WholeSizes& whole) const;
  bool IsAssuredUnevenly() const;
  bool IsBeyondLimit(const Inputs& inputs) const;
  bool IsFoundByPower(const Inputs& inputs) const;
  double FindUneven(const WholeSizes& whole, const Inputs& inputs, double number, Reaches reaches);
  Unevenness UnevennessOf(const Inputs& inputs) const;
  Row FindNumber(const Inputs& inputs);
  Name TargetName() const;
  UnknownSearch SearchUnknown(Inputs& inputs) const;
  Row ValueWith(Inputs& inputs, double at) const;
  [[noreturn]] void RejectUnanswered();
  bool IsStopped() const;

  PreparedQuestion(const Test& test, const Asked& asked, const InputValues& values, StopRequest* stop);

  const Test& test_;
  const Route& route_;
  const Unknown* unknown_;  // whose number brings the route's value to the target
  Inputs inputs_;
  std::vector<const Condition*> conditions_;
  std::vector<const Condition*> effects_;
  std::vector<const Condition*> sizeConditions_;  // of the sizes that are looked for
  std::vector<BoundColumn> columns_;
  Numbers sizes_;
  Evaluation value_;      // a copy of the route's own, which may keep something between its calls
  Evaluation assurance_;  // of the sizes that are looked for, where one is asked for
  double assured_ = std::numeric_limits<double>::quiet_NaN();
  double found_ = 0;  // of the unknown
  Numbers lasting_;   // the sizes from which on all reach an uneven power
};

}  // namespace planner

#endif
