#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/repeated_measures.h"

namespace planner {
namespace {

using kelpower::anova::RepeatedEffect;
using kelpower::anova::RepeatedF;

Parameter Effect() {
  return OneOf("effect", "effect tested", "effect to test",
               {{"between", CodeOf(RepeatedEffect::Between), "effect between groups"},
                {"within", CodeOf(RepeatedEffect::Within), "effect within subjects"},
                {"interaction", CodeOf(RepeatedEffect::Interaction), "interaction of groups and measurements"}});
}

/// The words say what is divided by what.
Parameter KindOfF() {
  return OneOf("f-of", "f is of", "what the effect size is of: the means, a sample's analysis, or Cohen's f",
               {{"means", CodeOf(RepeatedF::Means), "means"},
                {"sample", CodeOf(RepeatedF::Sample), "sample"},
                {"cohen", CodeOf(RepeatedF::Cohen), "Cohen"}})
      .Default(std::string("means"));
}

}  // namespace

std::vector<Parameter> ParametersOfRepeatedMeasures() {
  return {
      Effect(),
      Number("measurements", "measurements", "number of measurements of each subject")
          .As(Role::Shape)
          .Whole()
          .AtLeast(2)
          .AtMost(1000),
      List("means", "means", "mean expected of each measurement, a row for each group").Columns("measurements"),
      List("coefficients", "contrast coefficients",
           "in place of all differences of the measurements: one for each, with a sum of 0")
          .As(Role::Layout),
      Number("sd", "standard deviation", "standard deviation of one measurement within the groups").Above(0),
      Number("effect-f", "effect size f", "standard deviation of the effect over that which f-of says")
          .Alias("f")
          .AtLeast(0)
          .AtMost(1e6),
      Number("eta-squared", "partial eta squared", "f^2 / (1 + f^2) of the same f").AtLeast(0).Below(1),
      KindOfF(),
      Number("correlation", "correlation", "correlation of any two measurements of a subject").Above(-1).Below(1),
      Number("epsilon", "epsilon", "how equal the correlations are (Greenhouse and Geisser); 1 where they are equal")
          .Above(0)
          .AtMost(1)
          .Default(1.0),
      PerGroup("n", "group sizes", "subjects in each group")
          .Alias("group-sizes")
          .Spreads()
          .Whole()
          .AtLeast(1)
          .AtMost(1e9),
      AllocationRatios(),
      Number("groups", "number of groups", "number of groups; 1 where nothing tells it")
          .As(Role::Shape)
          .Whole()
          .AtLeast(1)
          .AtMost(10000),
  };
}

}  // namespace planner
