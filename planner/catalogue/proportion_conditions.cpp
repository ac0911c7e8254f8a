#include "catalogue/margins.h"
#include "catalogue/proportion.h"
#include "proportions/one_sample_interval.h"

namespace planner {
namespace {

using kelpower::proportions::OneSampleMethod;

bool CorrectsWhatCanBe(const Inputs& in) {
  const auto method = OneSampleMethod(in.Choice("interval-method"));
  return !in.Flag("correction") || method == OneSampleMethod::Wald || method == OneSampleMethod::Wilson;
}

}  // namespace

std::vector<Condition> ConditionsOfProportion() {
  return {
      {.code = "corrected-interval",
       .about = {"interval-method", "correction"},
       .holds = CorrectsWhatCanBe,
       .sentence = "{correction} goes with the intervals wald and wilson only."},
      {.code = "exact-correction",
       .about = {"exact", "correction"},
       .holds = [](const Inputs& in) { return !in.Flag("exact") || !in.Flag("correction"); },
       .sentence = "{exact} and {correction} exclude each other."},
  };
}

std::vector<Condition> SizeExistsForProportion() {
  return {
      {.code = "no-effect",
       .about = {"proportion", "null"},
       .holds = [](const Inputs& in) { return HasMargins(in) || in.Number("proportion") != in.Number("null"); },
       .sentence =
           "The proportion expected is the null proportion: without an effect, no sample size reaches the power."},
  };
}

}  // namespace planner
