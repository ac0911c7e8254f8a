#ifndef KELPOWER_PLANNER_MODEL_NAME_H
#define KELPOWER_PLANNER_MODEL_NAME_H

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

namespace planner {

/// The name of an input. A name in the source is looked up when it is compiled, and an unknown one does not compile; a
/// running program finds the input by its index.
class Name {
public:
  // NOLINTNEXTLINE(google-explicit-constructor): descriptions write names as texts.
  consteval Name(const char* text) : index_(KnownIndex(text)) {}

  constexpr std::size_t Index() const { return index_; }
  constexpr std::string_view Text() const { return all[index_]; }
  friend constexpr bool operator==(Name, Name) = default;

  /// The name that the text spells, if it is one.
  static std::optional<Name> Of(std::string_view text) {
    const std::size_t index = IndexOf(text);
    return index < count ? std::optional(Name(index)) : std::nullopt;
  }

private:
  // The names of all tests, one list for all. A new input is added here.
  static constexpr std::string_view all[] = {
      "adjust",
      "adjust-bias",
      "alpha",
      "assurance",
      "below",
      "chart",
      "cluster-cv",
      "cluster-size",
      "coefficients",
      "comparisons",
      "confidence",
      "correction",
      "correlation",
      "correlations",
      "counts",
      "df",
      "dropout",
      "effect-d",
      "effect-f",
      "effect-f2",
      "effect-h",
      "effect-q",
      "effect-sd",
      "eta-squared",
      "events",
      "exact",
      "f-statistic",
      "from",
      "groups",
      "half-width",
      "hedges-g",
      "icc",
      "interval",
      "interval-method",
      "jobs",
      "mean",
      "mean-difference",
      "means",
      "method",
      "n",
      "no-intercept",
      "null",
      "null-correlations",
      "odds-ratio",
      "one-sample",
      "one-sided",
      "p12",
      "p21",
      "pair",
      "partialled-out",
      "population",
      "power",
      "predictors",
      "proportion",
      "proportion1",
      "proportion2",
      "proportions",
      "r",
      "r-squared",
      "r-squared-reduced",
      "r12",
      "r13",
      "r14",
      "r23",
      "r24",
      "r34",
      "random",
      "ratio",
      "ratios",
      "risk-difference",
      "risk-ratio",
      "sd",
      "sd-difference",
      "sds",
      "solve",
      "stable",
      "step",
      "superiority",
      "t",
      "test",
      "test-value",
      "tested",
      "to",
      "unpooled",
      "variance",
  };

public:
  static constexpr std::size_t count = std::size(all);

private:
  explicit constexpr Name(std::size_t index) : index_(static_cast<unsigned char>(index)) {}

  static constexpr std::size_t IndexOf(std::string_view text) {
    return static_cast<std::size_t>(std::find(std::begin(all), std::end(all), text) - std::begin(all));
  }

  static consteval unsigned char KnownIndex(std::string_view text) {
    const std::size_t index = IndexOf(text);
    if (index == count) throw "an unknown name";
    return static_cast<unsigned char>(index);
  }

  unsigned char index_;
};

using Names = std::vector<Name>;

inline bool Contains(const Names& names, Name name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace planner

#endif
