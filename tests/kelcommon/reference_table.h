#ifndef KELPOWER_TESTS_KELCOMMON_REFERENCE_TABLE_H
#define KELPOWER_TESTS_KELCOMMON_REFERENCE_TABLE_H

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

// Reference values of the distribution functions, and how far the library is from them. The files are described in
// references/README.md.

struct Outcome {
  double value;
  long err;  ///< the error code of the binomials, 0 for the others
};

using Arguments = std::array<double, 5>;

enum class Kind { probability, quantile, count, logarithm };

struct Function {
  std::string name;
  int arity;
  Kind kind;
  Outcome (*call)(const Arguments&);
};

/// Every function of the library, in the order of its header.
const std::vector<Function>& Functions();

/// The function of that name; ends the program when there is none.
const Function& FindFunction(const std::string& name);

struct ReferenceRow {
  std::string function;
  std::string region;
  Arguments arguments;
  double value;
  long err;
  std::string place;  ///< file and line
};

/// The rows of every file in the folder whose header starts with "function,a1", in the order of file names.
std::vector<ReferenceRow> ReadReferences(const std::string& folder);

/// The distance of a result from its reference.
struct Error {
  double absolute;
  double relative;         ///< of probabilities above 1e-12 and of every other result
  double relativeOfSmall;  ///< of probabilities from 1e-290 to 1e-12, which are held to what has been achieved only
};

/// The median of a symmetric distribution is compared with 0 itself, where the independent set has the noise of its
/// forty digits. NaN, the infinities, the missing value and error codes must agree exactly; where they do not the error
/// is infinite. So must counts. A logarithm of the gamma function below 1 is compared by its absolute error, its
/// relative error being that of the gamma function. Tails of noncentral distributions below 1e-25 in the independent
/// set are compared by their absolute error: their relative one would be that set's noise.
Error MeasureError(const Function& function, const ReferenceRow& row, const Outcome& outcome);

struct Worst {
  int cases = 0;
  Error largest = {0, 0, 0};
  const ReferenceRow* byAbsolute = nullptr;
  const ReferenceRow* byRelative = nullptr;
};

using FunctionRegion = std::pair<std::string, std::string>;

/// The largest errors per function and region. The result points into `rows`.
std::map<FunctionRegion, Worst> MeasureErrors(const std::vector<ReferenceRow>& rows);

/// The stored errors that must not grow.
std::map<FunctionRegion, Error> ReadAchieved(const std::string& path);
void WriteAchieved(const std::string& path, const std::map<FunctionRegion, Worst>& measured);

/// The arguments with all their digits, separated by commas.
std::string Describe(const ReferenceRow& row);

/// The shortest decimal that reads back as `value`.
std::string Shortest(double value);

#endif
