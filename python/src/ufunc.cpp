#include "ufunc.h"

#include <cfenv>
#include <utility>

namespace kelpython {
namespace {

constexpr const char* capsuleName = "kelpower.ufunc";

void Delete(PyObject* capsule) { delete static_cast<UfuncData*>(PyCapsule_GetPointer(capsule, capsuleName)); }

}  // namespace

PyObject* MakeUfunc(std::unique_ptr<UfuncData> data, PyUFuncGenericFunction loop, int inputs, int outputs) {
  UfuncData& parts = *data;
  parts.types.assign(static_cast<std::size_t>(inputs + outputs), NPY_DOUBLE);
  parts.loops[0] = loop;
  parts.data[0] = &parts;
  Ref owner(PyCapsule_New(&parts, capsuleName, Delete));
  if (!owner) return nullptr;
  data.release();
  Ref ufunc(PyUFunc_FromFuncAndDataAndSignature(parts.loops, parts.data, parts.types.data(), 1, inputs, outputs,
                                                PyUFunc_None, parts.name.c_str(), parts.doc.c_str(), 0,
                                                parts.signature.empty() ? nullptr : parts.signature.c_str()));
  if (!ufunc) return nullptr;
  reinterpret_cast<PyUFuncObject*>(ufunc.Get())->obj = owner.Release();
  return ufunc.Release();
}

FloatingPointFlags::~FloatingPointFlags() {
  std::feclearexcept(FE_ALL_EXCEPT);
  if (isInvalid_) std::feraiseexcept(FE_INVALID);
}

}  // namespace kelpython
