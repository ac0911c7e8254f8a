#ifndef KELPOWER_PYTHON_PREPARED_H
#define KELPOWER_PYTHON_PREPARED_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kelplan.h"

namespace kelpython {

/// A question prepared for many designs, with what its rows hold.
class Prepared {
public:
  /// A question that is refused is not ready, and its answer tells why.
  explicit Prepared(const char* request);

  bool IsReady() const { return batch_ != nullptr; }
  int Status() const { return status_; }
  const std::string& Answer() const { return answer_; }

  const kelplan_batch* Batch() const { return batch_.get(); }
  std::size_t Columns() const { return columns_; }
  /// The names of the results; sizes have one for each group.
  const std::vector<std::string>& Results() const { return results_; }

private:
  struct Releaser {
    void operator()(kelplan_batch* batch) const { kelplan_release(batch); }
  };

  int status_ = 0;
  std::string answer_;
  std::unique_ptr<kelplan_batch, Releaser> batch_;
  std::size_t columns_ = 0;
  std::vector<std::string> results_;
};

}  // namespace kelpython

#endif
