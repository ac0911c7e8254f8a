#ifndef KELPOWER_TESTS_ENGINE_VECTOR_CASE_H
#define KELPOWER_TESTS_ENGINE_VECTOR_CASE_H

#include <cstddef>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "binding.h"

namespace keltest {

/// One reference case: a line of a vector file.
struct VectorCase {
  std::size_t line = 0;
  std::string function;
  std::string kind;
  nlohmann::json arguments;
  nlohmann::json result;
  std::map<std::size_t, nlohmann::json> outputs;  // final content of arrays, by position of the argument
  std::optional<std::int64_t> asked;              // how often the StopRequest was asked
  std::optional<double> margin;                   // how near a rounded-up value was to a whole number
};

/// Parses a line. Throws with a message that says what is wrong with it.
VectorCase ParseCase(const std::string& text, std::size_t line);

/// Reads the cases of a file. Throws when it cannot be read or holds none.
std::vector<VectorCase> ReadCases(const std::string& path);

/// Puts what the list of superseded cases in a file says in place of the references of a family, the name of its file
/// without the ending. Throws where the list has a case that the family has not.
void Supersede(const std::string& path, const std::string& family, std::vector<VectorCase>& cases);

/// The arguments of the case for a function with these argument types. Throws when they do not fit.
std::vector<Argument> MakeArguments(const VectorCase& vectorCase, const std::string& types);

/// A number of a case; the strings "nan", "inf" and "-inf" stand for what JSON cannot express.
double ToDouble(const nlohmann::json& value);

/// An array of such numbers.
std::vector<double> ToArray(const nlohmann::json& value);

/// The call of the case, as C++ would write it.
std::string Describe(const VectorCase& vectorCase);

}  // namespace keltest

#endif
