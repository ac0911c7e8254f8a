#ifndef KELPOWER_EXPORTS_PROPORTIONS_RELATED_H
#define KELPOWER_EXPORTS_PROPORTIONS_RELATED_H

#include "proportions/mcnemar.h"

namespace kelpower::exports {

/// The power from the marginal proportions; -1 for invalid ones.
double PowerOfMarginals(proportions::McNemarTest& test, double size, double marginal1, double marginal2,
                        double correlation);

}  // namespace kelpower::exports

#endif
