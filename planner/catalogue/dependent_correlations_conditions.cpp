#include "catalogue/dependent_correlations.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

/// With all six correlations the matrix is that of four variables.
bool IsShared(const Inputs& in) { return !ArePairsSeparate(in); }

bool IsPositiveDefinite(const Inputs& in) { return correlation::IsPositiveDefinite(SharedVariableOf(in)); }

bool DiffersFromNull(const Inputs& in) { return DifferenceOfZ(in) != 0; }

}  // namespace

std::vector<Condition> ConditionsOfDependentCorrelations() {
  return {
      {.code = "correlation-matrix",
       .about = {"r12", "r13", "r23"},
       .holds = [](const Inputs& in) { return !IsShared(in) || IsPositiveDefinite(in); },
       .sentence = "No three variables have the correlations {r12}, {r13} and {r23}: their matrix is not positive "
                   "definite."},
      {.code = "correlation-matrix",
       .about = {"r12", "r34", "r13", "r14", "r23", "r24"},
       .holds = [](const Inputs& in) { return correlation::IsPositiveDefinite(SeparatePairsOf(in)); },
       .sentence =
           "No four variables have the correlations {r12}, {r34}, {r13}, {r14}, {r23} and {r24}: their matrix is "
           "not positive definite."},
      {.code = "null-matrix",
       .about = {"r12", "r13", "r23", "null-correlations"},
       .holds =
           [](const Inputs& in) {
             return !IsShared(in) ||
                    correlation::IsPositiveDefinite(UnderNull(SharedVariableOf(in), NullCorrelationsOf(in)));
           },
       .sentence = "With both correlations compared as {null-correlations} says, no three variables have them: take "
                   "{null-correlations} average or expected."},
      {.code = "null-matrix",
       .about = {"r12", "r34", "r13", "r14", "r23", "r24", "null-correlations"},
       .holds =
           [](const Inputs& in) {
             return correlation::IsPositiveDefinite(UnderNull(SeparatePairsOf(in), NullCorrelationsOf(in)));
           },
       .sentence = "With both correlations compared as {null-correlations} says, no four variables have them: take "
                   "{null-correlations} expected."},
  };
}

std::vector<Condition> SizeExistsForDependentCorrelations() {
  return {
      {.code = "no-effect",
       .about = {"r12", "r13", "r23"},
       .holds = [](const Inputs& in) { return !IsShared(in) || DiffersFromNull(in); },
       .sentence = "{r12} and {r13} are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"r12", "r34"},
       .holds = DiffersFromNull,
       .sentence = "{r12} and {r34} are equal: without a difference, no sample size reaches the power."},
  };
}

}  // namespace planner
