#include "words/row_answers.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <vector>

#include "catalogue/catalogue.h"
#include "solve/design_solver.h"
#include "words/csv.h"
#include "words/json_values.h"
#include "words/numbers.h"
#include "words/parse.h"
#include "words/problem.h"
#include "words/read_design.h"
#include "words/report.h"
#include "words/result_places.h"

namespace planner {
namespace {

using Json = nlohmann::ordered_json;

/// The problem in the names of the columns, in one line whatever a field holds.
std::string SentenceOf(const Problem& problem) {
  std::string sentence = Sentence(problem, [](std::string_view name) { return std::string(name); });
  const auto isControl = [](char letter) { return static_cast<unsigned char>(letter) < ' '; };
  std::replace_if(sentence.begin(), sentence.end(), isControl, ' ');
  return sentence;
}

/// A value of JSON as a field of CSV.
std::string FieldOf(const Json& json) {
  if (json.is_null()) return "";
  if (json.is_string()) return CsvField(json.get<std::string>());
  if (!json.is_array()) return CsvField(json.dump());
  std::string field;
  for (const Json& entry : json) {
    if (!field.empty()) field += ' ';
    field += entry.dump(-1, ' ', false, Json::error_handler_t::replace);
  }
  return CsvField(field);
}

}  // namespace

class RowAnswers::Reader {
public:
  Reader(const FileOfDesigns& file, StopRequest* stop) : file_(file), solver_(stop), places_(file.Results()) {}

  bool IsCsv() const { return file_.Format() == DesignFormat::Csv; }

  /// Appends the answer to one row. False when it was stopped.
  bool Answer(std::string_view text, std::string& out) {
    rowTest_ = nullptr;
    std::optional<Problem> problem = IsCsv() ? ReadRecord(text) : ReadLine(text);
    const DesignAnswer* answer = nullptr;
    if (!problem) {
      const DesignAnswer& solved = solver_.Solve(row_);
      if (solved.IsAnswered()) {
        answer = &solved;
      } else {
        problem = solved.problem;
      }
    }
    if (problem && problem->code == Code::Stopped) return false;
    if (file_.AnswerFormat() == DesignFormat::Csv) {
      WriteCsv(answer, problem, out);
    } else {
      WriteJson(answer, problem, out);
    }
    return true;
  }

private:
  std::optional<Problem> StartRow(std::string_view name) {
    const Test* test = file_.TestOfAll();
    if (!name.empty()) {
      if (!lastTest_ || lastTest_->name != name) {
        const auto& tests = Tests();
        const auto found = std::find_if(tests.begin(), tests.end(), [&](const Test& one) { return one.name == name; });
        if (found == tests.end()) return Problem{.code = Code::TestUnknown, .words = {std::string(name)}};
        lastTest_ = &*found;
      }
      test = lastTest_;
    }
    if (!test) return Problem{.code = Code::TestMissing};
    rowTest_ = test;
    row_.Start(*test);
    return std::nullopt;
  }

  std::optional<Problem> ReadRecord(std::string_view text) {
    record_.Split(text);
    const auto& fields = record_.Fields();
    const std::size_t columns = file_.Columns().size();
    if (fields.size() != columns) {
      return Problem{.code = Code::FieldsDisagree,
                     .values = {static_cast<double>(fields.size()), static_cast<double>(columns)}};
    }
    const std::size_t testColumn = file_.TestColumn();
    if (auto problem = StartRow(testColumn < columns ? Trimmed(fields[testColumn]) : "")) return problem;
    const Test& test = row_.AskedTest();
    const auto& parameters = file_.ParametersOf(test);
    for (std::size_t i = 0; i < columns; ++i) {
      const std::string_view field = Trimmed(fields[i]);
      if (field.empty() || i == testColumn) continue;
      if (!parameters[i]) return NotAnInput(file_.Columns()[i]);
      if (auto problem = AddField(row_, *parameters[i], field, scratch_)) return problem;
    }
    return std::nullopt;
  }

  std::optional<Problem> ReadLine(std::string_view text) {
    line_ = text;
    if (auto problem = ReadObject(text, object_)) {
      object_ = Json::object();
      line_ = "{}";
      return problem;
    }
    const auto name = object_.find("test");
    const bool isNamed = name != object_.end() && name->is_string();
    if (auto problem = StartRow(isNamed ? name->get_ref<const std::string&>() : "")) return problem;
    const Test& test = row_.AskedTest();
    given_.clear();
    for (const auto& [field, value] : object_.items()) {
      if (field == "test" || value.is_null()) continue;
      const Parameter* parameter = FindParameter(test, std::string_view(field));
      if (!parameter) return NotAnInput(field);
      if (std::find(given_.begin(), given_.end(), parameter) != given_.end()) {
        return Problem{.code = Code::ColumnRepeated, .words = {field}};
      }
      given_.push_back(parameter);
      if (auto problem = AddField(row_, *parameter, value)) return problem;
    }
    return std::nullopt;
  }

  Problem NotAnInput(const std::string& column) const {
    return {.code = Code::ColumnUnknown, .words = {column, row_.AskedTest().name}};
  }

  void WriteCsv(const DesignAnswer* answer, const std::optional<Problem>& problem, std::string& out) {
    if (IsCsv()) {
      EchoRecord(out);
    } else {
      for (const std::string& column : file_.Columns()) {
        const auto field = object_.find(column);
        if (field != object_.end()) out += FieldOf(*field);
        out += ',';
      }
    }
    if (answer) {
      AppendCsvResults(*answer, places_.In(*answer), out);
    } else {
      out.append(file_.Results().size(), ',');
    }
    if (answer) out += CsvField(NoteOf(*answer));
    out += ',';
    if (problem) out += CsvField(SentenceOf(*problem));
    if (!IsCsv() && !problem) out += ErrorOfFields();
    out += '\n';
  }

  std::string NoteOf(const DesignAnswer& answer) const {
    std::string note = planner::NoteOn(answer);
    for (const std::string& result : places_.Left()) {
      if (!note.empty()) note += ' ';
      note += SentenceOf({.code = Code::ResultLate, .words = {result}});
    }
    return note;
  }

  /// The record as it was, with as many fields as there are columns.
  void EchoRecord(std::string& out) const {
    const auto& fields = record_.Fields();
    const std::size_t columns = file_.Columns().size();
    if (record_.IsPlain() && fields.size() == columns) {
      out += record_.Text();
      out += ',';
      return;
    }
    for (std::size_t i = 0; i < columns; ++i) {
      if (i < fields.size()) out += CsvField(fields[i]);
      out += ',';
    }
  }

  /// The columns of answers in CSV are those that the first lines have.
  std::string ErrorOfFields() const {
    const auto& columns = file_.Columns();
    for (const auto& [name, value] : object_.items()) {
      if (std::find(columns.begin(), columns.end(), name) != columns.end()) continue;
      return CsvField(SentenceOf({.code = Code::FieldLate, .words = {name}}));
    }
    return "";
  }

  void WriteJson(const DesignAnswer* answer, const std::optional<Problem>& problem, std::string& out) {
    if (file_.AnswerFormat() == DesignFormat::Json) out += ",\n";
    OpenObject object(out, !(IsCsv() ? EchoFields(out) : EchoLine(out)));
    if (answer) {
      AddResults(object, *answer, [this](const std::string& name) { return NameInJson(name); });
      if (const std::string note = planner::NoteOn(*answer); !note.empty()) object.AddText(NameInJson("note"), note);
    }
    if (problem) object.AddText(NameInJson("error"), SentenceOf(*problem));
    object.Close();
    if (file_.AnswerFormat() == DesignFormat::Ndjson) out += '\n';
  }

  /// The object of a line as it was, still open. Gives whether there is anything in it.
  bool EchoLine(std::string& out) const {
    std::string_view inside = Trimmed(line_);
    inside.remove_suffix(1);
    inside = Trimmed(inside);
    out += inside;
    return inside != "{";
  }

  std::string NameInJson(const std::string& result) const {
    if (IsCsv()) return file_.NameOfResult(result);
    return object_.contains(result) ? "result-" + result : result;
  }

  /// The fields of a record as an object that is still open. Gives whether there are any.
  bool EchoFields(std::string& out) {
    out += '{';
    bool any = false;
    const auto& fields = record_.Fields();
    const std::vector<const Parameter*>* parameters = rowTest_ ? &file_.ParametersOf(*rowTest_) : nullptr;
    for (std::size_t i = 0; i < std::min(fields.size(), file_.Columns().size()); ++i) {
      const std::string_view field = Trimmed(fields[i]);
      if (field.empty()) continue;
      if (any) out += ',';
      any = true;
      AppendJsonText(out, file_.Columns()[i]);
      out += ':';
      AppendTyped(parameters ? (*parameters)[i] : nullptr, field, out);
    }
    return any;
  }

  /// The value as what it is read as, else as a text.
  void AppendTyped(const Parameter* parameter, std::string_view field, std::string& out) {
    if (!parameter || parameter->kind == Kind::Choice) return AppendJsonText(out, field);
    echoed_.Start(*rowTest_);
    if (AddField(echoed_, *parameter, field, scratch_)) return AppendJsonText(out, field);
    if (parameter->kind == Kind::Flag) {
      out += ParseFlag(field).value_or(false) ? "true" : "false";
    } else if (parameter->kind == Kind::Number) {
      AppendShortest(out, echoed_.AllNumbers().front());
    } else {
      AppendJson(out, echoed_.AllNumbers());
    }
  }

  const FileOfDesigns& file_;
  DesignSolver solver_;
  DesignRow row_;
  DesignRow echoed_;
  Numbers scratch_;
  const Test* lastTest_ = nullptr;  // that was named
  const Test* rowTest_ = nullptr;   // of this row, as far as it is known
  CsvRecord record_;
  Json object_;
  std::string_view line_;
  std::vector<const Parameter*> given_;
  ResultPlaces places_;
};

RowAnswers::RowAnswers(const FileOfDesigns& file, StopRequest* stop) : reader_(std::make_unique<Reader>(file, stop)) {}

RowAnswers::~RowAnswers() = default;

bool RowAnswers::Answer(std::string_view rows, std::string& answers) {
  while (!rows.empty()) {
    const std::size_t end = std::min(reader_->IsCsv() ? CsvRecordEnd(rows, 0) : rows.find('\n') + 1, rows.size());
    const std::size_t length = end == 0 ? rows.size() : end;  // the last row may end without a line feed
    const std::string_view row = rows.substr(0, length);
    rows.remove_prefix(length);
    if (Trimmed(row).empty()) continue;
    if (!reader_->Answer(row, answers)) return false;
  }
  return true;
}

}  // namespace planner
