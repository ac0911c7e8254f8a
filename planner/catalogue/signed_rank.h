#ifndef KELPOWER_PLANNER_CATALOGUE_SIGNED_RANK_H
#define KELPOWER_PLANNER_CATALOGUE_SIGNED_RANK_H

#include "model/inputs.h"
#include "model/test.h"
#include "ranks/signed_rank.h"

// What the parts of the signed-rank test share.
namespace planner {

kelpower::ranks::SignedRankTest SignedRankTestOf(const Inputs& in);

/// The probability that the average of two differences is above 0, given or from the shift.
double PositiveAverageOf(const Inputs& in);

Details DetailsOfSignedRank(Question question, const Inputs& in);
void AddWordsOfSignedRank(Test& test);

}  // namespace planner

#endif
