#ifndef KELPOWER_TESTS_SUPPORT_ANSWERS_H
#define KELPOWER_TESTS_SUPPORT_ANSWERS_H

#include "frame/answer.h"
#include "kelcommon/kel_mv.h"

namespace keltest {

inline double OrMissing(kelpower::Answer answer) { return answer.ValueOr(KelCommon::KelMV::Missing()); }

}  // namespace keltest

#endif
