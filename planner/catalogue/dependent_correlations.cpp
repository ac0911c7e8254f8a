#include "catalogue/dependent_correlations.h"

#include <string>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;
using correlation::NullCorrelations;

Parameter CorrelationOf(Name name, const std::string& first, const std::string& second, const std::string& role) {
  return Number(name, "correlation of " + first + " and " + second,
                "correlation of variables " + first + " and " + second + role)
      .Above(-1)
      .Below(1);
}

std::vector<Parameter> Parameters() {
  return {
      CorrelationOf("r12", "1", "2", ", the first of those compared"),
      CorrelationOf("r13", "1", "3", ", compared with {r12} where {r34} is not given"),
      CorrelationOf("r34", "3", "4", ", compared with {r12} where no variable is in common"),
      CorrelationOf("r14", "1", "4", ""),
      CorrelationOf("r23", "2", "3", ""),
      CorrelationOf("r24", "2", "4", ""),
      CaseCount(4),
      TowardsCorrelation(),
      OneOf("null-correlations", "correlations under the null hypothesis",
            "what the two correlations compared are under the null hypothesis, for the standard error there",
            {{"first", CodeOf(NullCorrelations::First), "with both correlations as the first"},
             {"average", CodeOf(NullCorrelations::Average), "with both correlations as their average"},
             {"expected", CodeOf(NullCorrelations::Expected), "at the correlations expected"}})
          .Default("first"),
  };
}

double Power(const Inputs& in) {
  const correlation::Level level(in.Alpha(), in.Flag("one-sided"));
  const NullCorrelations null = NullCorrelationsOf(in);
  const double n = in.Number("n");
  return OrNaN(ArePairsSeparate(in) ? correlation::Power(level, SeparatePairsOf(in), null, n)
                                    : correlation::Power(level, SharedVariableOf(in), null, n));
}

std::vector<Route> Routes() {
  std::vector<Route> routes;
  for (const Names& correlations : {Names{"r12", "r13", "r23"}, Names{"r12", "r34", "r13", "r14", "r23", "r24"}}) {
    Names design = correlations;
    design.push_back("n");
    const Names options = {"one-sided", "null-correlations"};
    routes.push_back({.question = Question::Power, .needs = design, .accepts = options, .value = Power});
    routes.push_back({.question = Question::SampleSize, .needs = correlations, .accepts = options});
  }
  return routes;
}

}  // namespace

bool ArePairsSeparate(const Inputs& in) { return in.Has("r34"); }

correlation::SharedVariable SharedVariableOf(const Inputs& in) {
  return {in.Number("r12"), in.Number("r13"), in.Number("r23")};
}

correlation::SeparatePairs SeparatePairsOf(const Inputs& in) {
  return {in.Number("r12"), in.Number("r34"), in.Number("r13"), in.Number("r14"), in.Number("r23"), in.Number("r24")};
}

NullCorrelations NullCorrelationsOf(const Inputs& in) { return NullCorrelations(in.Choice("null-correlations")); }

double DifferenceOfZ(const Inputs& in) {
  return correlation::FisherDifference({in.Number("r12"), in.Number(ArePairsSeparate(in) ? Name("r34") : Name("r13"))});
}

Test DependentCorrelationsTest() {
  Test test{.name = "dependent-correlations",
            .title = "Test of two dependent correlations",
            .about =
                "Tests whether two Pearson correlations in one sample are the same: of variables 1 and 2 with 1 and "
                "3, or with 3 and 4.",
            .counted = "cases"};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = UnknownsOfDependentCorrelations();
  test.conditions = ConditionsOfDependentCorrelations();
  test.sizeExists = SizeExistsForDependentCorrelations();
  test.derived = {
      {.name = "effect-q", .label = "difference of Fisher's z", .needs = {"r12", "r13", "r23"}, .call = DifferenceOfZ}};
  test.effect = DifferenceOfZ;
  AddWordsOfDependentCorrelations(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
