#include "catalogue/two_means.h"
#include "catalogue/unknowns.h"

namespace planner {

std::vector<Unknown> UnknownsOfTwoMeans() {
  return {
      UnknownEffectD(), UnknownMeanDifference(), UnknownSd("sd"), UnknownRatio(), UnknownSdOfInterval("sd"),
  };
}

}  // namespace planner
