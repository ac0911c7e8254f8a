#include "catalogue/correlation.h"

#include "catalogue/correlation_parameters.h"
#include "model/chart.h"

namespace planner {
namespace {

Names Joined(Names names, const Names& more) {
  names.insert(names.end(), more.begin(), more.end());
  return names;
}

Names Effect(const CorrelationKind& kind) { return Joined({"r"}, kind.needs); }

std::vector<Route> Routes(const CorrelationKind& kind) {
  const Names effect = Effect(kind);
  const Names design = Joined(effect, {"n"});
  const Names options = Joined({"null", "one-sided"}, kind.accepts);
  return {
      {.question = Question::Power,
       .needs = design,
       .accepts = options,
       .exportName = "PowerbyOneSamp" + kind.exports,
       .value = kind.calls.power},
      {.question = Question::SampleSize,
       .needs = effect,
       .accepts = options,
       .exportName = "PowerReversebyOneSamp" + kind.exports,
       .sizes = kind.calls.size},
      {.question = Question::HalfWidth,
       .needs = design,
       .accepts = kind.accepts,
       .exportName = "HalfCIOneSamp" + kind.exports,
       .value = kind.calls.halfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = effect,
       .accepts = kind.accepts,
       .exportName = "PowerReversebyHalfCIOneSamp" + kind.exports,
       .sizes = kind.calls.sizeForHalfWidth},
  };
}

std::vector<ReportSentence> Sentences(const CorrelationKind& kind) {
  const std::string correlation = kind.wording + " correlation";
  const std::string test = "the {one-sided?one-sided:two-sided} test of a " + correlation + " of {null} by " +
                           (kind.testMethod.empty() ? kind.method : kind.testMethod) +
                           " at a significance level of {alpha}";
  const std::string interval =
      "{confidence} confidence interval of a " + correlation + " of {r}" + kind.given + " by " + kind.method;
  return {
      {Question::Power,
       "With {sizes}, " + test + " has a power of {power} to detect a correlation of {r}" + kind.given + "."},
      {Question::SampleSize, "To detect a correlation of {r}" + kind.given + " with a power of {target-power}, " +
                                 test + " needs {sizes}; its power is then {power}."},
      {Question::HalfWidth, "With {sizes}, the " + interval + " has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a " + interval +
           " with a half-width of at most {target-half-width}, the study needs {sizes}; the half-width is then "
           "{half-width}."},
  };
}

double Difference(const Inputs& in) { return in.Number("r") - in.Number("null"); }

/// The differences that the null correlation leaves.
Range AllDifferences(const Inputs& in) { return {-1 - in.Number("null"), 1 - in.Number("null")}; }

Axis DifferenceAxis() {
  return {.name = "difference",
          .title = "difference of the correlation from the null",
          .symbol = "difference",
          .needs = {"r", "null"},
          .limits = {-2, 2, true, true, false},
          .design = Difference,
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("r", at + design.Number("null")); },
          .scale = AllDifferences};
}

}  // namespace

Test CorrelationTest(const CorrelationKind& kind) {
  return {.name = kind.name,
          .title = "Test of a " + kind.wording + " correlation",
          .about = "Tests whether the " + kind.wording + " correlation of " + kind.definition + " is a given value.",
          .counted = "cases",
          .routes = Routes(kind),
          .unknowns = UnknownsOfCorrelation(),
          .sizeExists = {CorrelationsDiffer()},
          .sentences = Sentences(kind),
          .axes = {DifferenceAxis()},
          .effect = Difference};
}

}  // namespace planner
