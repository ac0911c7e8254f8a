#include "words/file_of_designs.h"

#include <algorithm>
#include <utility>

#include "catalogue/catalogue.h"
#include "model/problem.h"
#include "solve/results.h"
#include "words/csv.h"
#include "words/read_design.h"

namespace planner {
namespace {

template <typename T>
bool IsAmong(const std::vector<T>& all, const T& one) {
  return std::find(all.begin(), all.end(), one) != all.end();
}

/// Whether a design with no other inputs than these may take the route.
bool IsPossible(const Route& route, const Names& names) {
  const auto isThere = [&](Name name) { return Contains(names, name); };
  if (const auto asker = AskedBy(route.question); asker && !isThere(*asker)) return false;
  return std::all_of(route.needs.begin(), route.needs.end(), isThere);
}

/// Whether such a design may solve for the unknown with the route.
bool IsPossible(const Unknown& unknown, const Route& route, const Names& names) {
  if (route.question != unknown.target) return false;
  if (!Contains(names, unknown.target == Question::Power ? Name("power") : Name("half-width"))) return false;
  const bool needsName = unknown.set || unknown.input == Name("alpha");
  if (needsName && !Contains(names, "solve")) return false;
  return std::all_of(route.needs.begin(), route.needs.end(),
                     [&](Name name) { return name == unknown.input || Contains(names, name); });
}

/// Whether such a design may ask for the assurance of its sizes, with the route of their half-width.
bool IsAssurancePossible(const Test& test, const Route& route, const Names& names) {
  if (!test.offers.assurance || route.question != Question::HalfWidth) return false;
  if (!Contains(names, "solve") || !Contains(names, "half-width")) return false;
  return std::all_of(route.needs.begin(), route.needs.end(), [&](Name name) { return Contains(names, name); });
}

/// The results that designs with values for these parameters may have.
std::vector<ResultColumn> PossibleResults(const Test& test, const std::vector<const Parameter*>& parameters) {
  Names names;
  for (const Parameter* parameter : parameters) {
    if (parameter) names.push_back(parameter->name);
  }
  std::vector<ResultColumn> results;
  for (const Route& route : test.routes) {
    const auto add = [&](const Unknown* unknown) {
      Names offers;
      std::copy_if(OfferedInputs().begin(), OfferedInputs().end(), std::back_inserter(offers),
                   [&](Name name) { return Contains(names, name) && route.Takes(name); });
      const bool mayBeUneven = test.unevenness || (Contains(offers, "assurance") && test.offers.lastingAssuredSizes);
      // A row may leave out what is offered.
      for (const Names& given : {Names{}, offers}) {
        for (ResultColumn& column : ResultColumns(test, route, unknown, given, mayBeUneven)) {
          results.push_back(std::move(column));
        }
        if (offers.empty()) break;
      }
    };
    if (IsPossible(route, names)) add(nullptr);
    if (IsAssurancePossible(test, route, names)) {
      for (ResultColumn& column : ResultColumns(test, route, nullptr, {"assurance"}, false)) {
        results.push_back(std::move(column));
      }
    }
    for (const Unknown& unknown : test.unknowns) {
      if (IsPossible(unknown, route, names)) add(&unknown);
    }
  }
  return results;
}

}  // namespace

FileOfDesigns::FileOfDesigns(DesignFormat format, DesignFormat answers, std::vector<std::string> columns,
                             const Test* test, std::string_view ahead)
    : format_(format), answers_(answers), columns_(std::move(columns)), test_(test) {
  testColumn_ = static_cast<std::size_t>(std::find(columns_.begin(), columns_.end(), "test") - columns_.begin());
  const bool isTestNamed = test_ || testColumn_ < columns_.size();
  if (format_ == DesignFormat::Csv && !isTestNamed) throw InputError({.code = Code::TestNowhere});
  FindParameters();
  if (answers_ == DesignFormat::Csv) FindResults(ahead);
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

void FileOfDesigns::FindResults(std::string_view ahead) {
  const bool isOne = test_ && testColumn_ == columns_.size();
  const std::set<std::string, std::less<>> tests =
      isOne ? std::set<std::string, std::less<>>{test_->name} : TestsAhead(ahead);
  std::vector<ResultColumn> all;
  for (const Test& test : Tests()) {
    if (isOne && test_ != &test) continue;
    const bool isAhead = tests.count(test.name) > 0 || test_ == &test;
    for (ResultColumn& column : PossibleResults(test, ParametersOf(test))) {
      if (isAhead || column.reading != Reading::Figure) all.push_back(std::move(column));
    }
  }
  std::stable_sort(all.begin(), all.end(),
                   [](const ResultColumn& a, const ResultColumn& b) { return a.reading < b.reading; });
  for (const ResultColumn& column : all) {
    if (!IsAmong(results_, column.name)) results_.push_back(column.name);
  }
}

/// The names of tests in the first rows.
std::set<std::string, std::less<>> FileOfDesigns::TestsAhead(std::string_view ahead) const {
  std::set<std::string, std::less<>> tests;
  CsvRecord record;
  while (!ahead.empty()) {
    const std::size_t end =
        std::min(format_ == DesignFormat::Csv ? CsvRecordEnd(ahead, 0) : ahead.find('\n'), ahead.size());
    if (format_ == DesignFormat::Csv) {
      record.Split(ahead.substr(0, end));
      if (record.Count() > testColumn_) tests.emplace(Trimmed(record.Fields()[testColumn_]));
    } else {
      tests.insert(TestOfLine(ahead.substr(0, end)));
    }
    ahead.remove_prefix(std::min(std::max<std::size_t>(end, 1), ahead.size()));
  }
  return tests;
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
