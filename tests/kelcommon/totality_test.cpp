#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>

#include "kelcommon/kel_mv.h"
#include "reference_table.h"

using KelCommon::KelMV;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// Doubles at which something changes, or once did. Every combination of them is an argument list.
const double specials[] = {std::numeric_limits<double>::quiet_NaN(),
                           -infinity,
                           -std::numeric_limits<double>::max(),
                           -1e16,
                           -37.5,
                           -1,
                           -1e-300,
                           -5e-324,
                           -0.0,
                           0,
                           5e-324,
                           1e-310,
                           1e-20,
                           1e-5,
                           0.3,
                           0.5,
                           1 - 0x1p-53,
                           1,
                           1 + 0x1p-52,
                           2.5,
                           10,
                           53,
                           1000,
                           123456.75,
                           1e9,
                           0x1p53,
                           1e17,
                           1e150,
                           1e300,
                           std::numeric_limits<double>::max(),
                           infinity};

bool IsSameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

bool IsInRange(const Function& function, double value) {
  if (std::isnan(value) || KelMV::IsMissing(value)) return true;
  if (function.name == "MeanOverChi") return value >= 0 && value <= 1 + 1e-13;  // the weights add up to 1 but for that
  if (function.kind == Kind::probability && function.name.rfind("Pdf", 0) != 0) return value >= 0 && value <= 1;
  if (function.kind == Kind::probability) return value >= 0;  // a mass at a real point may exceed 1
  if (function.name == "IdfBeta") return value >= 0 && value <= 1;
  if (function.name == "IdfCorrelation") return value >= -1 && value <= 1;
  if (function.kind == Kind::quantile && function.name != "IdfT" && function.name != "IdfStdNorm") return value >= 0;
  if (function.kind == Kind::count) return value >= -1;
  return true;
}

// The trailing tuning arguments are not varied: they are not looked at.
int VariedArguments(const Function& function) {
  if (function.name == "IdfT") return 2;
  if (function.name == "NonCentralCdfT") return 3;
  if (function.name == "NonCentralCdfF") return 4;
  return function.arity;
}

// Four arguments take every third special after the first, and the studentized range, which is slow, every second one,
// so that the test stays one of seconds.
std::size_t SpecialStride(const Function& function) {
  if (VariedArguments(function) > 3) return 3;
  return function.name.find("StudentizedRange") != std::string::npos ? 2 : 1;
}

// A mean over no distribution is no number either; below a limit of 0 the function is not asked.
bool IsNan(const Function& function, const Arguments& arguments) {
  const bool isMean = function.name == "MeanOverChi";
  if (isMean && (!(arguments[2] > 0) || std::isnan(arguments[3]))) return true;
  if (isMean && arguments[3] <= 0) return false;
  for (const double argument : arguments)
    if (std::isnan(argument)) return true;
  return false;
}

class Totality : public testing::TestWithParam<std::string> {
protected:
  void CheckAll(int position) {
    if (position == VariedArguments(function_)) return CheckOne();
    for (std::size_t i = 0; i < std::size(specials); i += SpecialStride(function_)) {
      arguments_[static_cast<std::size_t>(position)] = specials[i];
      CheckAll(position + 1);
    }
  }

  void CheckOne() {
    ++calls_;
    const Outcome first = function_.call(arguments_);
    const Outcome second = function_.call(arguments_);
    const bool isRight = IsSameBits(first.value, second.value) && first.err == second.err &&
                         IsInRange(function_, first.value) && std::isnan(first.value) == IsNan(function_, arguments_) &&
                         (first.err == 0 || first.err == 1);
    if (!isRight && ++failures_ <= 10) {
      const ReferenceRow row{function_.name, "", arguments_, 0, 0, ""};
      ADD_FAILURE() << function_.name << "(" << Describe(row) << ") = " << Shortest(first.value) << ", error code "
                    << first.err << ", again " << Shortest(second.value);
    }
  }

  const Function& function_ = FindFunction(GetParam());
  Arguments arguments_{};
  long calls_ = 0;
  long failures_ = 0;
};

// NaN exactly when an argument is NaN; otherwise the missing value or a value in range; the same bits twice. A call
// that does not return is ended by the time limit of the test run; the accuracy program measures the times.
TEST_P(Totality, AnswersEverySpecialArgument) {
  CheckAll(0);
  EXPECT_EQ(failures_, 0) << "of " << calls_ << " calls";
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const Function& function : Functions()) names.push_back(function.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Kelcommon, Totality, testing::ValuesIn(Names()), [](const auto& test) { return test.param; });

}  // namespace
