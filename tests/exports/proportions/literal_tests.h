#ifndef KELPOWER_TESTS_EXPORTS_PROPORTIONS_LITERAL_TESTS_H
#define KELPOWER_TESTS_EXPORTS_PROPORTIONS_LITERAL_TESTS_H

#include "kelpower.h"

// The exact tests done the slow way, one count and one distribution function after the other, as they are defined. The
// library must give the same answers, and ask a StopRequest as often.

namespace literal {

double OneSamplePower(double sampleSize, double altProportion, double nullProportion, int oneSided, double alpha,
                      StopRequest* cancel);

double PairedPower(double sampleSize, double discordant12, double discordant21, int oneSided, double alpha,
                   StopRequest* cancel);

}  // namespace literal

#endif
