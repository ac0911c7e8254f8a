#ifndef KELPOWER_CAPI_REQUEST_H
#define KELPOWER_CAPI_REQUEST_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "json_tree.h"
#include "model/chart.h"
#include "solve/designs.h"
#include "words/json_writer.h"

namespace kelplan {

/// An input that varies from row to row: an entry of a list, or without one a number, or all entries of a list that one
/// number stands for.
struct ColumnRequest {
  const planner::Parameter* parameter;
  std::optional<std::size_t> entry;
};

/// What a request asks, checked but for the limits of the inputs.
class Request {
public:
  /// `members` are those that the request may have. Throws a BadRequest or an InputError.
  Request(const JsonTree& tree, const std::vector<std::string_view>& members);
  /// A request whose test is not named, as there is only one that it may ask.
  Request(const JsonTree& tree, const planner::Test& test, const std::vector<std::string_view>& members);

  const planner::Test& AskedTest() const { return *test_; }
  const std::vector<planner::Alternatives>& Inputs() const { return inputs_; }

  /// The inputs of a single design. Throws an InputError where one has several values.
  planner::InputValues Values() const { return ValuesBesides(std::nullopt); }
  /// Those besides the alternatives of an input.
  planner::InputValues ValuesBesides(const std::optional<planner::Alternatives>& alternatives) const;
  bool HasAlternatives() const;

  bool IsSet(std::string_view member) const;
  /// What is drawn. One input may have several values, a curve for each.
  planner::ChartRequest Chart() const;
  std::vector<ColumnRequest> Columns() const;

private:
  void CheckMembers(const std::vector<std::string_view>& members) const;
  void FindTest();
  void ReadInputs();
  ColumnRequest ColumnOf(const JsonTree& column) const;
  const planner::Parameter& ParameterOf(const std::string& name) const;
  planner::Numbers EndsOf(std::string_view member) const;
  bool ShowsSizes() const;

  const JsonTree& tree_;
  const planner::Test* test_ = nullptr;
  std::vector<planner::Alternatives> inputs_;
};

/// How the request spells names. Throws a BadRequest.
planner::NameStyle NamesOf(const JsonTree& tree);

}  // namespace kelplan

#endif
