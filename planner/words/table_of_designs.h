#ifndef KELPOWER_PLANNER_WORDS_TABLE_OF_DESIGNS_H
#define KELPOWER_PLANNER_WORDS_TABLE_OF_DESIGNS_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "model/stop_request.h"
#include "solve/designs.h"
#include "solve/row_results.h"
#include "words/problem.h"
#include "words/render.h"

namespace planner {

/// What a table of designs is for. Text and Markdown are to be read and show what varies, the others hold all.
enum class TableFormat { Text, Markdown, Csv, Ndjson, Json };

/// The answers to all designs as one table, a row each, with a note in place of results where there are none.
class TableOfDesigns {
public:
  /// The designs must outlive the table. `name` is the front end's own name of an input. Throws an InputError when none
  /// of the designs can be asked.
  TableOfDesigns(const Designs& designs, TableFormat format, NameOfInput name);

  /// Makes rows. A thread needs one of its own.
  class Rows {
  public:
    /// `stop` may be null.
    Rows(const TableOfDesigns& table, StopRequest* stop);
    ~Rows();

    /// Appends `count` rows from `first` on. Gives whether it came to their end: one that is stopped is left out with
    /// all that follow.
    bool Append(std::size_t first, std::size_t count, std::string& rows);

  private:
    class Writer;
    std::unique_ptr<Writer> writer_;
  };

  /// The line before the rows in CSV, else nothing. In an array of JSON a comma precedes each row.
  std::string Head() const;

  /// The table to be read, of all rows.
  std::string Read(const std::string& rows, const Highlights& highlights) const;

private:
  /// An input of the table: one that is given, or a default.
  struct Input {
    const Parameter* parameter;
    std::string name;
    std::size_t index;  // among the designs' inputs; their number for a default
    Value fallback;

    bool IsGiven(const Designs& designs) const { return index < designs.Inputs().size(); }
    bool Varies(const Designs& designs) const { return IsGiven(designs) && designs.Inputs()[index].values.size() > 1; }
  };

  void ListInputs(const std::vector<PreparedQuestion>& questions);
  const Value& ValueOf(const Input& input, std::size_t design) const;
  std::string HeldFixed() const;

  const Designs& designs_;
  TableFormat format_;
  NameOfInput name_;
  std::vector<Input> inputs_;
  std::vector<ResultColumn> results_;
};

/// A design as an object of JSON that can be answered again, or several as an array.
std::string RenderDesigns(const Designs& designs);

}  // namespace planner

#endif
