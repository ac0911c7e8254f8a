#include "catalogue/ranks.h"

#include "catalogue/unknowns.h"

namespace planner {

using kelpower::ranks::Parent;
using kelpower::ranks::Sides;

Parameter ParentDistribution() {
  return OneOf("parent", "parent distribution", "distribution of the values, which the effect shifts",
               {{"normal", CodeOf(Parent::Normal), "normal"},
                {"logistic", CodeOf(Parent::Logistic), "logistic"},
                {"laplace", CodeOf(Parent::Laplace), "Laplace"},
                {"uniform", CodeOf(Parent::Uniform), "uniform"},
                {"minimum", CodeOf(Parent::Minimum), "least favourable"}})
      .Default("normal");
}

Parameter RankMethods() {
  return OneOf("method", "method",
               "approximation of the power: by the asymptotic relative efficiency (of a shift unless given), by "
               "Noether's formula, or by Lehmann's",
               {{"are", CodeOf(RankMethod::Efficiency), "A.R.E."},
                {"noether", CodeOf(RankMethod::Noether), "Noether"},
                {"lehmann", CodeOf(RankMethod::Lehmann), "Lehmann"}});
}

Sides RankSidesOf(const Inputs& in) { return IsOneSided(in) ? Sides::One : Sides::Two; }

Parent ParentOf(const Inputs& in) { return Parent(in.Choice("parent")); }

RankMethod RankMethodOf(const Inputs& in) {
  if (in.Has("method")) return RankMethod(in.Choice("method"));
  return in.Has("effect-d") ? RankMethod::Efficiency : RankMethod::Noether;
}

Assumption NamedApproximation() {
  return {.name = "approximation",
          .label = "power by",
          .needs = {"one-sided"},
          .call = [](const Inputs& in) -> std::string {
            switch (RankMethodOf(in)) {
              case RankMethod::Efficiency: return "asymptotic relative efficiency";
              case RankMethod::Noether: return "Noether's formula";
              case RankMethod::Lehmann: break;
            }
            return "Lehmann's formula";
          },
          .wording = " (by <0>)"};
}

Condition OnlyNoetherFor(Name probability) {
  return {.code = "probability-alone",
          .about = {"method", probability},
          .holds = [](const Inputs& in) { return RankMethodOf(in) == RankMethod::Noether; },
          .sentence = "{method} noether alone goes with {" + std::string(probability.Text()) +
                      "}: the others need the shift, {effect-d}, and its {parent}."};
}

Condition HasProbability(Name probability) {
  return {.code = "no-effect",
          .about = {probability},
          .holds = [=](const Inputs& in) { return in.Number(probability) != 0.5; },
          .sentence = "The probability is one half: without an effect, no sample size reaches the power."};
}

Unknown UnknownRatioOfRanks() {
  Unknown ratio = UnknownRatio();
  ratio.reason = "a larger second group places the values of the first more surely";
  return ratio;
}

Unknown UnknownProbability(Name probability) {
  return {.input = probability,
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "the power grows with the distance of the probability from one half",
          .piece = [](const Inputs&) -> Piece {
            return {0.5, 1};
          },
          .pieceBelow = [](const Inputs&) -> Piece {
            return {0, 0.5};
          }};
}

}  // namespace planner
