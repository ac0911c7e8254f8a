#ifndef KELPOWER_PLANNER_MODEL_ROUTE_H
#define KELPOWER_PLANNER_MODEL_ROUTE_H

#include <functional>
#include <string>

#include "model/inputs.h"
#include "model/name.h"
#include "model/question.h"

namespace planner {

/// Gives a power or a half-width, NaN where there is none. It may keep what successive designs share; a copy starts
/// afresh.
using Evaluation = std::function<double(const Inputs&)>;

/// One way to an answer: the question, the inputs it needs and those it may take besides, the export that answers it,
/// and the call. Which questions a test answers, which inputs go together and what is still missing are read off its
/// routes. A route serves both the two-sided and the one-sided form of a test.
struct Route {
  Question question;
  Names needs;
  Names accepts = {};
  std::string exportName = {};      // empty where no export answers
  std::string oneSidedExport = {};  // where the one-sided form is an export of its own
  Evaluation value = {};            // of a question about a power or a half-width
  Evaluation surfaceValue = {};     // the same to 1e-12, faster where many share their sizes
  Evaluation lastingSize = {};      // from which on all sizes reach a power, where the core tells it
  /// Of a question about sizes: whole ones, one for each group, near which the search for the first that reach the target
  /// starts; empty for none. May be left out where the power is even.
  std::function<Numbers(const Inputs&)> sizes = {};

  bool Takes(Name name) const { return Contains(needs, name) || Contains(accepts, name); }

  const std::string& ExportFor(const Inputs& inputs) const {
    return !oneSidedExport.empty() && inputs.Flag("one-sided") ? oneSidedExport : exportName;
  }
};

}  // namespace planner

#endif
