#ifndef KELPOWER_TESTS_ENGINE_ACHIEVED_H
#define KELPOWER_TESTS_ENGINE_ACHIEVED_H

#include <array>
#include <map>
#include <string>
#include <vector>

#include "engine.h"

namespace keltest {

/// The largest difference per metric that the library was measured to have, by function.
using Achieved = std::map<std::string, std::array<double, metricCount>>;

/// The differences that a run met.
Achieved Measured(const std::map<std::string, Summary>& summaries);

/// Reads stored differences; an absent file holds none. Throws when the file is not of the form that is written.
Achieved ReadAchieved(const std::string& path);

/// Writes them, a line a function.
void WriteAchieved(const std::string& path, const Achieved& achieved);

/// What has got worse than stored: differences that grew by half, and functions that have none stored.
std::vector<std::string> Growth(const Achieved& stored, const Achieved& measured);

}  // namespace keltest

#endif
