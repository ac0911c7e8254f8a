#include "solve/row_results.h"

#include <limits>
#include <optional>

namespace planner {

std::vector<ResultColumn> ResultColumnsOf(const PreparedQuestion& question) {
  std::vector<ResultColumn> columns = ResultColumns(question.AskedTest(), question.ChosenRoute(), question.SolvedFor(),
                                                    OffersOf(question.Design()), question.IsUneven());
  std::erase_if(columns, [&](const ResultColumn& column) {
    return column.derived && !IsTold(question.ChosenRoute(), *column.derived, question.Design());
  });
  return columns;
}

Numbers SizesOf(const PreparedQuestion& question, const ResultColumn& column) {
  if (column.isLasting) return question.LastingSizes();
  const Numbers& sizes = question.SizesOfAnswer();
  return column.planned == Planned::None ? sizes : PlannedSizes(column.planned, question.Design(), sizes);
}

namespace {

double TotalSize(const PreparedQuestion& question, const ResultColumn& column) {
  if (column.planned != Planned::None) return TotalOf(SizesOf(question, column));
  return TotalOf(column.isLasting ? question.LastingSizes() : question.SizesOfAnswer());
}

}  // namespace

double NumberOf(const PreparedQuestion& question, const ResultColumn& column, double value) {
  constexpr double missing = std::numeric_limits<double>::quiet_NaN();
  if (const std::optional<double> figure = question.Figure(column.planned)) return *figure;
  switch (column.reading) {
    case Reading::Figure: return column.derived ? question.FigureOf(*column.derived) : question.FoundUnknown();
    case Reading::Sizes: return missing;
    case Reading::Size: return TotalSize(question, column);
    case Reading::Power:
    case Reading::HalfWidth: return value;
  }
  return missing;
}

}  // namespace planner
