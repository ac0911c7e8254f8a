#ifndef KELPOWER_TESTS_SUPPORT_STOP_REQUESTS_H
#define KELPOWER_TESTS_SUPPORT_STOP_REQUESTS_H

#include "kelpower.h"
#include "support/counting_stop.h"

namespace keltest {

/// The request that exports take.
using CountingStop = CountingStopOf<StopRequest>;

}  // namespace keltest

#endif
