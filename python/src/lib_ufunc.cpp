#include "lib_ufunc.h"

#include <pythread.h>

namespace kelpython {

void RunOutOfMemory() {
  const PyGILState_STATE lock = PyGILState_Ensure();
  PyThreadState_SetAsyncExc(PyThread_get_thread_ident(), PyExc_MemoryError);
  PyGILState_Release(lock);
}

bool AddUfuncs(PyObject* dictionary, std::vector<Ufunc>& ufuncs) {
  for (Ufunc& ufunc : ufuncs) {
    ufunc.data.assign(ufunc.loops.size(), &ufunc);
    const Ref made(PyUFunc_FromFuncAndData(ufunc.loops.data(), ufunc.data.data(), const_cast<char*>(ufunc.types),
                                           static_cast<int>(ufunc.loops.size()), ufunc.inputs, ufunc.outputs,
                                           PyUFunc_None, ufunc.name, ufunc.doc, 0));
    if (!made || PyDict_SetItemString(dictionary, ufunc.name, made.Get()) != 0) return false;
  }
  return true;
}

}  // namespace kelpython
