#include "doors.h"

#include "interrupts.h"
#include "kelplan.h"

namespace kelpython {
namespace {

using Door = int (*)(const char*, const kelplan_options*, char**);

/// (status, answer) of a request, both as the C interface gives them.
PyObject* Ask(Door door, PyObject* request) {
  char* text = nullptr;
  if (PyBytes_AsStringAndSize(request, &text, nullptr) != 0) return nullptr;
  Interrupts interrupts;
  const kelplan_options options = interrupts.Options();
  char* answer = nullptr;
  int status = 0;
  {
    const WithoutInterpreter others;
    status = door(text, &options, &answer);
  }
  PyObject* reply = interrupts.Raise() ? nullptr : Py_BuildValue("(is)", status, answer);
  kelplan_free(answer);
  return reply;
}

PyObject* Solve(PyObject*, PyObject* request) { return Ask(kelplan_solve, request); }
PyObject* Draw(PyObject*, PyObject* request) { return Ask(kelplan_draw, request); }
PyObject* Convert(PyObject*, PyObject* request) { return Ask(kelplan_convert, request); }

PyObject* Describe(PyObject*, PyObject*) {
  const char* description = kelplan_describe();
  return description ? PyUnicode_FromString(description) : PyErr_NoMemory();
}

PyMethodDef functions[] = {
    {"solve", Solve, METH_O, "solve(request, /)\n--\n\nThe status and the JSON of the answer to a request in JSON."},
    {"draw", Draw, METH_O, "draw(request, /)\n--\n\nThe status and the JSON of a chart."},
    {"convert", Convert, METH_O, "convert(request, /)\n--\n\nThe status and the JSON of effect sizes."},
    {"describe", Describe, METH_NOARGS, "describe()\n--\n\nThe description of all tests as JSON."},
    {nullptr, nullptr, 0, nullptr}};

}  // namespace

bool AddDoors(PyObject* module) {
  return PyModule_AddFunctions(module, functions) == 0 &&
         PyModule_AddStringConstant(module, "version", kelplan_version()) == 0;
}

}  // namespace kelpython
