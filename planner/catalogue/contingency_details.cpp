#include "catalogue/contingency.h"
#include "catalogue/details.h"

namespace planner {

Details DetailsOfContingency(Question, const Inputs& in) {
  return DetailsOfChiSquare(in, DesignOfContingency(in), "Contingency tables");
}

}  // namespace planner
