#ifndef KELPOWER_TESTS_EXPORTS_PROPORTIONS_INDEPENDENT_LITERAL_H
#define KELPOWER_TESTS_EXPORTS_PROPORTIONS_INDEPENDENT_LITERAL_H

#include "kelpower.h"
#include "proportions/independent_design.h"

namespace kelpower {

// The exact powers by their definitions: table by table and total by total, with no regard to speed. What the library
// computes by rows and kept terms is held against them.

/// The z, t and likelihood-ratio tests.
double LiteralEnumeratedPower(const proportions::IndependentDesign& test, double n1, double n2, double p1, double p2,
                              StopRequest* stop);

/// The conditional test.
double LiteralConditionalPower(const proportions::IndependentDesign& test, double n1, double n2, double p1, double p2,
                               StopRequest* stop);

double LiteralExactPower(const proportions::IndependentDesign& test, double n1, double n2, double p1, double p2,
                         StopRequest* stop);

}  // namespace kelpower

#endif
