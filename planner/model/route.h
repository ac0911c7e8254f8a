#pragma once

#include <functional>
#include <string>

#include "model/inputs.h"
#include "model/name.h"
#include "model/question.h"

namespace planner {

/// One way to an answer: the question, the inputs it needs and those it may take besides, the export that answers it,
/// and the call. Which questions a test answers, which inputs go together and what is still missing are read off its
/// routes. A route serves both the two-sided and the one-sided form of a test.
struct Route {
  Question question;
  Names needs;
  Names accepts = {};
  std::string exportName;
  std::string oneSidedExport = {};                   // where the one-sided form is an export of its own
  std::function<double(const Inputs&)> value = {};   // the power or the half-width
  std::function<Numbers(const Inputs&)> sizes = {};  // of the other questions: a whole size for each group

  bool Takes(Name name) const { return Contains(needs, name) || Contains(accepts, name); }

  const std::string& ExportFor(const Inputs& inputs) const {
    return !oneSidedExport.empty() && inputs.Flag("one-sided") ? oneSidedExport : exportName;
  }
};

}  // namespace planner
