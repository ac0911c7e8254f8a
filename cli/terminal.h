#pragma once

#include <cstdio>

#include "planner/render.h"

/// Colours when `stream` is a terminal that shows them and NO_COLOR is not set, else none.
planner::Paint PaintFor(std::FILE* stream);
