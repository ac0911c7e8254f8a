#include "catalogue/details.h"
#include "catalogue/goodness_of_fit.h"

namespace planner {

Details DetailsOfGoodnessOfFit(Question, const Inputs& in) {
  return DetailsOfChiSquare(in, DesignOfGoodnessOfFit(in), "Contingency tables");
}

}  // namespace planner
