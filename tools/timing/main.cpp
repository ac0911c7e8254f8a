// Times some calls of the library and prints a line for each: a name, the answer and the seconds of a call, separated
// by tabs.

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "kelpower.h"

namespace {

constexpr double alpha = 0.05;
// Short passes, of which some fall between the turns of other programs.
constexpr int passes = 200;
constexpr double secondsOfPass = 0.001;

// Calls are not left out, for their sum is used.
volatile double sink;

template <typename Call>
double SecondsOfCalls(const Call& call, int count) {
  const auto start = std::chrono::steady_clock::now();
  double sum = 0;
  for (int i = 0; i < count; ++i) sum += call();
  sink = sum;
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Of the passes the shortest counts: what else the machine does can only lengthen them. The first ones also give a
// just-in-time compiler its time.
template <typename Call>
void Time(const char* name, const Call& call) {
  int count = 1;
  while (SecondsOfCalls(call, count) < secondsOfPass) count *= 2;
  double least = SecondsOfCalls(call, count);
  for (int i = 1; i < passes; ++i) least = std::min(least, SecondsOfCalls(call, count));
  std::printf("%s\t%.17g\t%.6g\n", name, call(), least / count);
}

double FirstSizeOfTwoGroups() {
  DoubleVector sizes;
  PowerReverseIndependentNondirectional(0.8, 1, 52, 10, 47, 10, sizes, alpha);
  return sizes[0];
}

}  // namespace

int main() {
  Time("Power of a two-sample t test", [] { return PowerIndependentNondirectional(64, 52, 10, 64, 47, 10, alpha); });
  Time("Power of a one-sided two-sample t test",
       [] { return PowerIndependentDirectional(64, 52, 10, 64, 47, 10, alpha); });
  Time("Power of Welch's t test", [] { return PowerIndependentNondirectional(64, 52, 10, 64, 47, 14, alpha); });
  Time("Sizes of a two-sample t test for power 0.8", FirstSizeOfTwoGroups);
}
