#include "catalogue/catalogue.h"

#include "catalogue/tests.h"

namespace planner {

const std::vector<Test>& Tests() {
  static const std::vector<Test> tests = {
      AnovaTest(),
      ContrastTest(),
      PairwiseTest(),
      MeanTest(),
      PairedMeansTest(),
      TwoMeansTest(),
      ProportionTest(),
      TwoProportionsTest(),
      PairedProportionsTest(),
      PearsonTest(),
      SpearmanTest(),
      PartialTest(),
      TwoCorrelationsTest(),
      DependentCorrelationsTest(),
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
