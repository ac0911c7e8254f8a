#ifndef KELPOWER_PLANNER_CATALOGUE_OFFERS_H
#define KELPOWER_PLANNER_CATALOGUE_OFFERS_H

#include "model/offers.h"

// What the tests offer of the circumstances of a study, each in the file <test>_offers.cpp.
namespace planner {

Offers OffersOfContrast();
Offers OffersOfMean();
Offers OffersOfPairedMeans();
Offers OffersOfTwoMeans();
Offers OffersOfProportion();
Offers OffersOfPearson();
Offers OffersOfPartial();

}  // namespace planner

#endif
