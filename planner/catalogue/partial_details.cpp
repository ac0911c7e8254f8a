#include "catalogue/correlation_details.h"
#include "catalogue/details.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

}  // namespace

Details DetailsOfPartial(Question question, const Inputs& in) {
  const double k = in.Has("partialled-out") ? in.Number("partialled-out") : 0;
  if (!IsAboutPower(question)) {
    return DetailsOfPearsonInterval({correlation::Confidence(in.Alpha()), in.Number("r"), k, false}, in);
  }
  Details details = DetailsOfPearsonTest({{in.Alpha(), in.Flag("one-sided")}, k, true}, in);
  details.equivalents.push_back(
      {.program = "SAS",
       .call = "proc power; onecorr dist=fisherz npartialvars={partialled-out} nullcorr={null} corr={r} sides={sides} "
               "alpha={alpha} ntotal={n-or-dot} power={power-or-dot}; run;"});
  return details;
}

}  // namespace planner
