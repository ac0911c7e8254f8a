#pragma once

#include <string>

#include "planner/chart.h"
#include "planner/parameter.h"

// Parameters that the tests of means share.
namespace planner {

/// The size of a single sample; `meaning` says what it counts.
Parameter SingleSize(std::string meaning);
Parameter EffectD(std::string meaning);
Parameter OneSided();

/// An axis of effect sizes of either direction, whose design is `effect-d`: from 0 to twice the design's, or to 1.5 for
/// a design without an effect.
Axis EffectDAxis();
/// An axis of sizes of a single sample, from 2 to twice the design's; `title` says what they count.
Axis SingleSizeAxis(std::string title);

extern const char* const noEffectD;

}  // namespace planner
