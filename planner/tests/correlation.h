#pragma once

#include <string>
#include <vector>

#include "kelpower.h"
#include "planner/chart.h"
#include "planner/test.h"

namespace planner {

/// The exports of the test of one kind of correlation, called with its inputs.
struct CorrelationCalls {
  double (*power)(const Inputs&);
  double (*size)(const Inputs&);
  double (*halfWidth)(const Inputs&);
  double (*sizeForHalfWidth)(const Inputs&);

  XYPlot (*overSizes)(const Inputs&, const Range& sizes);
  XYPlot (*overNulls)(const Inputs&, double step);
  XYPlot (*overAlternatives)(const Inputs&, double step);
  XYPlot (*overDifferences)(const Inputs&, double step);
  XYZPlot (*overSizesAndDifferences)(const Inputs&, const Range& sizes, double step);
  XYZPlot (*overSizesAndNulls)(const Inputs&, const Range& sizes, double step);
  XYZPlot (*overSizesAndAlternatives)(const Inputs&, const Range& sizes, double step);
  XYZPlot (*overNullsAndAlternatives)(const Inputs&, double step);
};

/// What is particular to the test of one kind of correlation.
struct CorrelationKind {
  std::string name;     // "pearson"
  std::string wording;  // "Pearson"
  std::string exports;  // the end of the exports' names: "Pearson"

  std::string definition;  // what the correlation is of, in the words of `about`
  std::string method = "Fisher's z";
  std::string given;                 // "given {partialled-out} variables", after a space
  std::string exampleArguments;      // that every example needs besides --r and --n, after a space
  std::vector<std::string> needs;    // parameters besides `r` and `n`
  std::vector<std::string> accepts;  // parameters of the method
  double mostPartialledOut = 0;
  /// The sizes that the charts over sizes draw with these inputs; null: all of the axis.
  Range (*drawnSizes)(const Inputs&) = nullptr;
  CorrelationCalls calls;
};

/// The description of the test of a correlation: routes, sentences and charts; parameters, conditions and examples are
/// the caller's to add.
Test CorrelationTest(const CorrelationKind& kind);

}  // namespace planner
