#include "binding.h"

#include <algorithm>

namespace keltest {

const Function* Find(const std::vector<Function>& functions, const std::string& name) {
  const auto found =
      std::find_if(functions.begin(), functions.end(), [&](const Function& f) { return f.name == name; });
  return found == functions.end() ? nullptr : &*found;
}

double* detail::Data(Argument& argument) {
  static double nothing[1];
  if (argument.isNull) return nullptr;
  return argument.array.empty() ? nothing + 1 : argument.array.data();
}

}  // namespace keltest
