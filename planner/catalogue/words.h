#ifndef KELPOWER_PLANNER_CATALOGUE_WORDS_H
#define KELPOWER_PLANNER_CATALOGUE_WORDS_H

#include "model/test.h"

// The phrases, sentences and examples of the tests, each in the file <test>_words.cpp.
namespace planner {

void AddWordsOfAnova(Test& test);
void AddWordsOfContrast(Test& test);
void AddWordsOfFactorial(Test& test);
void AddWordsOfAncova(Test& test);
void AddWordsOfRepeatedMeasures(Test& test);
void AddWordsOfPairwise(Test& test);
void AddWordsOfCrossover(Test& test);
void AddWordsOfMean(Test& test);
void AddWordsOfPairedMeans(Test& test);
void AddWordsOfTwoMeans(Test& test);
void AddWordsOfProportion(Test& test);
void AddWordsOfPairedProportions(Test& test);
void AddWordsOfTwoProportions(Test& test);
void AddWordsOfRegression(Test& test);
void AddWordsOfPearson(Test& test);
void AddWordsOfSpearman(Test& test);
void AddWordsOfPartial(Test& test);
void AddWordsOfGoodnessOfFit(Test& test);
void AddWordsOfContingency(Test& test);
void AddWordsOfVariance(Test& test);
void AddWordsOfTwoVariances(Test& test);
void AddWordsOfMannWhitney(Test& test);
void AddWordsOfTwoCorrelations(Test& test);
void AddWordsOfDependentCorrelations(Test& test);

}  // namespace planner

#endif
