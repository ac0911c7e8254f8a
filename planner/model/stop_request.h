#ifndef KELPOWER_PLANNER_MODEL_STOP_REQUEST_H
#define KELPOWER_PLANNER_MODEL_STOP_REQUEST_H

namespace planner {

/// Lets a front end end a long computation.
class StopRequest {
public:
  virtual ~StopRequest() = default;

  /// Asked between steps, in the thread that computes. Once it has answered true it must go on to.
  virtual bool ShouldStop() = 0;

  /// As the core asks it.
  bool operator()() { return ShouldStop(); }
};

}  // namespace planner

#endif
