#include <optional>
#include <string>
#include <string_view>

#include "solve/axis_kinds.h"

namespace planner {
namespace {

std::string TitleOf(const Parameter& parameter) {
  return parameter.unit.empty() ? parameter.label : parameter.label + " (" + parameter.unit + ")";
}

/// Levels and targets have no effect beyond which nothing happens.
std::optional<Range> UsualOf(Name name) {
  if (name == Name("alpha")) return Range{0.001, 0.2};
  if (name == Name("power")) return Range{0.5, 0.99};
  return std::nullopt;
}

/// "mean2" of "means", "sd2" of "sd".
std::string NameOfEntry(Name list, std::size_t entry) {
  std::string_view name = list.Text();
  if (name.back() == 's') name.remove_suffix(1);
  return std::string(name) + std::to_string(entry + 1);
}

}  // namespace

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

}  // namespace planner
