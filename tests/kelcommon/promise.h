#ifndef KELPOWER_TESTS_KELCOMMON_PROMISE_H
#define KELPOWER_TESTS_KELCOMMON_PROMISE_H

#include <limits>
#include <string>

#include "reference_table.h"

// What is promised over the domain of planning, whatever has been achieved.

/// The largest errors that are promised; infinite where none is.
struct Promise {
  double absolute;
  double relative;

  bool IsKeptBy(const Error& largest) const { return largest.absolute <= absolute && largest.relative <= relative; }
};

/// A quantile of the beta distribution is worse conditioned than those of t and F: with a shape a it follows p^(1/a).
/// The absolute error of a quantile has no scale of its own.
inline Promise PromiseOf(const Function& function) {
  constexpr double none = std::numeric_limits<double>::infinity();
  switch (function.kind) {
    case Kind::probability: return {1e-14, 1e-12};
    case Kind::quantile: return {none, function.name == "IdfT" || function.name == "IdfF" ? 1e-15 : 1e-13};
    case Kind::count: return {0, none};
    case Kind::logarithm: return {none, 1e-14};
  }
  return {0, 0};
}

/// Regions whose name starts with "beyond" lie outside the domain of planning.
inline bool IsPlanned(const std::string& region) { return region.rfind("beyond", 0) != 0; }

#endif
