#include "words/file_of_designs.h"

#include <algorithm>
#include <utility>

#include "catalogue/catalogue.h"
#include "model/problem.h"
#include "solve/results.h"
#include "words/csv.h"

namespace planner {
namespace {

template <typename T>
bool IsAmong(const std::vector<T>& all, const T& one) {
  return std::find(all.begin(), all.end(), one) != all.end();
}

std::string_view Trimmed(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

/// Whether a design with no other inputs than these may take the route.
bool IsPossible(const Route& route, const Names& names) {
  const auto isThere = [&](Name name) { return Contains(names, name); };
  if (const auto asker = AskedBy(route.question); asker && !isThere(*asker)) return false;
  return std::all_of(route.needs.begin(), route.needs.end(), isThere);
}

}  // namespace

FileOfDesigns::FileOfDesigns(DesignFormat format, DesignFormat answers, std::vector<std::string> columns,
                             const Test* test)
    : format_(format), answers_(answers), columns_(std::move(columns)), test_(test) {
  testColumn_ = static_cast<std::size_t>(std::find(columns_.begin(), columns_.end(), "test") - columns_.begin());
  const bool isTestNamed = test_ || testColumn_ < columns_.size();
  if (format_ == DesignFormat::Csv && !isTestNamed) throw InputError({.code = Code::TestNowhere});
  FindParameters();
  FindResults();
}

void FileOfDesigns::FindParameters() {
  for (const Test& test : Tests()) {
    auto& parameters = parameters_[&test];
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      parameters.push_back(i == testColumn_ ? nullptr : FindParameter(test, std::string_view(columns_[i])));
    }
  }
  if (format_ == DesignFormat::Csv) RejectColumns();
}

void FileOfDesigns::RejectColumns() const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (std::count(columns_.begin(), columns_.end(), columns_[i]) > 1) {
      throw InputError({.code = Code::ColumnRepeated, .words = {columns_[i]}});
    }
    if (i == testColumn_) continue;
    for (const auto& [test, parameters] : parameters_) {
      // The same input by two of its names.
      if (parameters[i] && std::count(parameters.begin(), parameters.end(), parameters[i]) > 1) {
        throw InputError({.code = Code::ColumnRepeated, .words = {std::string(parameters[i]->name.Text())}});
      }
    }
    const auto isInput = [&](const Test& test) { return ParametersOf(test)[i] != nullptr; };
    // A column of a single test must be its input, of several that of one.
    const bool ofOne = test_ && testColumn_ == columns_.size();
    if (ofOne ? isInput(*test_) : std::any_of(Tests().begin(), Tests().end(), isInput)) continue;
    Problem problem{.code = Code::ColumnUnknown, .words = {columns_[i]}};
    if (ofOne) problem.words.push_back(test_->name);
    throw InputError(std::move(problem));
  }
}

void FileOfDesigns::FindResults() {
  std::vector<ResultColumn> all;
  for (const Test& test : Tests()) {
    if (testColumn_ == columns_.size() && test_ && test_ != &test) continue;
    Names names;
    for (const Parameter* parameter : ParametersOf(test)) {
      if (parameter) names.push_back(parameter->name);
    }
    for (const Route& route : test.routes) {
      if (!IsPossible(route, names)) continue;
      for (ResultColumn& column : ResultColumns(test, route)) all.push_back(std::move(column));
    }
  }
  std::stable_sort(all.begin(), all.end(),
                   [](const ResultColumn& a, const ResultColumn& b) { return a.reading < b.reading; });
  for (const ResultColumn& column : all) {
    if (!IsAmong(results_, column.name)) results_.push_back(column.name);
  }
}

std::string FileOfDesigns::NameOfResult(const std::string& result) const {
  return IsAmong(columns_, result) ? "result-" + result : result;
}

std::string FileOfDesigns::Head() const {
  if (answers_ != DesignFormat::Csv) return "";
  std::string head;
  for (const std::string& column : columns_) head += CsvField(column) + ',';
  for (const std::string& result : results_) head += CsvField(NameOfResult(result)) + ',';
  return head + "note,error\n";
}

std::vector<std::string> ColumnsOf(std::string_view line) {
  CsvRecord record;
  record.Split(line);
  std::vector<std::string> columns;
  for (std::string_view field : record.Fields()) columns.emplace_back(Trimmed(field));
  if (columns == std::vector<std::string>{""}) throw InputError({.code = Code::ColumnsMissing});
  return columns;
}

}  // namespace planner
