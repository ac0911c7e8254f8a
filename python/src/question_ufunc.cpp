// Ufuncs that put a question of the planner to each element.
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "doors.h"
#include "interrupts.h"
#include "prepared.h"
#include "ufunc.h"

namespace kelpython {
namespace {

using nlohmann::json;

// The planner takes no longer lists. An array that is spread costs nothing to make one of any length.
constexpr npy_intp mostGroups = 10000;

/// Doubles that lie a number of bytes apart.
struct Strided {
  char* first;
  std::ptrdiff_t stride;

  double* At(npy_intp row) const { return reinterpret_cast<double*>(first + stride * row); }
};

/// An argument: a number, an entry of a list, or a list with an entry for each group.
struct Argument {
  std::string name;
  Py_ssize_t entry;  // below 0 for a number
  bool isList;
};

/// A result of each element: one number, or the sizes of all groups.
struct Output {
  std::string name;
  std::size_t entry;
  bool isList;
};

/// A question and what varies in it. Where it has lists it is prepared once for each number of groups that is met.
class Question : public UfuncData {
public:
  Question(const char* request, std::vector<Argument> arguments, std::vector<Output> outputs)
      : arguments_(std::move(arguments)), outputs_(std::move(outputs)), request_(json::parse(request)) {}

  const std::vector<Argument>& Arguments() const { return arguments_; }
  const std::vector<Output>& Outputs() const { return outputs_; }

  const Prepared& For(npy_intp groups) {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::unique_ptr<Prepared>& prepared = prepared_[groups];
    if (!prepared) prepared = std::make_unique<Prepared>(RequestFor(groups).dump().c_str());
    return *prepared;
  }

private:
  json RequestFor(npy_intp groups) const {
    json request = request_;
    request["columns"] = json::array();
    for (const Argument& argument : arguments_) {
      const npy_intp first = argument.isList ? 0 : argument.entry;
      const npy_intp last = argument.isList ? groups - 1 : argument.entry;
      for (npy_intp entry = first; entry <= last; ++entry) {
        request["columns"].push_back(entry < 0 ? json(argument.name) : json{{"name", argument.name}, {"entry", entry}});
      }
    }
    return request;
  }

  std::vector<Argument> arguments_;
  std::vector<Output> outputs_;
  json request_;
  std::mutex mutex_;
  std::map<npy_intp, std::unique_ptr<Prepared>> prepared_;
};

/// The numbers of a loop, an element a row.
struct Rows {
  std::vector<Strided> columns;
  std::vector<Strided> outputs;  // in the order of the ufunc
  npy_intp count;

  bool HasNaN(npy_intp row) const {
    return std::any_of(columns.begin(), columns.end(),
                       [row](const Strided& column) { return std::isnan(*column.At(row)); });
  }
};

void Leave(const Strided& output, npy_intp from, npy_intp count) {
  for (npy_intp row = from; row < count; ++row) *output.At(row) = std::numeric_limits<double>::quiet_NaN();
}

/// Spreads lists over their entries.
Rows RowsOf(const Question& question, char** numbers, const npy_intp* dimensions, const npy_intp* steps) {
  const std::size_t operands = question.Arguments().size() + question.Outputs().size();
  const npy_intp* entrySteps = steps + operands;
  Rows rows{{}, {}, dimensions[0]};
  std::size_t operand = 0;
  const auto add = [&](std::vector<Strided>& all, bool isList) {
    const npy_intp entries = isList ? dimensions[1] : 1;
    for (npy_intp entry = 0; entry < entries; ++entry) {
      all.push_back({numbers[operand] + (isList ? *entrySteps * entry : 0), steps[operand]});
    }
    if (isList) ++entrySteps;
    ++operand;
  };
  for (const Argument& argument : question.Arguments()) add(rows.columns, argument.isList);
  for (const Output& output : question.Outputs()) add(rows.outputs, output.isList);
  return rows;
}

/// Where the results of a row go; null for those that no output wants.
std::vector<Strided> Destinations(const Question& question, const Prepared& prepared, const Rows& rows) {
  std::vector<Strided> destinations(prepared.Results().size(), Strided{nullptr, sizeof(double)});
  std::size_t next = 0;
  for (const Output& output : question.Outputs()) {
    const auto first = std::find(prepared.Results().begin(), prepared.Results().end(), output.name);
    auto result = static_cast<std::size_t>(first - prepared.Results().begin()) + output.entry;
    const std::size_t end = output.isList ? result + rows.outputs.size() - (question.Outputs().size() - 1) : result + 1;
    for (; result < end; ++result, ++next) {
      if (result < destinations.size()) destinations[result] = rows.outputs[next];
    }
  }
  return destinations;
}

void Answer(const Prepared& prepared, const Rows& rows, const std::vector<Strided>& destinations,
            Interrupts& interrupts) {
  constexpr npy_intp atOnce = 512;
  int status[atOnce];
  std::vector<const double*> columns(rows.columns.size());
  std::vector<double*> results(destinations.size());
  std::vector<std::ptrdiff_t> columnStrides, resultStrides;
  for (const Strided& column : rows.columns) columnStrides.push_back(column.stride);
  for (const Strided& result : destinations) resultStrides.push_back(result.stride);
  const kelplan_options options = interrupts.Options();
  FloatingPointFlags flags;
  for (npy_intp first = 0; first < rows.count; first += atOnce) {
    const npy_intp count = std::min(rows.count - first, atOnce);
    for (std::size_t i = 0; i < columns.size(); ++i) columns[i] = rows.columns[i].At(first);
    for (std::size_t i = 0; i < results.size(); ++i)
      results[i] = destinations[i].first ? destinations[i].At(first) : nullptr;
    const int ended =
        kelplan_run(prepared.Batch(), static_cast<std::size_t>(count), columns.data(), columnStrides.data(),
                    results.data(), resultStrides.data(), status, sizeof(int), &options);
    if (ended == KELPLAN_NO_MEMORY) {
      flags.SetInvalid();
      for (const Strided& output : rows.outputs) Leave(output, first, rows.count);
      return;
    }
    for (npy_intp row = 0; row < count; ++row) {
      if (status[row] != KELPLAN_OK && !rows.HasNaN(first + row)) flags.SetInvalid();
    }
  }
}

/// Takes no memory, as there may be none.
void LeaveAll(const Question& question, char** numbers, const npy_intp* dimensions, const npy_intp* steps) {
  FloatingPointFlags flags;
  flags.SetInvalid();
  const std::size_t arguments = question.Arguments().size(), outputs = question.Outputs().size();
  const npy_intp* entrySteps = steps + arguments + outputs;
  for (const Argument& argument : question.Arguments()) entrySteps += argument.isList ? 1 : 0;
  for (std::size_t i = 0; i < outputs; ++i) {
    const bool isList = question.Outputs()[i].isList;
    const npy_intp entries = isList ? dimensions[1] : 1;
    for (npy_intp entry = 0; entry < entries; ++entry) {
      char* first = numbers[arguments + i] + (isList ? *entrySteps * entry : 0);
      Leave({first, steps[arguments + i]}, 0, dimensions[0]);
    }
    if (isList) ++entrySteps;
  }
}

void Loop(char** numbers, const npy_intp* dimensions, const npy_intp* steps, void* data) {
  if (dimensions[0] == 0) return;
  auto& question = *static_cast<Question*>(static_cast<UfuncData*>(data));
  const npy_intp groups = question.signature.empty() ? 0 : dimensions[1];
  if (groups > mostGroups) return LeaveAll(question, numbers, dimensions, steps);
  try {
    const Prepared& prepared = question.For(groups);
    if (!prepared.IsReady()) return LeaveAll(question, numbers, dimensions, steps);
    const Rows rows = RowsOf(question, numbers, dimensions, steps);
    Interrupts interrupts;
    Answer(prepared, rows, Destinations(question, prepared, rows), interrupts);
    interrupts.RaiseLater();
  } catch (...) {
    LeaveAll(question, numbers, dimensions, steps);
  }
}

/// Reads tuples of (name, entry, is list).
template <typename Item, typename Read>
bool ReadAll(PyObject* tuple, std::vector<Item>& items, Read read) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(tuple); ++i) {
    PyObject* item = PyTuple_GetItem(tuple, i);
    if (!PyTuple_Check(item)) return PyErr_SetString(PyExc_TypeError, "a tuple is expected"), false;
    const char* name = nullptr;
    Py_ssize_t entry = 0;
    int isList = 0;
    if (!PyArg_ParseTuple(item, "sni", &name, &entry, &isList)) return false;
    items.push_back(read(name, entry, isList != 0));
  }
  return true;
}

/// question_ufunc(name, doc, signature, request, arguments, outputs)
PyObject* QuestionUfunc(PyObject*, PyObject* values) {
  const char *name, *doc, *signature, *request;
  PyObject *argumentTuple, *outputTuple;
  if (!PyArg_ParseTuple(values, "ssssO!O!", &name, &doc, &signature, &request, &PyTuple_Type, &argumentTuple,
                        &PyTuple_Type, &outputTuple)) {
    return nullptr;
  }
  std::vector<Argument> arguments;
  std::vector<Output> outputs;
  const auto argumentOf = [](const char* word, Py_ssize_t entry, bool isList) { return Argument{word, entry, isList}; };
  const auto outputOf = [](const char* word, Py_ssize_t entry, bool isList) {
    return Output{word, static_cast<std::size_t>(entry), isList};
  };
  try {
    if (!ReadAll(argumentTuple, arguments, argumentOf) || !ReadAll(outputTuple, outputs, outputOf)) return nullptr;
    const int inputCount = static_cast<int>(arguments.size()), outputCount = static_cast<int>(outputs.size());
    auto question = std::make_unique<Question>(request, std::move(arguments), std::move(outputs));
    question->name = name;
    question->doc = doc;
    question->signature = signature;
    return MakeUfunc(std::move(question), Loop, inputCount, outputCount);
  } catch (const json::exception& error) {
    return PyErr_SetString(PyExc_ValueError, error.what()), nullptr;
  } catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
  }
}

PyMethodDef functions[] = {{"question_ufunc", QuestionUfunc, METH_VARARGS,
                            "question_ufunc(name, doc, signature, request, arguments, outputs, /)\n--\n\nA ufunc."},
                           {nullptr, nullptr, 0, nullptr}};

}  // namespace

bool AddUfuncs(PyObject* module) { return PyModule_AddFunctions(module, functions) == 0; }

}  // namespace kelpython
