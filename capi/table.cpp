#include "table.h"

#include <vector>

#include "model/problem.h"
#include "solve/design_solver.h"
#include "solve/row_results.h"
#include "words/design_questions.h"
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

class Table {
public:
  Table(Call& call, const planner::Designs& designs)
      : designs_(designs), questions_(planner::QuestionsOf(designs)), json_(call), solver_(call.stop) {}

  void Write() {
    const planner::Route& route = questions_.front().ChosenRoute();
    json_.Text("test", designs_.AskedTest().name);
    json_.Text("question", planner::WordOf(route.question));
    WriteShared();
    WriteColumns();
    json_.Key("rows");
    json_.OpenArray();
    for (std::size_t i = 0; i < designs_.Count(); ++i) WriteRow(i);
    json_.CloseArray();
    json_.TextUnlessEmpty("export", route.ExportFor(questions_.front().Design()));
    json_.CloseObject();
  }

private:
  std::string NameOf(const planner::Parameter& parameter) const {
    const planner::PreparedQuestion& first = questions_.front();
    return planner::NameInReports(parameter, first.ChosenRoute(), first.SolvedFor());
  }

  void WriteShared() {
    json_.Key("inputs");
    json_.OpenObject();
    for (const auto& [parameter, question] : planner::InputsOf(questions_)) {
      const planner::Alternatives* given = Given(designs_, *parameter);
      if (given && given->values.size() > 1) continue;
      json_.KeyOfName(NameOf(*parameter));
      json_.Of(given ? given->values.front() : question->Design().ValueOf(*parameter));
    }
    json_.CloseObject();
  }

  void WriteColumns() {
    json_.Key("columns");
    json_.OpenArray();
    for (const planner::ResultColumn& column : planner::ResultsOf(questions_)) {
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
  std::vector<planner::PreparedQuestion> questions_;
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
