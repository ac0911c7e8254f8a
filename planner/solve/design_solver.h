#ifndef KELPOWER_PLANNER_SOLVE_DESIGN_SOLVER_H
#define KELPOWER_PLANNER_SOLVE_DESIGN_SOLVER_H

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/problem.h"
#include "solve/design_row.h"
#include "solve/prepared_question.h"
#include "solve/row_results.h"

namespace planner {

/// The answer to one design among many, or why it has none. It is good until the next design is answered.
struct DesignAnswer {
  std::optional<Problem> problem;
  std::size_t shape = 0;                          // designs with the same have the same columns
  const std::vector<ResultColumn>* columns = {};  // null with a problem
  Numbers values;                                 // one for each column, NaN where a figure is missing
  double value = 0;                               // the power or half-width
  const PreparedQuestion* question = nullptr;     // that was answered; null with a problem

  bool IsAnswered() const { return !problem; }

  /// In place of the value of a column of sizes.
  Numbers SizesOf(const ResultColumn& column) const { return planner::SizesOf(*question, column); }
};

/// Answers designs of any tests, one after another. What designs of one shape share is prepared once, so that an answer
/// costs little more than the library's own call. A thread needs a solver of its own.
class DesignSolver {
public:
  /// `stop` may be null. When it has stopped a design, the problem is that of `Stopped`.
  explicit DesignSolver(StopRequest* stop = nullptr) : stop_(stop) {}

  const DesignAnswer& Solve(const DesignRow& row);

private:
  struct Shape {
    Shape(const DesignRow& row, StopRequest* stop);

    PreparedQuestion question;
    std::vector<std::size_t> sources;  // of each column of the question, among the numbers of a row; empty for the same
    std::vector<ResultColumn> columns;
    std::size_t number = 0;
  };

  Shape& ShapeOf(const DesignRow& row);
  Row Evaluate(Shape& shape, const DesignRow& row);
  void Collect(Shape& shape, double value);
  void Refuse(Problem problem);

  StopRequest* stop_;
  std::unordered_map<std::string, std::unique_ptr<Shape>> shapes_;
  Shape* last_ = nullptr;
  std::string lastShape_;
  std::size_t shapeCount_ = 0;
  Numbers arranged_;
  DesignAnswer answer_;
};

}  // namespace planner

#endif
