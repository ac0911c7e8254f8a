#include "solve/axes.h"

#include <algorithm>
#include <utility>

#include "solve/axis_kinds.h"

namespace planner {
namespace {

bool AreEqual(const Numbers& numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [&](double number) { return number == numbers.front(); });
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
    if (!IsThere(parameter.name) || parameter.name == Name("n") || parameter.role != Role::Figure) return;
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

}  // namespace

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

}  // namespace planner
