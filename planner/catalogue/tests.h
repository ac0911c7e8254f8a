#ifndef KELPOWER_PLANNER_CATALOGUE_TESTS_H
#define KELPOWER_PLANNER_CATALOGUE_TESTS_H

#include "model/test.h"

// The descriptions, one file each; catalogue.cpp lists them.
namespace planner {

Test AnovaTest();
Test ContrastTest();
Test PairwiseTest();
Test FactorialTest();
Test AncovaTest();
Test RepeatedMeasuresTest();
Test MeanTest();
Test PairedMeansTest();
Test TwoMeansTest();
Test CrossoverTest();
Test ProportionTest();
Test TwoProportionsTest();
Test PairedProportionsTest();
Test PearsonTest();
Test SpearmanTest();
Test PartialTest();
Test TwoCorrelationsTest();
Test DependentCorrelationsTest();
Test RegressionTest();
Test GoodnessOfFitTest();
Test ContingencyTest();
Test VarianceTest();
Test TwoVariancesTest();
Test MannWhitneyTest();
Test OrdinalTest();
Test SignedRankTest();
Test TukeyTest();
Test DunnettTest();

}  // namespace planner

#endif
