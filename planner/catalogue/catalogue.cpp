#include "catalogue/catalogue.h"

#include "catalogue/tests.h"

namespace planner {

const std::vector<Test>& Tests() {
  static const std::vector<Test> tests = {
      AnovaTest(),          ContrastTest(),          PairwiseTest(),
      TukeyTest(),          DunnettTest(),           FactorialTest(),
      AncovaTest(),         RepeatedMeasuresTest(),  MeanTest(),
      PairedMeansTest(),    TwoMeansTest(),          CrossoverTest(),
      MannWhitneyTest(),    SignedRankTest(),        OrdinalTest(),
      VarianceTest(),       TwoVariancesTest(),      ProportionTest(),
      TwoProportionsTest(), PairedProportionsTest(), GoodnessOfFitTest(),
      ContingencyTest(),    PearsonTest(),           SpearmanTest(),
      PartialTest(),        TwoCorrelationsTest(),   DependentCorrelationsTest(),
      RegressionTest(),
  };
  return tests;
}

const Test* FindTest(std::string_view name) {
  for (const Test& test : Tests()) {
    if (test.name == name) return &test;
  }
  return nullptr;
}

}  // namespace planner
