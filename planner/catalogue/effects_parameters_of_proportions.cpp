#include "catalogue/effects_parts.h"

namespace planner {

void AddParametersOfProportions(std::vector<Parameter>& parameters) {
  parameters.insert(
      parameters.end(),
      {List("proportions", "proportions", "proportions in two groups").Length(2).AtLeast(0).AtMost(1),
       List("events", "events", "numbers of people in two groups who had the event").Length(2).Whole().AtLeast(0),
       List("counts", "counts", "a table of counts: with and without the event in the first group, then in the second")
           .Length(4)
           .Whole()
           .AtLeast(0)
           .AtMost(1e9),
       Number("proportion1", "first proportion", "proportion in the first group, that of reference")
           .AtLeast(0)
           .AtMost(1),
       Number("odds-ratio", "odds ratio", "odds in the second group over those in the first").Above(0),
       Number("risk-ratio", "risk ratio", "second proportion over the first").AtLeast(0),
       Number("risk-difference", "risk difference", "second proportion minus the first").AtLeast(-1).AtMost(1),
       Number("effect-h", "effect size h", "Cohen's h: second proportion minus the first, as angles").Alias("h")});
}

}  // namespace planner
