#include "solve/design_solver.h"

#include <algorithm>
#include <utility>

#include "solve/solve.h"

namespace planner {
namespace {

// A file may have as many shapes as designs; beyond this all are prepared anew.
constexpr std::size_t mostShapes = 256;

bool AreInOrder(const std::vector<std::size_t>& sources) {
  for (std::size_t i = 0; i < sources.size(); ++i) {
    if (sources[i] != i) return false;
  }
  return true;
}

}  // namespace

DesignSolver::Shape::Shape(const DesignRow& row, StopRequest* stop)
    : question(row.AskedTest(), row.Values(), stop), columns(ResultColumnsOf(question)) {
  std::vector<Column> inputs;
  for (const auto& [parameter, first, count] : row.NumbersGiven()) {
    if (parameter->role == Role::Shape) continue;
    const std::size_t entries = parameter->IsList() ? question.Design().List(parameter->name).size() : 1;
    for (std::size_t entry = 0; entry < entries; ++entry) {
      inputs.push_back({parameter->name, entry});
      sources.push_back(count == 1 ? first : first + entry);  // one number stands for every group
    }
  }
  if (AreInOrder(sources) && sources.size() == row.AllNumbers().size()) sources.clear();
  question.SetColumns(std::move(inputs));
}

const DesignAnswer& DesignSolver::Solve(const DesignRow& row) {
  try {
    Shape& shape = ShapeOf(row);
    const Row found = Evaluate(shape, row);
    if (found.status == RowStatus::Stopped) throw Stopped();
    if (found.status == RowStatus::Answered) {
      Collect(shape, found.value);
      return answer_;
    }
    // The whole question says what is wrong.
    planner::Solve(row.AskedTest(), row.Values(), stop_);
    throw NoSolution({.code = Code::NotComputable, .question = shape.question.ChosenRoute().question});
  } catch (const Failure& failure) {
    Refuse(failure.problem);
  }
  return answer_;
}

DesignSolver::Shape& DesignSolver::ShapeOf(const DesignRow& row) {
  if (last_ && row.Shape() == lastShape_) return *last_;
  const auto known = shapes_.find(row.Shape());
  if (known != shapes_.end()) {
    last_ = known->second.get();
  } else {
    auto shape = std::make_unique<Shape>(row, stop_);
    shape->number = ++shapeCount_;
    if (shapes_.size() >= mostShapes) shapes_.clear();
    last_ = shape.get();
    shapes_.emplace(row.Shape(), std::move(shape));
  }
  lastShape_ = row.Shape();
  return *last_;
}

Row DesignSolver::Evaluate(Shape& shape, const DesignRow& row) {
  if (shape.sources.empty()) return shape.question.Evaluate(row.AllNumbers());
  arranged_.clear();
  for (std::size_t source : shape.sources) arranged_.push_back(row.AllNumbers()[source]);
  return shape.question.Evaluate(arranged_);
}

void DesignSolver::Collect(Shape& shape, double value) {
  PreparedQuestion& question = shape.question;
  question.TakeUnknown();
  answer_.problem.reset();
  answer_.shape = shape.number;
  answer_.columns = &shape.columns;
  answer_.question = &question;
  answer_.value = value;
  answer_.values.clear();
  for (const ResultColumn& column : shape.columns) answer_.values.push_back(NumberOf(question, column, value));
}

void DesignSolver::Refuse(Problem problem) {
  answer_.problem = std::move(problem);
  answer_.columns = nullptr;
  answer_.question = nullptr;
  answer_.values.clear();
}

}  // namespace planner
