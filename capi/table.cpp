#include "table.h"

#include <algorithm>
#include <optional>

#include "model/problem.h"
#include "solve/design_solver.h"
#include "solve/row_results.h"
#include "words/problem_json.h"
#include "words/report.h"
#include "words/report_json.h"

namespace kelplan {
namespace {

/// More are a matter for columns: each row takes some hundred bytes here.
constexpr std::size_t mostRows = 100'000;

const planner::Alternatives* Given(const planner::Designs& designs, const planner::Parameter& parameter) {
  for (const planner::Alternatives& input : designs.Inputs()) {
    if (input.parameter == &parameter) return &input;
  }
  return nullptr;
}

/// The first design that can be asked. The others ask the same question.
planner::PreparedQuestion FirstQuestion(const planner::Designs& designs) {
  std::optional<planner::InputError> first;
  planner::DesignRow row;
  for (std::size_t i = 0; i < designs.Count(); ++i) {
    designs.Fill(i, row);
    try {
      return {designs.AskedTest(), row.Values()};
    } catch (const planner::InputError& error) {
      if (!first) first = error;
    }
  }
  throw *first;
}

class Table {
public:
  Table(Call& call, const planner::Designs& designs)
      : designs_(designs), question_(FirstQuestion(designs)), json_(call), solver_(call.stop) {}

  void Write() {
    const planner::Route& route = question_.ChosenRoute();
    json_.Text("test", designs_.AskedTest().name);
    json_.Text("question", planner::WordOf(route.question));
    WriteShared();
    WriteColumns();
    json_.Key("rows");
    json_.OpenArray();
    for (std::size_t i = 0; i < designs_.Count(); ++i) WriteRow(i);
    json_.CloseArray();
    json_.TextUnlessEmpty("export", route.ExportFor(question_.Design()));
    json_.CloseObject();
  }

private:
  std::string NameOf(const planner::Parameter& parameter) const {
    return planner::NameInReports(parameter, question_.ChosenRoute(), question_.SolvedFor());
  }

  void WriteShared() {
    json_.Key("inputs");
    json_.OpenObject();
    for (const planner::Parameter* parameter : planner::ListedParameters(designs_.AskedTest(), question_.ChosenRoute(),
                                                                         question_.SolvedFor(), question_.Design())) {
      const planner::Alternatives* given = Given(designs_, *parameter);
      if (given && given->values.size() > 1) continue;
      json_.KeyOfName(NameOf(*parameter));
      json_.Of(given ? given->values.front() : question_.Design().ValueOf(*parameter));
    }
    json_.CloseObject();
  }

  void WriteColumns() {
    json_.Key("columns");
    json_.OpenArray();
    for (const planner::ResultColumn& column : planner::ResultColumnsOf(question_)) {
      json_.OpenObject();
      json_.Key("name");
      json_.Name(column.name);
      json_.Text("label", column.label);
      json_.Text("kind", planner::WordOf(column.reading));
      json_.CloseObject();
    }
    json_.CloseArray();
  }

  void WriteRow(std::size_t design) {
    designs_.Fill(design, row_);
    const planner::DesignAnswer& answer = solver_.Solve(row_);
    if (!answer.IsAnswered() && answer.problem->code == planner::Code::Stopped) throw planner::Stopped();
    json_.OpenObject();
    json_.Key("inputs");
    json_.OpenObject();
    for (std::size_t i = 0; i < designs_.Inputs().size(); ++i) {
      if (designs_.Inputs()[i].values.size() == 1) continue;
      json_.KeyOfName(NameOf(*designs_.Inputs()[i].parameter));
      json_.Of(designs_.ValueOf(i, design));
    }
    json_.CloseObject();
    answer.IsAnswered() ? WriteResults(answer) : WriteError(*answer.problem);
    json_.CloseObject();
  }

  void WriteResults(const planner::DesignAnswer& answer) {
    json_.Key("results");
    json_.OpenObject();
    for (std::size_t i = 0; i < answer.columns->size(); ++i) {
      const planner::ResultColumn& column = (*answer.columns)[i];
      json_.KeyOfName(column.name);
      if (column.reading == planner::Reading::Sizes) {
        json_.Of(answer.SizesOf(column));
      } else {
        json_.Number(answer.values[i]);
      }
    }
    json_.CloseObject();
    if (const std::string note = planner::NoteOn(answer); !note.empty()) json_.Text("note", note);
  }

  void WriteError(const planner::Problem& problem) {
    json_.Key("error");
    planner::WriteProblem(json_, problem);
  }

  const planner::Designs& designs_;
  planner::PreparedQuestion question_;
  Reply json_;
  planner::DesignSolver solver_;
  planner::DesignRow row_;
};

}  // namespace

void ReplyWithTable(Call& call, const Request& request) {
  const planner::Designs designs(request.AskedTest(), request.Inputs());
  if (designs.Count() > mostRows) {
    throw planner::InputError({.code = planner::Code::TooManyDesigns, .values = {static_cast<double>(mostRows)}});
  }
  Table(call, designs).Write();
}

}  // namespace kelplan
