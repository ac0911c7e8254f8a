#include <memory>
#include <new>

#include "batch.h"
#include "call.h"
#include "caller_stop.h"
#include "words/report.h"
#include "words/report_json.h"

namespace kelplan {
namespace {

void WriteColumns(Reply& reply, const Batch& batch) {
  reply.Key("columns");
  reply.OpenArray();
  for (const ColumnRequest& column : batch.Columns()) {
    reply.OpenObject();
    reply.Key("name");
    reply.Name(column.parameter->name.Text());
    reply.Text("label", column.parameter->label);
    if (column.entry) reply.Number("entry", static_cast<double>(*column.entry));
    reply.CloseObject();
  }
  reply.CloseArray();
}

void WriteResults(Reply& reply, const Batch& batch) {
  reply.Key("results");
  reply.OpenArray();
  for (const BatchResult& result : batch.Results()) {
    reply.OpenObject();
    reply.Key("name");
    reply.Name(result.column.name);
    reply.Text("label", result.column.label);
    reply.Text("kind", planner::WordOf(result.column.reading));
    if (result.column.reading == planner::Reading::Sizes) reply.Number("entry", static_cast<double>(result.entry));
    reply.CloseObject();
  }
  reply.CloseArray();
}

/// The inputs that all rows share, defaults included.
void WriteInputs(Reply& reply, const Batch& batch) {
  const planner::PreparedQuestion& question = batch.Question();
  const auto varies = [&](const planner::Parameter* parameter) {
    for (const ColumnRequest& column : batch.Columns()) {
      if (column.parameter == parameter) return true;
    }
    return false;
  };
  reply.Key("inputs");
  reply.OpenObject();
  for (const planner::Parameter* parameter : planner::ListedParameters(question.AskedTest(), question.ChosenRoute(),
                                                                       question.SolvedFor(), question.Design())) {
    if (varies(parameter)) continue;
    reply.KeyOfName(planner::NameInReports(*parameter, question.ChosenRoute(), question.SolvedFor()));
    reply.Of(question.Design().ValueOf(*parameter));
  }
  reply.CloseObject();
}

void Prepare(Call& call) {
  const JsonTree tree = ReadJson(call.request);
  call.names = NamesOf(tree);
  auto prepared = std::make_unique<kelplan_batch>(Request(tree, {"columns"}));
  const Batch& batch = prepared->batch;
  const planner::PreparedQuestion& question = batch.Question();
  Reply reply(call);
  reply.Text("test", question.AskedTest().name);
  reply.Text("question", planner::WordOf(question.ChosenRoute().question));
  WriteInputs(reply, batch);
  WriteColumns(reply, batch);
  WriteResults(reply, batch);
  reply.TextUnlessEmpty("export", question.ChosenRoute().ExportFor(question.Design()));
  reply.CloseObject();
  call.batch = prepared.release();
}

bool HasArrays(const Batch& batch, const Rows& rows) {
  if (rows.count == 0) return true;
  if ((!rows.columns && !batch.Columns().empty()) || !rows.results) return false;
  for (std::size_t i = 0; i < batch.Columns().size(); ++i) {
    if (!rows.columns[i]) return false;
  }
  return true;
}

int Run(const Batch& batch, const Rows& rows, const kelplan_options* options) {
  CallerStop stop(options);
  return batch.Run(rows, stop.IsAsked() ? &stop : nullptr);
}

}  // namespace
}  // namespace kelplan

int kelplan_prepare(const char* request, kelplan_batch** batch, char** answer) {
  if (batch) *batch = nullptr;
  kelplan::Call call{.request = request ? request : ""};
  const int status = kelplan::Answer(call, kelplan::Prepare, answer);
  if (status == KELPLAN_OK && batch) {
    *batch = call.batch;
  } else {
    delete call.batch;
  }
  return status;
}

int kelplan_run(const kelplan_batch* batch, size_t rows, const double* const* columns, const ptrdiff_t* column_strides,
                double* const* results, const ptrdiff_t* result_strides, int* status, ptrdiff_t status_stride,
                const kelplan_options* options) {
  const kelplan::Rows all{rows, columns, column_strides, results, result_strides, status, status_stride};
  if (!batch || !kelplan::HasArrays(batch->batch, all)) return KELPLAN_BAD_INPUT;
  try {
    return kelplan::Run(batch->batch, all, options);
  } catch (...) {
    return KELPLAN_NO_MEMORY;
  }
}

void kelplan_release(kelplan_batch* batch) { delete batch; }
