#include <algorithm>

#include "catalogue/group_parameters.h"
#include "catalogue/tukey.h"
#include "comparisons/tukey.h"

namespace planner {
namespace {

Condition EqualFor(Name list, std::string sentence) {
  return {.code = "equal-sizes",
          .about = {list},
          .holds = list == Name("n") ? [](const Inputs& in) { return IsAboutOnePair(in) || AreEqual(in, "n"); }
                                     : [](const Inputs& in) { return IsAboutOnePair(in) || AreEqual(in, "ratios"); },
          .sentence = std::move(sentence)};
}

Condition FewEnough(Name effect) {
  return {.code = "too-many-groups",
          .about = {effect},
          .holds = [](const Inputs& in) { return in.Has("pair") || in.Groups() <= kelpower::comparisons::mostGroups; },
          .sentence = "The power for any pair is computed for up to 1000 groups; name one of the pairs."};
}

bool DiffersSomewhere(const Inputs& in) {
  if (in.Has("pair")) return EffectOfTukeyPair(in) != 0;
  const Numbers& means = in.List("means");
  return std::any_of(means.begin(), means.end(), [&](double mean) { return mean != means.front(); });
}

}  // namespace

std::vector<Condition> ConditionsOfTukey() {
  return {
      PairDiffers(),
      PairExists(),
      EqualFor("n", "{n} are unequal: for any pair of groups there is only a power at equal sizes; name one {pair}."),
      EqualFor("ratios",
               "{ratios} are unequal: for any pair of groups there is only a power at equal sizes; name one {pair}."),
      FewEnough("means"),
      FewEnough("effect-d"),
      ErrorDegrees(),
  };
}

std::vector<Condition> SizeExistsForTukey() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = DiffersSomewhere,
       .sentence = "The means are equal: without a difference, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-d"},
       .holds = [](const Inputs& in) { return in.Number("effect-d") != 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

}  // namespace planner
