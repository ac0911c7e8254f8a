#include <algorithm>
#include <cmath>
#include <utility>

#include "solve/checks.h"
#include "solve/find_unknown.h"
#include "solve/prepared_parts.h"
#include "solve/prepared_question.h"
#include "solve/results.h"

namespace planner {
namespace {

std::vector<DerivedFigure> DerivedFigures(const PreparedQuestion& question) {
  std::vector<DerivedFigure> figures;
  for (const Derived& derived : question.AskedTest().derived) {
    if (!IsTold(question.ChosenRoute(), derived, question.Design())) continue;
    const double value = question.FigureOf(derived);
    if (!std::isnan(value)) figures.push_back({&derived, value});
  }
  return figures;
}

}  // namespace

Answer PreparedQuestion::Solve() {
  const Condition* failing = unknown_ ? nullptr : FirstFailing(conditions_, inputs_);
  if (failing) throw InputError(ProblemOf(*failing, Code::ConditionFails));
  failing = FailingEffect(inputs_);
  if (failing) throw NoSolution(ProblemOf(*failing, Code::NoEffect));
  const Row row = unknown_ ? FindNumber(inputs_) : Checked(inputs_);
  if (row.status == RowStatus::Stopped) throw Stopped();
  if (row.status != RowStatus::Answered) RejectUnanswered();
  TakeUnknown();
  Answer answer{&test_, &route_, inputs_, sizes_, row.value, unknown_};
  if (!AsksForSizes(route_.question)) {
    answer.sizes = test_.groups == 1 ? Numbers{inputs_.Number("n")} : inputs_.List("n");
  }
  if (answer.SizesFound()) answer.lastingSizes = lasting_;
  answer.assurance = assured_;
  answer.derived = DerivedFigures(*this);
  if (IsStopped()) throw Stopped();
  return answer;
}

double PreparedQuestion::FigureOf(const Derived& figure) const {
  const bool isAtSizesFound = AsksForSizes(route_.question) && IsOfSizes(figure);
  return isAtSizesFound ? figure.call(AtSizes(inputs_, sizes_)) : figure.call(inputs_);
}

void PreparedQuestion::RejectUnanswered() {
  const Question question = route_.question;
  Problem problem{.code = Code::NotComputable, .question = question};
  if (AsksForSizes(question)) {
    problem.code = Code::SizesNotFound;
    problem.inputs = Texts({*AskedBy(question)});
    problem.values = {inputs_.Number(*AskedBy(question))};
    if (assurance_) problem.words = {" with that assurance"};
    if (IsBeyondLimit(inputs_)) {
      problem.code = Code::BeyondPowerLimit;
      problem.inputs = Texts({"power", "effect-sd"});
      problem.values.insert(problem.values.end(),
                            {inputs_.Number("effect-sd"), test_.offers.expectedPowerLimit(inputs_)});
    }
    if (test_.largestExactSearch > 0 && inputs_.Has("exact") && inputs_.Flag("exact")) {
      problem.values.emplace_back(test_.largestExactSearch);
    }
  }
  if (unknown_) {
    Inputs inputs = inputs_;
    const UnknownSearch search = SearchUnknown(inputs);
    if (search.nearest) {
      problem.code = search.isReachedEverywhere ? Code::TargetReachedAlways : Code::TargetNotReached;
      problem.inputs = Texts({TargetName(), unknown_->input});
      problem.values = {inputs_.Number(TargetName()), search.nearest->value, search.nearest->at};
    } else if (const Condition* failing = FirstFailing(conditions_, inputs)) {
      throw InputError(ProblemOf(*failing, Code::ConditionFails));
    }
  }
  throw NoSolution(std::move(problem));
}

}  // namespace planner
