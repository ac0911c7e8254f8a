#ifndef KELPOWER_TOOLS_ACCURACY_METHODS_H
#define KELPOWER_TOOLS_ACCURACY_METHODS_H

#include <string>

/// How a function is computed and after whom.
struct Method {
  const char* function;
  const char* meaning;
  const char* method;
  const char* source;
};

/// The method of the function of that name; ends the program when there is none.
const Method& FindMethod(const std::string& function);

#endif
