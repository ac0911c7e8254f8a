#include <string>

#include "catalogue/two_proportions.h"

namespace planner {
namespace {

using kelpower::proportions::TwoProportionTest;

std::string StandardError(const Inputs& in) {
  if (TestOf(in) != TwoProportionTest::Z && TestOf(in) != TwoProportionTest::T) return "";
  return IsPooled(in) ? "pooled" : "unpooled";
}

std::string TailsInWords(const Inputs& in) {
  if (!IsConditional(in) || in.Flag("one-sided")) return "";
  return "at most half of the level in each tail";
}

/// The arcsine test corrects without being asked.
std::string Correction(const Inputs& in) {
  return TestOf(in) == TwoProportionTest::Arcsine ? "half an observation in each group" : "";
}

}  // namespace

std::vector<Assumption> AssumptionsOfTwoProportions() {
  return {
      {.name = "standard-error",
       .label = "standard error",
       .needs = {"method", "unpooled"},
       .call = StandardError,
       .wording = "<0> "},
      {.name = "tails",
       .label = "tails of the test",
       .needs = {"method", "one-sided"},
       .call = TailsInWords,
       .wording = ", with <0>,"},
      {.name = "corrected",
       .label = "corrected for continuity by",
       .needs = {"method", "correction"},
       .call = Correction,
       .wording = ", corrected by <0>,"},
  };
}

}  // namespace planner
