#include "catalogue/contrast_details.h"
#include "catalogue/details.h"
#include "catalogue/pairwise.h"

namespace planner {

Details DetailsOfPairwise(Question question, const Inputs& in) {
  constexpr bool isOneSided = false;
  const double effect = IsAboutPower(question) ? EffectOfPairwise(in) : 0;
  return DetailsOf({ContrastOfPair(in), effect, isOneSided, LevelOfPair(in)}, question, in);
}

}  // namespace planner
