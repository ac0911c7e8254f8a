#ifndef KELPOWER_PLANNER_CATALOGUE_TESTS_H
#define KELPOWER_PLANNER_CATALOGUE_TESTS_H

#include "model/test.h"

// The descriptions, one file each; catalogue.cpp lists them.
namespace planner {

Test AnovaTest();
Test ContrastTest();
Test PairwiseTest();
Test MeanTest();
Test PairedMeansTest();
Test TwoMeansTest();
Test ProportionTest();
Test TwoProportionsTest();
Test PairedProportionsTest();
Test PearsonTest();
Test SpearmanTest();
Test PartialTest();
Test TwoCorrelationsTest();
Test DependentCorrelationsTest();
Test RegressionTest();

}  // namespace planner

#endif
