#ifndef KELPOWER_PLANNER_SOLVE_RESULTS_H
#define KELPOWER_PLANNER_SOLVE_RESULTS_H

#include <string>
#include <vector>

#include "model/test.h"
#include "solve/plan.h"

namespace planner {

/// How a result is read. Results come in this order.
enum class Reading {
  Figure,     // a number of some scale
  Sizes,      // a list of counts, one for each group
  Size,       // a count
  Power,      // a probability
  HalfWidth,  // in the unit of the data
};

/// A result that the answers of a route have, known before any of them is computed.
struct ResultColumn {
  std::string name;
  std::string label;
  Reading reading;
  const Derived* derived = nullptr;  // of a figure; null for the number that is solved for
  bool isLasting = false;            // of sizes: those from which on all reach the target
  Planned planned = Planned::None;   // what the circumstances of the study add
};

/// The results of the route's answers, in the order of a report. `unknown` is what is solved for with the route, or
/// null; `offers` are the inputs of the circumstances of the study that are given; `isUneven` says whether the power
/// jumps with the size. Figures may be missing in an answer.
std::vector<ResultColumn> ResultColumns(const Test& test, const Route& route, const Unknown* unknown,
                                        const Names& offers, bool isUneven);

/// Whether answers of the route may tell the figure: it takes the inputs, or finds the sizes among them.
bool MayTell(const Route& route, const Derived& figure);

/// Whether the answer to a design tells the figure, because the inputs are given as well.
bool IsTold(const Route& route, const Derived& figure, const Inputs& design);

/// Whether the figure is one of sizes, and so is told at those that are found.
bool IsOfSizes(const Derived& figure);

/// Those of the offered inputs that the design gives.
Names OffersOf(const Inputs& design);

double TotalOf(const Numbers& sizes);

}  // namespace planner

#endif
