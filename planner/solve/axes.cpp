#include "solve/axes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <string_view>
#include <utility>

namespace planner {
namespace {

constexpr double largestSize = 1e9;

const Names sizesAlone{"n"};

double Total(const Numbers& sizes) { return std::accumulate(sizes.begin(), sizes.end(), 0.0); }

/// Whole sizes in the shares of the design, of which that of group `reference` is `size`.
void ShareBy(Inputs& in, const Inputs& design, std::size_t reference, double size) {
  const Numbers& planned = design.List("n");
  for (std::size_t i = 0; i < planned.size(); ++i) {
    in.SetEntry("n", i, std::max(1.0, std::round(planned[i] * (size / planned[reference]))));
  }
}

Axis SingleSizeAxis(const Test& test, const Parameter& parameter) {
  return {.name = "n",
          .title = "sample size (" + test.counted + ")",
          .symbol = "n",
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return in.Number("n"); },
          .vary = [](Inputs& in, const Inputs&, double at) { in.Set("n", at); }};
}

/// Groups of unequal sizes keep their shares, and the axis is that of the first.
Axis GroupSizeAxis(const Test& test, const Parameter& parameter, bool isEqual) {
  const std::string title = isEqual ? "sample size per group (" + test.counted + ")"
                                    : std::string("size of the first group (the others in proportion)");
  return {.name = "n",
          .title = title,
          .symbol = isEqual ? "n per group" : "n of the first group",
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return in.List("n").front(); },
          .vary = [](Inputs& in, const Inputs& design, double at) { ShareBy(in, design, 0, at); }};
}

Axis TotalAxis(const Test& test, int groups) {
  return {.name = "total",
          .title = "total sample size (" + test.counted + ")",
          .symbol = "total",
          .needs = sizesAlone,
          .limits = {static_cast<double>(groups), groups * largestSize, true, true, true},
          .spacing = Spacing::Totals,
          .isOfSizes = true,
          .design = [](const Inputs& in) { return Total(in.List("n")); },
          .vary = [](Inputs& in, const Inputs& design, double at) { SetTotal(in, design, at); }};
}

Axis SizeOfGroupAxis(const Test& test, const Parameter& parameter, std::size_t group) {
  const std::string number = std::to_string(group + 1);
  const std::string name = std::string("n").append(number);
  return {.name = name,
          .title = "size of group " + number + " (" + test.counted + ")",
          .symbol = name,
          .needs = sizesAlone,
          .limits = parameter.limits,
          .spacing = Spacing::Whole,
          .isOfSizes = true,
          .design = [group](const Inputs& in) { return in.List("n")[group]; },
          .vary = [group](Inputs& in, const Inputs&, double at) { in.SetEntry("n", group, at); }};
}

bool AreEqual(const Numbers& numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [&](double number) { return number == numbers.front(); });
}

std::string TitleOf(const Parameter& parameter) {
  return parameter.unit.empty() ? parameter.label : parameter.label + " (" + parameter.unit + ")";
}

/// Levels and targets have no effect beyond which nothing happens.
std::optional<Range> UsualOf(Name name) {
  if (name == Name("alpha")) return Range{0.001, 0.2};
  if (name == Name("power")) return Range{0.5, 0.99};
  return std::nullopt;
}

Axis NumberAxis(const Parameter& parameter) {
  const Name name = parameter.name;
  return {.name = std::string(name.Text()),
          .title = TitleOf(parameter),
          .symbol = parameter.label,
          .needs = {name},
          .limits = parameter.limits,
          .spacing = parameter.limits.whole ? Spacing::Whole : Spacing::Even,
          .usual = UsualOf(name),
          .design = [name](const Inputs& in) { return in.Number(name); },
          .vary = [name](Inputs& in, const Inputs&, double at) { in.Set(name, at); }};
}

/// "mean2" of "means", "sd2" of "sd".
std::string NameOfEntry(Name list, std::size_t entry) {
  std::string_view name = list.Text();
  if (name.back() == 's') name.remove_suffix(1);
  return std::string(name) + std::to_string(entry + 1);
}

Axis EntryAxis(const Parameter& parameter, std::size_t entry) {
  const Name name = parameter.name;
  return {.name = NameOfEntry(name, entry),
          .title = parameter.label + ", number " + std::to_string(entry + 1),
          .symbol = NameOfEntry(name, entry),
          .needs = {name},
          .limits = parameter.limits,
          .design = [name, entry](const Inputs& in) { return in.List(name)[entry]; },
          .vary = [name, entry](Inputs& in, const Inputs&, double at) { in.SetEntry(name, entry, at); }};
}

/// Standard deviations that are given as a list keep their proportion.
Axis SpreadAxis(const Parameter& parameter, bool isEqual) {
  const Name name = parameter.name;
  return {.name = std::string(name.Text()),
          .title = isEqual ? "standard deviation" : "first standard deviation (the others in proportion)",
          .symbol = "SD",
          .needs = {name},
          .limits = parameter.limits,
          .design = [name](const Inputs& in) { return in.List(name).front(); },
          .vary =
              [name](Inputs& in, const Inputs& design, double at) {
                const Numbers& planned = design.List(name);
                for (std::size_t i = 0; i < planned.size(); ++i) {
                  in.SetEntry(name, i, planned[i] * (at / planned.front()));
                }
              }};
}

/// Collects axes. Of several with the same name the first stays.
class Menu {
public:
  Menu(const Test& test, const Route& route, const Inputs* design, int groups)
      : test_(test), route_(route), design_(design), groups_(groups) {}

  std::vector<Axis> Axes() && {
    for (const Parameter& parameter : test_.parameters) {
      if (parameter.name == Name("n") && IsThere(parameter.name)) AddSizes(parameter);
    }
    for (const Axis& axis : test_.axes) {
      if (std::all_of(axis.needs.begin(), axis.needs.end(), [&](Name need) { return IsThere(need); })) Add(axis);
    }
    for (const Parameter& parameter : test_.parameters) AddParameter(parameter);
    return std::move(axes_);
  }

private:
  bool IsThere(Name name) const {
    const bool isTaken = name == Name("alpha") || name == AskedBy(route_.question) || route_.Takes(name);
    return isTaken && (!design_ || design_->Has(name));
  }

  void Add(Axis axis) {
    const auto hasName = [&](const Axis& other) { return other.name == axis.name; };
    if (std::none_of(axes_.begin(), axes_.end(), hasName)) axes_.push_back(std::move(axis));
  }

  bool IsEqual(Name list) const { return !design_ || AreEqual(design_->List(list)); }

  void AddSizes(const Parameter& parameter) {
    if (!parameter.IsList()) return Add(SingleSizeAxis(test_, parameter));
    Add(GroupSizeAxis(test_, parameter, IsEqual("n")));
    Add(TotalAxis(test_, groups_));
    for (int group = 0; group < groups_; ++group) {
      Add(SizeOfGroupAxis(test_, parameter, static_cast<std::size_t>(group)));
    }
  }

  void AddParameter(const Parameter& parameter) {
    // Lists tell the number of groups, so that it cannot vary for itself. Weights of a contrast and numbers of groups
    // are no figures of a design.
    const Names fixed{"n", "groups", "coefficients", "pair", "ratios"};
    if (!IsThere(parameter.name) || Contains(fixed, parameter.name)) return;
    if (parameter.kind == Kind::Number) return Add(NumberAxis(parameter));
    if (!parameter.IsList()) return;
    if (parameter.name == Name("sd") || parameter.name == Name("sds")) {
      Add(SpreadAxis(parameter, IsEqual(parameter.name)));
    }
    const std::size_t entries = design_ ? design_->List(parameter.name).size() : static_cast<std::size_t>(groups_);
    for (std::size_t entry = 0; entry < std::max(entries, parameter.length); ++entry) Add(EntryAxis(parameter, entry));
  }

  const Test& test_;
  const Route& route_;
  const Inputs* design_;
  int groups_;
  std::vector<Axis> axes_;
};

/// The words that have asked for an axis before it had the name of its input.
constexpr std::pair<std::string_view, std::string_view> otherAxisNames[] = {{"effect", "effect-d"},
                                                                            {"effect", "effect-f"},
                                                                            {"effect", "eta-squared"},
                                                                            {"effect", "effect-f2"},
                                                                            {"alternative", "proportion"}};

constexpr std::pair<std::string_view, std::string_view> otherChartNames[] = {{"sizes", "n1-n2"},
                                                                             {"proportions", "proportion1-proportion2"},
                                                                             {"marginal", "proportion1-proportion2"},
                                                                             {"discordant", "p12-p21"}};

const Axis* AxisNamed(std::string_view name, const std::vector<Axis>& axes) {
  for (const Axis& axis : axes) {
    if (axis.name == name) return &axis;
  }
  for (const auto& [other, meant] : otherAxisNames) {
    if (other != name) continue;
    for (const Axis& axis : axes) {
      if (axis.name == meant) return &axis;
    }
  }
  return nullptr;
}

/// A size per group, a total and the size of a group cannot be varied against each other, except sizes of two groups.
bool GoTogether(const Axis& first, const Axis& second) {
  if (first.name == second.name) return false;
  if (!first.isOfSizes || !second.isOfSizes) return true;
  const auto isOfAll = [](const Axis& axis) { return axis.name == "n" || axis.name == "total"; };
  return !isOfAll(first) && !isOfAll(second);
}

}  // namespace

void SetTotal(Inputs& in, const Inputs& design, double at) {
  const std::size_t smallest = SmallestGroup(design);
  const Numbers& planned = design.List("n");
  const double near = std::max(1.0, std::round(at * (planned[smallest] / Total(planned))));
  for (const double size : {near, near - 1, near + 1}) {
    ShareBy(in, design, smallest, std::max(1.0, size));
    if (Total(in.List("n")) == at) return;
  }
  ShareBy(in, design, smallest, near);
}

std::size_t SmallestGroup(const Inputs& design) {
  const Numbers& planned = design.List("n");
  return static_cast<std::size_t>(std::min_element(planned.begin(), planned.end()) - planned.begin());
}

double TotalOf(const Inputs& design, double smallestSize) {
  const Numbers& planned = design.List("n");
  const double reference = planned[SmallestGroup(design)];
  double total = 0;
  for (double size : planned) total += std::max(1.0, std::round(size * (smallestSize / reference)));
  return total;
}

std::vector<Axis> AxesOf(const Test& test, const Route& route, int groups) {
  return Menu(test, route, nullptr, groups).Axes();
}

std::vector<Axis> AxesOf(const Test& test, const Route& route, const Inputs& design) {
  return Menu(test, route, &design, design.Groups()).Axes();
}

std::vector<Axis> AllAxes(const Test& test) {
  std::vector<Axis> all;
  for (const Route& route : test.routes) {
    if (AsksForSizes(route.question)) continue;
    for (Axis& axis : AxesOf(test, route, std::max(test.groups, 1))) {
      const auto hasName = [&](const Axis& other) { return other.name == axis.name; };
      if (std::none_of(all.begin(), all.end(), hasName)) all.push_back(std::move(axis));
    }
  }
  return all;
}

std::vector<Axis> AxesNamed(const std::string& name, const std::vector<Axis>& axes) {
  for (const auto& [other, meant] : otherChartNames) {
    if (other == name) return AxesNamed(std::string(meant), axes);
  }
  if (const Axis* axis = AxisNamed(name, axes)) return {*axis};
  for (std::size_t at = name.find('-'); at != std::string::npos; at = name.find('-', at + 1)) {
    const Axis* first = AxisNamed(std::string_view(name).substr(0, at), axes);
    const Axis* second = AxisNamed(std::string_view(name).substr(at + 1), axes);
    if (first && second && GoTogether(*first, *second)) return {*first, *second};
  }
  return {};
}

}  // namespace planner
