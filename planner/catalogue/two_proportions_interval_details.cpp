#include "catalogue/details.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_details.h"
#include "proportions/independent_interval.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::IndependentMethod;

struct Words {
  const char* formula;
  const char* source;
};

Words WordsOf(IndependentMethod method) {
  switch (method) {
    case IndependentMethod::Wald:
      return {"z sqrt(p1 q1 / n1 + p2 q2 / n2)", "Agresti (2013), Categorical Data Analysis, 3rd ed., section 3.1"};
    case IndependentMethod::AgrestiCaffo:
      return {"Wald's, with a success and a failure added to each group",
              "Agresti and Caffo (2000), American Statistician 54, 280-288"};
    case IndependentMethod::AgrestiCaffoUnbiased:
      return {"Wald's, with a success and a failure added to each group and divisors of unbiased variances",
              "Agresti and Caffo (2000), American Statistician 54, 280-288"};
    case IndependentMethod::HalfAdded:
      return {"Wald's, with half a success and half a failure added to each group",
              "Brown and Li (2005), Journal of Statistical Planning and Inference 130, 359-375"};
    case IndependentMethod::UnbiasedCorrected:
      return {"z sqrt(p1 q1 / (n1 - 1) + p2 q2 / (n2 - 1)) + 1 / (2 min(n1, n2))",
              "Hauck and Anderson (1986), American Statistician 40, 318-322"};
    case IndependentMethod::Newcombe:
      return {"half the length of the interval from Wilson's limits of the two proportions",
              "Newcombe (1998), Statistics in Medicine 17, 873-890, method 10"};
  }
  return {};
}

}  // namespace

Details IntervalDetailsOfTwoProportions(const Inputs& in) {
  const auto method = IndependentMethod(in.Choice("interval-method"));
  const bool isCorrected = in.Flag("correction");
  Details details;
  AddIntervalZ(details, in);
  details.value =
      proportions::IndependentInterval({method, FirstProportion(in), SecondProportion(in), in.Alpha(), isCorrected})
          .HalfWidth(in.List("n")[0], in.List("n")[1]);
  const Words words = WordsOf(method);
  details.formula = std::string("half-width = ") + words.formula + ", z = {quantile-z}" +
                    (isCorrected ? ", corrected for continuity" : "");
  details.source = words.source;
  if (method == IndependentMethod::Wald && !isCorrected) {
    details.equivalents = {{.program = "R",
                            .call = "qnorm(1 - {alpha} / 2) * sqrt({p1} * (1 - {p1}) / {n1} + {p2} * (1 - {p2}) / "
                                    "{n2})"}};
  }
  return details;
}

}  // namespace planner
