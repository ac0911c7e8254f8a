#ifndef KELPOWER_TESTS_ENGINE_WATCH_H
#define KELPOWER_TESTS_ENGINE_WATCH_H

#include <string>

namespace keltest {

/// Ends the program when a call takes too long, and says which. Processor time is measured, in short slices, so that
/// neither a busy machine matters nor one that stands still for a while. One at a time.
class Watch {
public:
  explicit Watch(const std::string& call);
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
};

}  // namespace keltest

#endif
