#include "catalogue/details.h"
#include "catalogue/paired_proportions.h"
#include "proportions/related_interval.h"

namespace planner {

namespace proportions = kelpower::proportions;
using proportions::RelatedMethod;

Details IntervalDetailsOfPairedProportions(const Inputs& in) {
  const auto method = RelatedMethod(in.Choice("interval-method"));
  Details details;
  AddIntervalZ(details, in);
  details.value = proportions::RelatedInterval({method, DiscordantPairsOf(in), in.Alpha(), in.Flag("correction")})
                      .HalfWidth(in.Number("n"));
  const std::string variance = "z sqrt(p12 + p21 - (p12 - p21)^2) / sqrt(n), z = {quantile-z}";
  switch (method) {
    case RelatedMethod::Wald:
      details.formula = "half-width = " + variance + (in.Flag("correction") ? ", plus 1 / n" : "");
      details.source = "Agresti (2013), Categorical Data Analysis, 3rd ed., section 11.1";
      break;
    case RelatedMethod::AgrestiMin:
      details.formula = "half-width = " + variance + ", with 1/2 added to each kind of pair";
      details.source = "Agresti and Min (2005), Statistics in Medicine 24, 729-740";
      break;
    case RelatedMethod::BonettPrice:
      details.formula = "half-width = " + variance + ", with 1 added to each kind of discordant pair";
      details.source = "Bonett and Price (2012), Journal of Educational and Behavioral Statistics 37, 479-488";
      break;
  }
  if (method == RelatedMethod::Wald && !in.Flag("correction")) {
    details.equivalents = {
        {.program = "R", .call = "qnorm(1 - {alpha} / 2) * sqrt(({p12} + {p21} - ({p12} - {p21})^2) / {n})"}};
  }
  return details;
}

}  // namespace planner
