#ifndef KELPOWER_CLI_FITTING_H
#define KELPOWER_CLI_FITTING_H

#include "model/test.h"

/// Whether a question of the test, or a conversion of effect sizes, takes all these inputs together; some may still be
/// missing.
bool GoTogether(const planner::Test& test, const planner::Names& inputs);

#endif
