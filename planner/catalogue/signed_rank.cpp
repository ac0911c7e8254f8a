#include "catalogue/signed_rank.h"

#include <cmath>
#include <utility>

#include "catalogue/mean_parameters.h"
#include "catalogue/ranks.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"

namespace planner {
namespace {

namespace ranks = kelpower::ranks;

std::vector<Parameter> Parameters() {
  return {
      EffectD("shift of the differences from 0 over their standard deviation"),
      ParentDistribution(),
      Number("positive-average", "probability of a positive average",
             "probability that the average of two of the differences is above 0")
          .AtLeast(0)
          .AtMost(1),
      RankMethods(),
      SingleSize("observations in the sample, or pairs"),
      OneSided(),
  };
}

kelpower::Answer PowerOf(const Inputs& in) {
  const ranks::SignedRankTest design = SignedRankTestOf(in);
  const double n = in.Number("n");
  switch (RankMethodOf(in)) {
    case RankMethod::Efficiency: return ranks::PowerByEfficiency(design, ParentOf(in), in.Number("effect-d"), n);
    case RankMethod::Noether: return ranks::PowerByNoether(design, PositiveAverageOf(in), n);
    case RankMethod::Lehmann: break;
  }
  return ranks::PowerByMoments(design, ParentOf(in), in.Number("effect-d"), n);
}

double Power(const Inputs& in) { return OrNaN(PowerOf(in)); }

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"effect-d", "n"},
       .accepts = {"parent", "method", "one-sided"},
       .value = Power},
      {.question = Question::Power,
       .needs = {"positive-average", "n"},
       .accepts = {"method", "one-sided"},
       .value = Power},
      {.question = Question::SampleSize, .needs = {"effect-d"}, .accepts = {"parent", "method", "one-sided"}},
      {.question = Question::SampleSize, .needs = {"positive-average"}, .accepts = {"method", "one-sided"}},
  };
}

}  // namespace

ranks::SignedRankTest SignedRankTestOf(const Inputs& in) { return {RankSidesOf(in), in.Alpha()}; }

double PositiveAverageOf(const Inputs& in) {
  if (in.Has("positive-average")) return in.Number("positive-average");
  return ranks::PositiveAverage(ParentOf(in), in.Number("effect-d"));
}

Test SignedRankTest() {
  Test test{.name = "signed-rank",
            .title = "Wilcoxon signed-rank test of one sample or of pairs",
            .about = "Tests by signed ranks whether values, or the differences of pairs, are centred at 0."};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = {UnknownEffectD(), UnknownProbability("positive-average")};
  test.conditions = {
      OnlyNoetherFor("positive-average"),
      {.code = "too-small",
       .about = {"n"},
       .holds = [](const Inputs& in) { return !std::isnan(Power(in)); },
       .sentence = "{n} is too small for {alpha}: not even differences of a single sign would be rejected."}};
  test.sizeExists = {HasEffectD(), HasProbability("positive-average")};
  test.derived = {{.name = "positive-average",
                   .label = "probability of a positive average",
                   .needs = {"effect-d", "parent"},
                   .call = PositiveAverageOf}};
  test.effect = [](const Inputs& in) {
    return in.Has("effect-d") ? in.Number("effect-d") : PositiveAverageOf(in) - 0.5;
  };
  test.assumptions = {NamedApproximation()};
  AddWordsOfSignedRank(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
