#include "words/table_of_designs.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "solve/design_solver.h"
#include "words/csv.h"
#include "words/design_questions.h"
#include "words/file_of_designs.h"
#include "words/json_values.h"
#include "words/numbers.h"
#include "words/report.h"
#include "words/result_places.h"
#include "words/text_table.h"

namespace planner {

TableOfDesigns::TableOfDesigns(const Designs& designs, TableFormat format, NameOfInput name)
    : designs_(designs), format_(format), name_(std::move(name)) {
  const std::vector<PreparedQuestion> questions = QuestionsOf(designs);
  ListInputs(questions);
  results_ = ResultsOf(questions);
}

void TableOfDesigns::ListInputs(const std::vector<PreparedQuestion>& questions) {
  const auto& given = designs_.Inputs();
  for (const AskedInput& asked : InputsOf(questions)) {
    const PreparedQuestion& question = *asked.question;
    const auto found = std::find_if(given.begin(), given.end(),
                                    [&](const Alternatives& input) { return input.parameter == asked.parameter; });
    inputs_.push_back({asked.parameter, NameInReports(*asked.parameter, question.ChosenRoute(), question.SolvedFor()),
                       static_cast<std::size_t>(found - given.begin()), question.Design().ValueOf(*asked.parameter)});
  }
}

const Value& TableOfDesigns::ValueOf(const Input& input, std::size_t design) const {
  return input.IsGiven(designs_) ? designs_.ValueOf(input.index, design) : input.fallback;
}

std::string TableOfDesigns::Head() const {
  if (format_ != TableFormat::Csv) return "";
  std::string head = "test,";
  for (const Input& input : inputs_) head += CsvField(input.name) + ',';
  for (const ResultColumn& column : results_) head += CsvField(column.name) + ',';
  return head + "note\n";
}

std::string TableOfDesigns::HeldFixed() const {
  std::vector<std::string> fixed;
  for (const Input& input : inputs_) {
    if (input.Varies(designs_)) continue;
    const Value& value = ValueOf(input, 0);
    const std::string& label = input.parameter->label;
    if (const bool* flag = std::get_if<bool>(&value)) {
      if (*flag) fixed.push_back(label);
    } else {
      fixed.push_back(label + ' ' + Shown(value));
    }
  }
  return fixed.empty() ? "" : "Held fixed: " + Joined(fixed, "; ", "; ") + ".";
}

std::string TableOfDesigns::Read(const std::string& rows, const Highlights& highlights) const {
  std::vector<std::string> heads;
  for (const Input& input : inputs_) {
    if (input.Varies(designs_)) heads.push_back(input.parameter->label);
  }
  const std::size_t inputs = heads.size();
  for (const ResultColumn& column : results_) heads.push_back(column.label);
  heads.emplace_back("note");
  const TextTable table{designs_.AskedTest().title, std::move(heads), inputs, rows, HeldFixed()};
  return format_ == TableFormat::Markdown ? RenderMarkdown(table) : RenderText(table, highlights);
}

/// Writes the rows of one thread.
class TableOfDesigns::Rows::Writer {
public:
  Writer(const TableOfDesigns& table, StopRequest* stop)
      : table_(table), solver_(stop), places_(NamesOf(table.results_)) {}

  bool Append(std::size_t design, std::string& out) {
    table_.designs_.Fill(design, row_);
    const DesignAnswer& answer = solver_.Solve(row_);
    if (!answer.IsAnswered() && answer.problem->code == Code::Stopped) return false;
    const std::string note = answer.IsAnswered() ? NoteOn(answer) : Sentence(*answer.problem, table_.name_);
    switch (table_.format_) {
      case TableFormat::Text:
      case TableFormat::Markdown: AppendCells(design, answer, note, out); break;
      case TableFormat::Csv: AppendCsv(design, answer, note, out); break;
      case TableFormat::Json: out += ",\n"; [[fallthrough]];
      case TableFormat::Ndjson: AppendJson(design, answer, note, out); break;
    }
    return true;
  }

private:
  static std::vector<std::string> NamesOf(const std::vector<ResultColumn>& results) {
    std::vector<std::string> names;
    for (const ResultColumn& result : results) names.push_back(result.name);
    return names;
  }

  void AppendCells(std::size_t design, const DesignAnswer& answer, const std::string& note, std::string& out) {
    for (const Input& input : table_.inputs_) {
      if (input.Varies(table_.designs_)) out += Shown(table_.ValueOf(input, design)) + TextTable::betweenCells;
    }
    if (answer.IsAnswered()) {
      for (std::size_t place : places_.In(answer)) out += Shown(answer, place) + TextTable::betweenCells;
    } else {
      for (std::size_t i = 0; i < table_.results_.size(); ++i) out += TextTable::betweenCells;
    }
    out += note + '\n';
  }

  static std::string Shown(const Value& value) { return planner::Shown(value); }

  static std::string Shown(const DesignAnswer& answer, std::size_t i) {
    if (i == answer.columns->size()) return "";
    const Reading reading = (*answer.columns)[i].reading;
    if (reading == Reading::Sizes) return ShownSizes(answer.SizesOf((*answer.columns)[i]));
    return std::isnan(answer.values[i]) ? "" : ShownResult(reading, answer.values[i]);
  }

  void AppendCsv(std::size_t design, const DesignAnswer& answer, const std::string& note, std::string& out) {
    out += CsvField(table_.designs_.AskedTest().name) + ',';
    for (const Input& input : table_.inputs_) out += CsvField(CsvValue(table_.ValueOf(input, design))) + ',';
    if (answer.IsAnswered()) {
      AppendCsvResults(answer, places_.In(answer), out);
    } else {
      out.append(table_.results_.size(), ',');
    }
    out += CsvField(note) + '\n';
  }

  void AppendJson(std::size_t design, const DesignAnswer& answer, const std::string& note, std::string& out) const {
    OpenObject object(out);
    object.AddText("test", table_.designs_.AskedTest().name);
    for (const Input& input : table_.inputs_) object.Add(input.name, table_.ValueOf(input, design));
    if (answer.IsAnswered()) AddResults(object, answer);
    if (!note.empty()) object.AddText("note", note);
    object.Close();
    if (table_.format_ == TableFormat::Ndjson) out += '\n';
  }

  const TableOfDesigns& table_;
  DesignSolver solver_;
  ResultPlaces places_;
  DesignRow row_;
};

TableOfDesigns::Rows::Rows(const TableOfDesigns& table, StopRequest* stop)
    : writer_(std::make_unique<Writer>(table, stop)) {}

TableOfDesigns::Rows::~Rows() = default;

bool TableOfDesigns::Rows::Append(std::size_t first, std::size_t count, std::string& rows) {
  for (std::size_t i = first; i < first + count; ++i) {
    if (!writer_->Append(i, rows)) return false;
  }
  return true;
}

std::string RenderDesigns(const Designs& designs) {
  std::string text;
  for (std::size_t i = 0; i < designs.Count(); ++i) {
    if (i > 0) text += ",\n";
    OpenObject object(text);
    object.AddText("test", designs.AskedTest().name);
    for (std::size_t input = 0; input < designs.Inputs().size(); ++input) {
      object.Add(designs.Inputs()[input].parameter->name.Text(), designs.ValueOf(input, i));
    }
    object.Close();
  }
  return designs.Count() == 1 ? text + '\n' : "[\n" + text + "\n]\n";
}

}  // namespace planner
