#include "watch.h"

#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace keltest {
namespace {

// Long enough for sanitizers, far too short for a method that does not end.
constexpr int kSecondsACall = 5;

char watchedCall[4096];

extern "C" void ReportAndAbort(int) {
  const char title[] = "does not return: ";
  if (write(STDERR_FILENO, title, sizeof title - 1) < 0 ||
      write(STDERR_FILENO, watchedCall, std::strlen(watchedCall)) < 0)
    _exit(2);
  std::abort();
}

void SetTimer(int seconds) {
  const itimerval timer{{0, 0}, {seconds, 0}};
  setitimer(ITIMER_PROF, &timer, nullptr);
}

}  // namespace

Watch::Watch(const std::string& call) {
  std::snprintf(watchedCall, sizeof watchedCall, "%s\n", call.c_str());
  std::signal(SIGPROF, ReportAndAbort);
  SetTimer(kSecondsACall);
}

Watch::~Watch() { SetTimer(0); }

}  // namespace keltest
