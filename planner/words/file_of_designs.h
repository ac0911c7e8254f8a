#ifndef KELPOWER_PLANNER_WORDS_FILE_OF_DESIGNS_H
#define KELPOWER_PLANNER_WORDS_FILE_OF_DESIGNS_H

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "model/test.h"

namespace planner {

/// How designs and their answers are written: as CSV, as objects of JSON a line each, or as an array of such.
enum class DesignFormat { Csv, Ndjson, Json };

/// What the rows of a file of designs have in common. Each row is a design: the column or field `test` names its test,
/// the others are its inputs; an empty field or null is not given. Lists are separated by spaces in CSV.
class FileOfDesigns {
public:
  /// `columns` names those of CSV, or the fields that are known to occur where answers in CSV are wanted. `test` is that
  /// of all rows; it may be null when a column or field names it. `ahead` are the first rows, whose tests tell the columns
  /// of results. Throws an InputError when a column is no input.
  FileOfDesigns(DesignFormat format, DesignFormat answers, std::vector<std::string> columns, const Test* test,
                std::string_view ahead);

  DesignFormat Format() const { return format_; }
  DesignFormat AnswerFormat() const { return answers_; }
  const std::vector<std::string>& Columns() const { return columns_; }
  const Test* TestOfAll() const { return test_; }

  /// The column that names the test, or the number of columns.
  std::size_t TestColumn() const { return testColumn_; }

  /// The parameter of each column, null where the test has none.
  const std::vector<const Parameter*>& ParametersOf(const Test& test) const { return parameters_.at(&test); }

  /// The names of all results that rows with these columns may have, of figures those of the first rows' tests. One that
  /// is also a column is told apart.
  const std::vector<std::string>& Results() const { return results_; }
  std::string NameOfResult(const std::string& result) const;

  /// The first line of answers in CSV, else nothing.
  std::string Head() const;

private:
  void FindParameters();
  void RejectColumns() const;
  void FindResults(std::string_view ahead);
  std::set<std::string, std::less<>> TestsAhead(std::string_view ahead) const;

  DesignFormat format_;
  DesignFormat answers_;
  std::vector<std::string> columns_;
  std::size_t testColumn_ = 0;
  const Test* test_;
  std::map<const Test*, std::vector<const Parameter*>> parameters_;
  std::vector<std::string> results_;
};

/// The lines of NDJSON that a document of JSON is, an array of designs or a single one. Throws an InputError.
std::string LinesOfJson(std::string_view document);

/// The names of the fields that occur in lines of NDJSON. Lines that are no design are passed over.
std::vector<std::string> FieldsOfLines(std::string_view lines);

/// The names in the first line of a CSV file.
std::vector<std::string> ColumnsOf(std::string_view line);

}  // namespace planner

#endif
