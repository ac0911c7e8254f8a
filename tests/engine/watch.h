#ifndef KELPOWER_TESTS_WATCH_H
#define KELPOWER_TESTS_WATCH_H

#include <string>

namespace keltest {

/// Ends the program when a call takes too long, and says which. Processor time is measured, so that a busy machine
/// does not matter.
class Watch {
public:
  explicit Watch(const std::string& call);
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
};

}  // namespace keltest

#endif
