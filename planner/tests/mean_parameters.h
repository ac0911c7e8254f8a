#pragma once

#include <string>

#include "planner/parameter.h"

// Parameters that the tests of means share.
namespace planner {

/// The size of a single sample; `meaning` says what it counts.
Parameter SingleSize(std::string meaning);
Parameter EffectD(std::string meaning);
Parameter OneSided();

extern const char* const noEffectD;

}  // namespace planner
