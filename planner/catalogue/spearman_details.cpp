#include <cmath>

#include "catalogue/correlation_details.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/details.h"
#include "correlation/spearman.h"

namespace planner {

namespace correlation = kelpower::correlation;

Details DetailsOfSpearman(Question question, const Inputs& in) {
  const auto variance = correlation::RankVariance(in.Choice("variance"));
  const double n = in.Number("n");
  Details details;
  if (IsAboutPower(question)) {
    const correlation::SpearmanTest test{{in.Alpha(), in.Flag("one-sided")}, variance};
    details = DetailsOfShift(test.level, correlation::UnderAlternative(test, n, HypothesesOf(in)), in);
    details.formula += "; m = (atanh(r) - atanh(r0)) / standard error of z";
  } else {
    const double absoluteZ = std::abs(std::atanh(in.Number("r")));
    const correlation::SpearmanInterval interval{correlation::Confidence(in.Alpha()), in.Number("r"), variance};
    details = DetailsOfZInterval(in, correlation::StandardError(variance, n, in.Number("r"), absoluteZ),
                                 correlation::HalfWidth(interval, n));
    AddRInterval(details);
  }
  switch (variance) {
    case correlation::RankVariance::BonettWright:
      details.source = "Bonett and Wright (2000), Psychometrika 65, 23-28: variance of z (1 + r^2 / 2) / (n - 3)";
      break;
    case correlation::RankVariance::FiellerHartleyPearson:
      details.source = "Fieller, Hartley and Pearson (1957), Biometrika 44, 470-481: variance of z 1.06 / (n - 3)";
      break;
    case correlation::RankVariance::CarusoCliff:
      details.source =
          "Caruso and Cliff (1997), Educational and Psychological Measurement 57, 637-654: variance of z "
          "1 / (n - 2) + |z| / (6 n + 4 sqrt(n))";
      break;
  }
  return details;
}

}  // namespace planner
