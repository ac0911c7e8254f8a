#include "proportions/exact_search.h"

#include "frame/root_finders.h"

namespace kelpower {

namespace {

/// Hands the questions of a search on to the caller, and ends the search once it has met a size that is too large.
class SizeLimit : public StopRequest {
public:
  explicit SizeLimit(StopRequest* caller) : caller_(caller) {}

  void Meet(double size) { isExceeded_ = isExceeded_ || size > kLargestCount; }

  bool ShouldStop() override {
    if (caller_ != nullptr && caller_->ShouldStop()) return true;
    return isExceeded_;
  }

private:
  StopRequest* caller_;
  bool isExceeded_ = false;
};

}  // namespace

bool StopsWithin(StopRequest* stop, double steps) {
  if (stop == nullptr) return false;
  for (double step = 0; step < steps; ++step) {
    if (stop->ShouldStop()) return true;
  }
  return false;
}

double SolveExactSize(double target, ExactPower power, StopRequest* stop) {
  SizeLimit limit(stop);
  const auto objective = [&](double size) {
    limit.Meet(size);
    return power(size, stop) - target;
  };
  return SolveIntegerSmallest(SolveInteger(1, 400, objective, &limit), objective, &limit);
}

}  // namespace kelpower
