#ifndef KELPOWER_PLANNER_CATALOGUE_CORRELATION_H
#define KELPOWER_PLANNER_CATALOGUE_CORRELATION_H

#include <string>
#include <vector>

#include "model/test.h"

namespace planner {

/// The core, called with the inputs of the test.
struct CorrelationCalls {
  double (*power)(const Inputs&);
  Numbers (*size)(const Inputs&);
  double (*halfWidth)(const Inputs&);
  Numbers (*sizeForHalfWidth)(const Inputs&);
};

/// What is particular to the test of one kind of correlation.
struct CorrelationKind {
  std::string name;     // "pearson"
  std::string wording;  // "Pearson"
  std::string exports;  // the end of the exports' names: "Pearson"

  std::string definition;             // what the correlation is of, in the words of `about`
  std::string method = "Fisher's z";  // of the interval, in sentences
  std::string testMethod = {};        // of the test; empty where it is that of the interval
  std::string given = {};             // "given {partialled-out} variables", after a space
  Names needs = {};                   // inputs besides `r` and `n`
  Names accepts = {};                 // inputs of the method

  CorrelationCalls calls;
};

/// The description of the test of a correlation: routes, sentences and axes. The caller adds parameters, conditions and
/// examples.
Test CorrelationTest(const CorrelationKind& kind);

std::vector<Unknown> UnknownsOfCorrelation();

}  // namespace planner

#endif
