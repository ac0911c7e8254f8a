#include "batch.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <span>
#include <utility>

#include "model/problem.h"

namespace kelplan {
namespace {

using planner::Reading;
using planner::RowStatus;

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/// The address of an element, by bytes, as it need not be aligned.
template <typename Number>
const char* At(const Number* first, std::ptrdiff_t stride, std::size_t row) {
  return reinterpret_cast<const char*>(first) + stride * static_cast<std::ptrdiff_t>(row);
}

double Load(const char* place) {
  double number = 0;
  std::memcpy(&number, place, sizeof number);
  return number;
}

template <typename Number>
void Store(Number* first, std::ptrdiff_t stride, std::size_t row, Number number) {
  std::memcpy(const_cast<char*>(At(first, stride, row)), &number, sizeof number);
}

std::ptrdiff_t StrideOf(const std::ptrdiff_t* strides, std::size_t i) {
  return strides ? strides[i] : static_cast<std::ptrdiff_t>(sizeof(double));
}

std::vector<BatchResult> ResultsOf(const planner::PreparedQuestion& question) {
  std::vector<BatchResult> results;
  for (const planner::ResultColumn& column : planner::ResultColumnsOf(question)) {
    const bool isOfGroups = column.reading == Reading::Sizes;
    const auto entries = isOfGroups ? static_cast<std::size_t>(question.Design().Groups()) : 1;
    for (std::size_t entry = 0; entry < entries; ++entry) results.push_back({column, entry});
  }
  return results;
}

double ValueOf(const planner::PreparedQuestion& question, const BatchResult& result, double value) {
  if (result.column.reading != Reading::Sizes) return planner::NumberOf(question, result.column, value);
  const planner::Numbers sizes = planner::SizesOf(question, result.column);
  return result.entry < sizes.size() ? sizes[result.entry] : none;
}

/// Of an unknown without an answer the whole question tells whether the inputs are at fault.
int StatusOfUnknown(planner::PreparedQuestion& question) {
  try {
    question.Solve();
  } catch (const planner::InputError&) {
    return KELPLAN_BAD_INPUT;
  } catch (const planner::Stopped&) {
    return KELPLAN_STOPPED;
  } catch (const planner::Failure&) {
  }
  return KELPLAN_NO_SOLUTION;
}

int StatusOf(planner::PreparedQuestion& question, RowStatus status) {
  switch (status) {
    case RowStatus::Answered: return KELPLAN_OK;
    case RowStatus::InputRefused: return KELPLAN_BAD_INPUT;
    case RowStatus::Stopped: return KELPLAN_STOPPED;
    case RowStatus::NoAnswer: break;
  }
  return question.SolvedFor() ? StatusOfUnknown(question) : KELPLAN_NO_SOLUTION;
}

}  // namespace

/// A copy of the question for one call at a time.
struct Batch::Worker {
  explicit Worker(const Batch& batch) : question(batch.question_), row(batch.sources_.size()) {}

  planner::PreparedQuestion question;
  planner::Numbers row;
};

/// A worker for the time of a call. The one that a call leaves serves the next, so that short calls need not copy.
class Batch::Lent {
public:
  explicit Lent(const Batch& batch) : batch_(batch), worker_(batch.spare_.exchange(nullptr)) {
    if (!worker_) worker_ = std::make_unique<Worker>(batch);
  }
  ~Lent() {
    worker_->question.SetStop(nullptr);
    delete batch_.spare_.exchange(worker_.release());
  }
  Lent(const Lent&) = delete;
  Lent& operator=(const Lent&) = delete;

  Worker& operator*() { return *worker_; }

private:
  const Batch& batch_;
  std::unique_ptr<Worker> worker_;
};

namespace {

/// Goes over the rows of one call.
class Run {
public:
  Run(planner::PreparedQuestion& question, planner::Numbers& scratch, const std::vector<std::size_t>& sources,
      const std::vector<BatchResult>& results, const Rows& rows)
      : question_(question), scratch_(scratch), sources_(sources), results_(results), rows_(rows) {}

  /// Answers a row and gives its status.
  int Answer(std::size_t row) {
    double value = none;
    int status = KELPLAN_NO_MEMORY;
    try {
      status = Evaluate(row, value);
    } catch (...) {
    }
    Write(row, status, value);
    return status;
  }

  void Leave(std::size_t row, int status) { Write(row, status, none); }

private:
  int Evaluate(std::size_t row, double& value) {
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      const std::size_t column = sources_[i];
      scratch_[i] = Load(At(rows_.columns[column], StrideOf(rows_.columnStrides, column), row));
    }
    const planner::Row answer = question_.Evaluate(std::span<const double>(scratch_));
    if (answer.status != RowStatus::Answered) return StatusOf(question_, answer.status);
    value = answer.value;
    question_.TakeUnknown();
    return KELPLAN_OK;
  }

  void Write(std::size_t row, int status, double value) {
    for (std::size_t i = 0; i < results_.size(); ++i) {
      if (!rows_.results[i]) continue;
      const double number = status == KELPLAN_OK ? ValueOf(question_, results_[i], value) : none;
      Store(rows_.results[i], StrideOf(rows_.resultStrides, i), row, number);
    }
    if (rows_.status) Store(rows_.status, rows_.statusStride, row, status);
  }

  planner::PreparedQuestion& question_;
  planner::Numbers& scratch_;
  const std::vector<std::size_t>& sources_;
  const std::vector<BatchResult>& results_;
  const Rows& rows_;
};

const std::vector<ColumnRequest>& Checked(const std::vector<ColumnRequest>& columns) {
  CheckColumns(columns);
  return columns;
}

}  // namespace

Batch::Batch(const Request& request, const std::vector<ColumnRequest>& columns)
    : Batch(request, Checked(columns), ValuesWithColumns(request, Checked(columns))) {}

Batch::Batch(const Request& request, const std::vector<ColumnRequest>& columns, const planner::InputValues& values)
    : columns_(columns), question_(request.AskedTest(), values), results_(ResultsOf(question_)) {
  question_.SetColumns(BoundColumns(question_, values, columns_, sources_));
}

Batch::~Batch() { delete spare_.load(); }

int Batch::Run(const Rows& rows, planner::StopRequest* stop) const {
  Lent lent(*this);
  Worker& worker = *lent;
  worker.question.SetStop(stop);
  kelplan::Run run(worker.question, worker.row, sources_, results_, rows);
  for (std::size_t row = 0; row < rows.count; ++row) {
    const int status = run.Answer(row);
    const bool mayBeUnasked = status == KELPLAN_BAD_INPUT;  // a row that is refused at once asks no one
    if (status != KELPLAN_STOPPED && !(mayBeUnasked && stop && stop->ShouldStop())) continue;
    for (std::size_t left = row + 1; left < rows.count; ++left) run.Leave(left, KELPLAN_STOPPED);
    return KELPLAN_STOPPED;
  }
  return KELPLAN_OK;
}

}  // namespace kelplan
