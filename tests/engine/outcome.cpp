#include "outcome.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <sstream>

#include "engine.h"

namespace keltest {
namespace {

constexpr double missingValue = std::numeric_limits<double>::lowest();

// Rounding can leave the sum of two tails this far above 1, or a difference of them below 0.
constexpr double rounding = 1e-13;

// An exact power that is told to stop is part of a search, which evaluates the other end of its bracket, asks before it
// widens that, and asks once more before it looks for smaller sizes.
constexpr std::int64_t lateQuestions = 3;

bool StartsWith(const std::string& text, const std::string& start) { return text.compare(0, start.size(), start) == 0; }

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

bool IsProbabilityOrSentinel(double value) {
  if (std::isnan(value) || value == missingValue || value == -1 || value == -2) return true;
  return value >= -rounding && value <= 1 + rounding;
}

bool IsSinglePrecision(double value) {
  if (!std::isfinite(value)) return true;
  return std::abs(value) <= std::numeric_limits<float>::max() &&
         static_cast<double>(static_cast<float>(value)) == value;
}

// A level that is not checked, infinite arguments and NaN give what the arithmetic makes of them.
bool IsOrdinary(const Target& target, const Arguments& arguments) {
  const auto isFinite = [](double number) { return std::isfinite(number); };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Argument& argument = arguments[i];
    if (!isFinite(argument.number)) return false;
    if (!std::all_of(argument.array.begin(), argument.array.end(), isFinite)) return false;
    if (target.names[i] == "alpha" && !(argument.number > 0 && argument.number < 1)) return false;
  }
  return true;
}

// Whether a NaN among the arguments must be seen in the result. Exact tests count what they can. A contrast of means
// whose standard deviation is not above 0 has no effect, which gives power 1; NaN is not above 0.
bool PassesNaNOn(const Target& target, const Arguments& arguments) {
  if (EnumeratesSamples(target, arguments)) return false;
  const std::string& function = target.function->name;
  const bool isContrastOfMeans = function == "PowerSC" || function == "PowerPairwiseDiff";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (std::isnan(arguments[i].number) && !(isContrastOfMeans && target.names[i] == "pooledSD")) return true;
  }
  return false;
}

// Charts of random predictors have a step of their own.
bool HasNoStep(const Target& target, const Arguments& arguments) {
  if (target.Has("randomPredictors") && target.Integer(arguments, "randomPredictors") == 1) return false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (StartsWith(target.names[i], "step") && !(arguments[i].number > 0)) return true;
  }
  return false;
}

// These surfaces replace values outside [0, 1] by unrounded coordinates.
bool ReplacesValues(const std::string& function) { return StartsWith(function, "PlotRatioa"); }

bool IsPower(const Target& target) { return StartsWith(target.function->name, "Power") && !IsSearch(target); }

class Observation {
public:
  Observation(const Target& target, const Arguments& arguments, Outcome& outcome)
      : target_(target),
        isOrdinary_(IsOrdinary(target, arguments)),
        passesNaNOn_(PassesNaNOn(target, arguments)),
        hasNoStep_(HasNoStep(target, arguments)),
        outcome_(outcome) {}

  void SeeResult(Result& result) {
    const std::string& type = target_.function->result;
    if (type == "d") SeeNumber(result.number);
    if (type == "XY") SeeCurve(result.curve);
    if (type == "XYZ") SeeSurface(result.surface);
  }

  void SeeArguments(const Arguments& before, const Arguments& after) {
    for (std::size_t i = 0; i < after.size(); ++i) {
      const char type = target_.function->arguments[i];
      if (type == 'p' || type == 'P') SeeArray(target_.names[i], before[i].array, after[i].array, Writable(before, i));
      if (type == 'v') SeeVector(target_.names[i], before[i].array, after[i].array);
      if (type == 's') SeeQuestions(after[i].stopRequest);
    }
  }

  // A power that was told to stop is missing; a search may have found a size before.
  void SeeStop(const Result& result, const Arguments& after) {
    for (const Argument& argument : after) {
      const CountingStop& stop = argument.stopRequest;
      const bool isStopped = stop.asked > 0 && stop.asked >= stop.stopsAt;
      if (isStopped && IsPower(target_) && result.number != missingValue)
        Report("stopped, but not missing", result.number);
    }
  }

private:
  void Report(const std::string& problem) { outcome_.problems.push_back(problem); }

  void Report(const std::string& problem, double value) {
    std::ostringstream text;
    text.precision(17);
    text << problem << ": " << value;
    Report(text.str());
  }

  void Append(std::uint64_t bits) { outcome_.bits.push_back(bits); }

  void Append(double number) {
    std::uint64_t bits;
    std::memcpy(&bits, &number, sizeof bits);
    Append(bits);
  }

  void Append(const double* numbers, std::int64_t count) {
    Append(static_cast<std::uint64_t>(count));
    Append(static_cast<std::uint64_t>(numbers != nullptr));
    for (std::int64_t i = 0; numbers && i < count; ++i) Append(numbers[i]);
  }

  void SeeNumber(double number) {
    Append(number);
    if (!IsPower(target_)) return;
    if (isOrdinary_ && !IsProbabilityOrSentinel(number)) Report("not a power", number);
    if (passesNaNOn_ && number >= 0) Report("NaN has a power", number);
  }

  void SeeValues(const double* values, std::int64_t count) {
    Append(values, count);
    const std::string& name = target_.function->name;
    if (ReplacesValues(name)) return;
    const bool isSingle = !StoresDoublePrecision(name);
    for (std::int64_t i = 0; values && i < count; ++i) {
      const double stored =
          isSingle && values[i] == -std::numeric_limits<double>::infinity() ? missingValue : values[i];
      if (isOrdinary_ && !IsProbabilityOrSentinel(stored)) Report("not a power", values[i]);
      if (isSingle && !IsSinglePrecision(values[i])) Report("not in single precision", values[i]);
    }
  }

  void SeeCurve(XYPlot& curve) {
    if (curve.count < 0) Report("negative count", curve.count);
    if (!curve.x != !curve.y) Report("only one of two arrays");
    if (hasNoStep_ && curve.x) Report("points without a step");
    if (!curve.x && curve.count != 0) Report("points without arrays");
    Append(curve.x, curve.count);
    SeeValues(curve.y, curve.count);

    const XYPlot before = curve;
    FreeMemXYPlot(&curve);
    if (curve.x || curve.y != before.y || curve.count != before.count) Report("not released as documented");
  }

  void SeeSurface(XYZPlot& surface) {
    if (surface.xCount < 0) Report("negative count", surface.xCount);
    if (surface.yCount < 0) Report("negative count", surface.yCount);
    if (!surface.x != !surface.y || !surface.x != !surface.z) Report("only some of three arrays");
    if (hasNoStep_ && surface.x) Report("points without a step");
    if (!surface.x && (surface.xCount != 0 || surface.yCount != 0)) Report("points without arrays");
    Append(surface.x, surface.xCount);
    Append(surface.y, surface.yCount);
    SeeValues(surface.z, std::int64_t{surface.xCount} * surface.yCount);

    const XYZPlot before = surface;
    FreeMemXYZPlot(&surface);
    if (surface.x || surface.y || surface.z != before.z) Report("not released as documented");
    if (surface.xCount != before.xCount || surface.yCount != before.yCount) Report("not released as documented");
  }

  // The one entry of an array that a call may change: contrast coefficients that do not sum to 0 are repaired in the
  // last one. Searches work on a copy.
  std::size_t Writable(const Arguments& before, std::size_t position) const {
    constexpr std::size_t noIndex = SIZE_MAX;
    if (target_.function->arguments[position] != 'P' || IsSearch(target_)) return noIndex;
    const std::int32_t numGroups = target_.Integer(before, "numGroups");
    return numGroups > 0 ? static_cast<std::size_t>(numGroups) - 1 : noIndex;
  }

  void SeeArray(const std::string& name, const std::vector<double>& before, const std::vector<double>& after,
                std::size_t writable) {
    Append(after.data(), static_cast<std::int64_t>(after.size()));
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (i != writable && !SameBits(before[i], after[i])) Report(name + " was changed");
    }
  }

  void SeeVector(const std::string& name, const std::vector<double>& before, const std::vector<double>& after) {
    Append(after.data(), static_cast<std::int64_t>(after.size()));
    if (!outcome_.ranOutOfMemory) return;
    const bool isSame = std::equal(before.begin(), before.end(), after.begin(), after.end(), SameBits);
    const bool isMissing = std::all_of(after.begin(), after.end(), [](double size) { return size == missingValue; });
    if (!isSame && !isMissing) Report(name + " is half made");
  }

  void SeeQuestions(const CountingStop& stop) {
    Append(static_cast<std::uint64_t>(stop.asked));
    const std::int64_t first = std::max<std::int64_t>(stop.stopsAt, 1);
    if (stop.asked - first > lateQuestions) Report("goes on after a true answer", double(stop.asked - first));
  }

  const Target& target_;
  bool isOrdinary_;
  bool passesNaNOn_;
  bool hasNoStep_;
  Outcome& outcome_;
};

}  // namespace

Outcome Observe(const Target& target, const Arguments& arguments, CallThrough call) {
  Outcome outcome;
  Arguments after = arguments;
  Result result;
  try {
    result = call(*target.function, after);
  } catch (const std::bad_alloc&) {
    outcome.ranOutOfMemory = true;
  }
  Observation observation(target, arguments, outcome);
  if (!outcome.ranOutOfMemory) {
    observation.SeeResult(result);
    observation.SeeStop(result, after);
  }
  observation.SeeArguments(arguments, after);
  return outcome;
}

}  // namespace keltest
