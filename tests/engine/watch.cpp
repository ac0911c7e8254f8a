#include "watch.h"

#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace keltest {
namespace {

// Together five seconds: long enough for sanitizers, far too short for a method that does not end. A machine that
// stands still and lets its clocks run on costs the call one slice, however long it stood.
constexpr int slicesACall = 50;
constexpr int microsecondsASlice = 100000;

char watchedCall[4096];
volatile std::sig_atomic_t slicesLeft;

extern "C" void CountSlice(int) {
  if (--slicesLeft > 0) return;
  const char title[] = "does not return: ";
  if (write(STDERR_FILENO, title, sizeof title - 1) < 0 ||
      write(STDERR_FILENO, watchedCall, std::strlen(watchedCall)) < 0)
    _exit(2);
  std::abort();
}

void RepeatTimer(int microseconds) {
  const itimerval timer{{0, microseconds}, {0, microseconds}};
  setitimer(ITIMER_PROF, &timer, nullptr);
}

}  // namespace

Watch::Watch(const std::string& call) {
  std::snprintf(watchedCall, sizeof watchedCall, "%s\n", call.c_str());
  slicesLeft = slicesACall;
  std::signal(SIGPROF, CountSlice);
  RepeatTimer(microsecondsASlice);
}

Watch::~Watch() { RepeatTimer(0); }

}  // namespace keltest
