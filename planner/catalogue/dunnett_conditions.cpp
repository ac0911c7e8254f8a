#include <algorithm>

#include "catalogue/dunnett.h"
#include "catalogue/group_parameters.h"
#include "comparisons/dunnett.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

Condition FewTimesControl(Name list, std::string sentence) {
  return {.code = "small-control",
          .about = {list},
          .holds =
              list == Name("n")
                  ? [](const Inputs& in) {
                      const Numbers& n = in.List("n");
                      return *std::max_element(n.begin(), n.end()) <= comparisons::mostTimesControl * n.front();
                    }
                  : [](const Inputs& in) {
                      const Numbers& ratios = in.List("ratios");
                      return *std::max_element(ratios.begin(), ratios.end()) <=
                             comparisons::mostTimesControl * ratios.front();
                    },
          .sentence = std::move(sentence)};
}

Condition FewEnough(Name about) {
  return {.code = "too-many-groups",
          .about = {about},
          .holds = [](const Inputs& in) { return in.Groups() <= comparisons::mostTreatments; },
          .sentence = "Dunnett's test is computed for up to 1000 groups, the control included."};
}

/// Whether the power for what is asked about may come near 1.
bool HasEffect(const Inputs& in) {
  const Numbers means = MeansOfDunnett(in);
  const auto differs = [&](double mean) { return in.Flag("one-sided") ? mean > means.front() : mean != means.front(); };
  if (in.Has("group")) return differs(means[AskedGroup(in)]);
  if (in.Flag("all-comparisons")) return std::all_of(means.begin() + 1, means.end(), differs);
  return std::any_of(means.begin() + 1, means.end(), differs);
}

}  // namespace

std::vector<Condition> ConditionsOfDunnett() {
  return {
      {.code = "group-exists",
       .about = {"group"},
       .holds = [](const Inputs& in) { return in.Number("group") <= in.Groups(); },
       .sentence = "{group} is beyond the number of groups."},
      {.code = "one-or-all",
       .about = {"group", "all-comparisons"},
       .holds = [](const Inputs& in) { return !in.Flag("all-comparisons"); },
       .sentence = "{group} asks for one comparison, {all-comparisons} for all of them."},
      FewEnough("means"),
      FewEnough("effect-d"),
      FewEnough("group"),
      FewTimesControl("n", "{n}: a group is more than 10000 times as large as the control, which is the first."),
      FewTimesControl("ratios",
                      "{ratios}: a group is more than 10000 times as large as the control, which is the first."),
      {.code = "small-level",
       .about = {"alpha"},
       .holds = [](const Inputs& in) { return in.Number("alpha") >= comparisons::leastDunnettLevel; },
       .sentence = "{alpha} must be at least 1e-14 for Dunnett's test."},
      ErrorDegrees(),
  };
}

std::vector<Condition> SizeExistsForDunnett() {
  constexpr const char* sentence =
      "A group that is to differ does not, or not in the direction of the test: no sample size reaches the power.";
  return {
      {.code = "no-effect", .about = {"means"}, .holds = HasEffect, .sentence = sentence},
      {.code = "no-effect", .about = {"effect-d"}, .holds = HasEffect, .sentence = sentence},
  };
}

}  // namespace planner
