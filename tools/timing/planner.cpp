// Times requests to the planner: of each line of the input, "name<tab>door<tab>request", it prints the name, the seconds
// of a call and the reply, separated by tabs.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

#include "kelplan.h"

namespace {

// Short passes, of which some fall between the turns of other programs.
constexpr int passes = 50;
constexpr double secondsOfPass = 0.005;

using Door = int (*)(const char* request, const kelplan_options* options, char** answer);

std::string Reply(Door door, const std::string& request) {
  char* answer = nullptr;
  door(request.c_str(), nullptr, &answer);
  std::string reply = answer ? answer : "";
  kelplan_free(answer);
  return reply;
}

double SecondsOfCalls(Door door, const std::string& request, int count) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < count; ++i) Reply(door, request);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Of the passes the shortest counts: what else the machine does can only lengthen them.
double SecondsOfCall(Door door, const std::string& request) {
  int count = 1;
  while (SecondsOfCalls(door, request, count) < secondsOfPass) count *= 2;
  double least = SecondsOfCalls(door, request, count);
  for (int i = 1; i < passes; ++i) least = std::min(least, SecondsOfCalls(door, request, count));
  return least / count;
}

}  // namespace

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    std::istringstream parts(line);
    std::string name, word, request;
    std::getline(parts, name, '\t');
    std::getline(parts, word, '\t');
    std::getline(parts, request);
    const Door door = word == "draw" ? kelplan_draw : kelplan_solve;
    std::printf("%s\t%.6g\t%s\n", name.c_str(), SecondsOfCall(door, request), Reply(door, request).c_str());
  }
}
