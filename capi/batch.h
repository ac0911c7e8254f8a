#ifndef KELPOWER_CAPI_BATCH_H
#define KELPOWER_CAPI_BATCH_H

#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

#include "batch_columns.h"
#include "kelplan.h"
#include "request.h"
#include "solve/row_results.h"

namespace kelplan {

/// A number of each row that is answered.
struct BatchResult {
  planner::ResultColumn column;
  std::size_t entry = 0;  // of sizes, one for each group
};

/// Where a call of a batch reads and writes.
struct Rows {
  std::size_t count;
  const double* const* columns;
  const std::ptrdiff_t* columnStrides;
  double* const* results;
  const std::ptrdiff_t* resultStrides;
  int* status;
  std::ptrdiff_t statusStride;
};

/// A question with its route chosen, and what its rows give. Calls may run it side by side: each works with a copy of the
/// question.
class Batch {
public:
  /// Throws an InputError or a BadRequest.
  explicit Batch(const Request& request) : Batch(request, request.Columns()) {}
  ~Batch();
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;

  const planner::PreparedQuestion& Question() const { return question_; }
  const std::vector<ColumnRequest>& Columns() const { return columns_; }
  const std::vector<BatchResult>& Results() const { return results_; }

  /// Answers the rows. Gives the status of the call. `stop` may be null. Throws nothing but std::bad_alloc, and that
  /// before the first row.
  int Run(const Rows& rows, planner::StopRequest* stop) const;

private:
  struct Worker;
  class Lent;

  Batch(const Request& request, const std::vector<ColumnRequest>& columns);
  Batch(const Request& request, const std::vector<ColumnRequest>& columns, const planner::InputValues& values);

  std::vector<ColumnRequest> columns_;
  std::vector<std::size_t> sources_;  // of each column of the question, among the batch's
  planner::PreparedQuestion question_;
  std::vector<BatchResult> results_;
  mutable std::atomic<Worker*> spare_ = nullptr;  // a copy that a call has left for the next
};

}  // namespace kelplan

struct kelplan_batch {
  explicit kelplan_batch(const kelplan::Request& request) : batch(request) {}
  kelplan::Batch batch;
};

#endif
