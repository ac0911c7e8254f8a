#include <cmath>
#include <numeric>

#include "catalogue/ordinal.h"
#include "catalogue/ranks.h"

namespace planner {
namespace {

using kelpower::ranks::OrdinalMethod;

bool SumsToOne(const Numbers& probabilities) {
  constexpr double rounding = 0.005 * (1 + 1e-12);
  return std::fabs(std::accumulate(probabilities.begin(), probabilities.end(), 0.0) - 1) <= rounding;
}

bool IsLarge(const Inputs& in) {
  const kelpower::ranks::OrdinalTest test = OrdinalTestOf(in);
  return kelpower::ranks::CanRejectTwoGroups(test.sides, test.alpha, in.List("n")[0], in.List("n")[1]);
}

/// The probabilities of two lists are not all in one category.
bool IsSpread(const Inputs& in) { return !std::isnan(OrdinalExcess(in)); }

bool Overlap(const Inputs& in) {
  return OrdinalTestOf(in).method != OrdinalMethod::LogOdds || std::fabs(OrdinalExcess(in)) < 0.5;
}

Condition ProbabilitiesOf(Name name) {
  return {.code = "probabilities",
          .about = {name},
          .holds = [=](const Inputs& in) { return SumsToOne(in.List(name)); },
          .sentence = "The entries of {" + std::string(name.Text()) +
                      "} must sum to 1; a sum within 0.005 of it is taken as rounded."};
}

}  // namespace

std::vector<Condition> ConditionsOfOrdinal() {
  return {
      {.code = "categories",
       .about = {"probabilities1", "probabilities2"},
       .holds = [](const Inputs& in) { return in.List("probabilities1").size() == in.List("probabilities2").size(); },
       .sentence = "{probabilities1} and {probabilities2} must have as many entries: one for each category, 0 where it "
                   "does not occur."},
      ProbabilitiesOf("probabilities1"),
      ProbabilitiesOf("probabilities2"),
      {.code = "one-category",
       .about = {"probabilities1", "probabilities2"},
       .holds = IsSpread,
       .sentence = "{probabilities1} and {probabilities2} leave a single category: there is nothing to rank."},
      {.code = "one-category",
       .about = {"probabilities1", "odds-ratio"},
       .holds = IsSpread,
       .sentence = "{probabilities1} leaves a single category: there is nothing to rank."},
      {.code = "no-overlap",
       .about = {"probabilities1", "probabilities2", "method"},
       .holds = Overlap,
       .sentence = "The categories of {probabilities1} and {probabilities2} do not overlap, so that {method} "
                   "obrien-castelloe has no finite log odds: give {method} happ-bathke-brunner."},
      {.code = "whitehead",
       .about = {"probabilities2", "method"},
       .holds = [](const Inputs& in) { return OrdinalTestOf(in).method != OrdinalMethod::ProportionalOdds; },
       .sentence = "{method} whitehead needs {odds-ratio} in place of {probabilities2}."},
      {.code = "too-small",
       .about = {"n"},
       .holds = IsLarge,
       .sentence = "{n} is too small for {alpha}: not even groups that do not overlap would be rejected."},
  };
}

std::vector<Condition> SizeExistsForOrdinal() {
  return {
      {.code = "no-effect",
       .about = {"probabilities1", "probabilities2"},
       .holds = [](const Inputs& in) { return std::fabs(OrdinalExcess(in)) > 1e-14; },
       .sentence = "Neither group tends to higher categories: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"probabilities1", "odds-ratio"},
       .holds = [](const Inputs& in) { return in.Number("odds-ratio") != 1; },
       .sentence = "The odds ratio is 1: without an effect, no sample size reaches the power."},
  };
}

}  // namespace planner
