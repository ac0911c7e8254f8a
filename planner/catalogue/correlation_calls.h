#ifndef KELPOWER_PLANNER_CATALOGUE_CORRELATION_CALLS_H
#define KELPOWER_PLANNER_CATALOGUE_CORRELATION_CALLS_H

#include "catalogue/core.h"
#include "catalogue/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "correlation/pearson.h"
#include "correlation/spearman.h"

namespace planner {

/// The calls of one kind of correlation, from the functions that read its test and its interval from the inputs.
template <auto testOf, auto intervalOf>
CorrelationCalls CallsWith() {
  namespace core = kelpower::correlation;
  return {
      .power = [](const Inputs& in) { return OrNaN(core::Power(testOf(in), in.Number("n"), HypothesesOf(in))); },
      .size =
          [](const Inputs& in) {
            return RoundedUp(core::SizeForPower(testOf(in), HypothesesOf(in), in.Number("power"), StopOf(in)));
          },
      .halfWidth = [](const Inputs& in) { return core::HalfWidth(intervalOf(in), in.Number("n")); },
      .sizeForHalfWidth =
          [](const Inputs& in) {
            return RoundedUp(core::SizeForHalfWidth(intervalOf(in), in.Number("half-width"), StopOf(in)));
          },
  };
}

}  // namespace planner

#endif
