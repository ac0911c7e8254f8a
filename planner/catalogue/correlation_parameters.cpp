#include "catalogue/correlation_parameters.h"

#include <utility>

namespace planner {

Parameter Correlation(std::string meaning) {
  return Number("r", "correlation", std::move(meaning)).Alias("rho").Above(-1).Below(1);
}

Parameter NullCorrelation() {
  return Number("null", "null correlation", "correlation under the null hypothesis").Above(-1).Below(1).Default(0.0);
}

Parameter CaseCount(double smallest) {
  return Number("n", "sample size", "number of cases").Alias("sample-size").Whole().AtLeast(smallest).AtMost(1e9);
}

Parameter TowardsCorrelation() {
  return Flag("one-sided", "one-sided test", "test in the direction of the correlation expected only");
}

kelpower::correlation::Hypotheses HypothesesOf(const Inputs& in) { return {in.Number("r"), in.Number("null")}; }

Condition CorrelationsDiffer() {
  return {.code = "no-effect",
          .about = {"r", "null"},
          .holds = [](const Inputs& in) { return in.Number("r") != in.Number("null"); },
          .sentence =
              "The correlation expected is the null correlation: without an effect, no sample size reaches the power."};
}

}  // namespace planner
