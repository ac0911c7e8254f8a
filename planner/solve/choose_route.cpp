#include "solve/choose_route.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "model/problem.h"

namespace planner {
namespace {

bool IsCommon(Name name) {
  for (Name common : {Name("alpha"), Name("solve"), Name("below"), Name("confidence")}) {
    if (name == common) return true;
  }
  return std::any_of(std::begin(askedQuestions), std::end(askedQuestions),
                     [&](Question question) { return AskedBy(question) == name; });
}

std::vector<const Route*> RoutesOf(const Test& test, Question question) {
  std::vector<const Route*> routes;
  for (const Route& route : test.routes) {
    if (route.question == question) routes.push_back(&route);
  }
  return routes;
}

bool TakesAll(const Route& route, const Names& names) {
  return std::all_of(names.begin(), names.end(), [&](Name name) { return route.Takes(name); });
}

bool AnyTakesAll(const std::vector<const Route*>& routes, const Names& names) {
  return std::any_of(routes.begin(), routes.end(), [&](const Route* route) { return TakesAll(*route, names); });
}

/// The inputs that ask a question whose routes take `name`.
Names AskersOf(const Test& test, Name name) {
  Names askers;
  for (Question question : askedQuestions) {
    if (AnyTakesAll(RoutesOf(test, question), {name})) askers.push_back(*AskedBy(question));
  }
  return askers;
}

void RejectUnused(const Test& test, Question question, const std::vector<const Route*>& routes, const Names& given) {
  for (Name name : given) {
    if (AnyTakesAll(routes, {name})) continue;
    Names concerned{name};
    if (!AskedBy(question)) {
      const Names askers = AskersOf(test, name);
      concerned.insert(concerned.end(), askers.begin(), askers.end());
      throw InputError({.code = Code::UselessAlone, .inputs = Texts(concerned)});
    }
    concerned.push_back(*AskedBy(question));
    throw InputError({.code = Code::AsksSomethingElse, .inputs = Texts(concerned), .question = question});
  }
}

void RejectConflicts(const std::vector<const Route*>& routes, const Names& given) {
  for (std::size_t i = 0; i < given.size(); ++i) {
    for (std::size_t j = i + 1; j < given.size(); ++j) {
      if (AnyTakesAll(routes, {given[i], given[j]})) continue;
      throw InputError({.code = Code::Exclusive, .inputs = Texts({given[i], given[j]})});
    }
  }
  if (!AnyTakesAll(routes, given)) throw InputError({.code = Code::DoNotGoTogether, .inputs = Texts(given)});
}

Names Missing(const Route& route, const Names& given) {
  Names missing;
  std::copy_if(route.needs.begin(), route.needs.end(), std::back_inserter(missing),
               [&](Name need) { return !Contains(given, need); });
  return missing;
}

bool IsAmong(const Names& names, const Names& all) {
  return std::all_of(names.begin(), names.end(), [&](Name name) { return Contains(all, name); });
}

/// Whether another way to complete the inputs needs less of the same.
bool HasShorterWay(const std::vector<Names>& ways, const Names& way) {
  return std::any_of(ways.begin(), ways.end(),
                     [&](const Names& other) { return other.size() < way.size() && IsAmong(other, way); });
}

[[noreturn]] void RejectIncomplete(const Test& test, Question question, const std::vector<Names>& missing) {
  Problem problem{.code = Code::Incomplete, .question = question};
  bool sizesMissing = true;
  for (const Names& names : missing) {
    sizesMissing = sizesMissing && Contains(names, "n");
    const auto& said = problem.missing;
    const bool isSaid = std::find(said.begin(), said.end(), names) != said.end();
    if (!isSaid && !HasShorterWay(missing, names)) problem.missing.push_back(names);
  }
  // Where only the sizes are missing, they may be what is wanted.
  const bool mayAskForSizes = question == Question::Power && sizesMissing && Answers(test, Question::SampleSize);
  if (mayAskForSizes) problem.inputs = {"power", "n"};
  throw InputError(std::move(problem));
}

/// The target that is given, unless sizes are asked for.
std::optional<Name> TargetOfUnknown(const Names& given) {
  if (!Contains(given, "n") && !Contains(given, "solve")) return std::nullopt;
  for (Name target : {Name("power"), Name("half-width")}) {
    if (Contains(given, target)) return target;
  }
  return std::nullopt;
}

Names Without(Names names, const Names& others) {
  names.erase(std::remove_if(names.begin(), names.end(), [&](Name name) { return Contains(others, name); }),
              names.end());
  return names;
}

/// The route of the unknown's target from what is given and the unknown, or null.
const Route* RouteWith(const Test& test, const Unknown& unknown, Names given) {
  if (!unknown.set) given.push_back(unknown.input);
  for (const Route* route : RoutesOf(test, unknown.target)) {
    Names own;
    std::copy_if(given.begin(), given.end(), std::back_inserter(own), [](Name name) { return !IsCommon(name); });
    if (TakesAll(*route, own) && Missing(*route, own).empty()) return route;
  }
  return nullptr;
}

std::vector<const Unknown*> UnknownsOf(const Test& test, Question target, std::optional<Name> named) {
  std::vector<const Unknown*> unknowns;
  for (const Unknown& unknown : test.unknowns) {
    const bool isMeant = named ? unknown.input == *named : unknown.input != Name("alpha") && !unknown.set;
    if (isMeant && unknown.target == target) unknowns.push_back(&unknown);
  }
  return unknowns;
}

std::optional<Name> NamedUnknown(const InputValues& values) {
  const auto solve = values.find("solve");
  return solve == values.end() ? std::nullopt : Name::Of(std::get<std::string>(solve->second));
}

/// Says why no unknown can be solved for.
[[noreturn]] void RejectUnknown(const Test& test, Name target, std::optional<Name> named, const Names& given) {
  if (named && Contains(given, *named)) {
    throw InputError({.code = Code::SolvedForIsGiven, .inputs = Texts({*named, "solve"})});
  }
  const Question question = target == Name("power") ? Question::Power : Question::HalfWidth;
  if (named && UnknownsOf(test, question, named).empty()) {
    throw InputError({.code = Code::NotSolvedFor, .inputs = Texts({*named, target})});
  }
  // With what else the unknown would do.
  Names design = Without(given, {target, "interval"});
  if (named) design.push_back(*named);
  const Route& route = ChooseRoute(test, question, design);
  (void)route;
  throw InputError({.code = Code::NothingUnknown, .inputs = Texts({"n", target, "solve"})});
}

Asked FindUnknownAsked(const Test& test, const InputValues& values, const Names& given, Name target) {
  const Question question = target == Name("power") ? Question::Power : Question::HalfWidth;
  const std::optional<Name> named = NamedUnknown(values);
  const Names design = Without(given, {"power", "half-width", "interval"});
  if (named == Name("assurance") && question == Question::HalfWidth) {
    return {.route = &ChooseRoute(test, question, design), .isAssurance = true};
  }
  for (const Unknown* unknown : UnknownsOf(test, question, named)) {
    if (Contains(given, unknown->input)) continue;
    if (const Route* route = RouteWith(test, *unknown, design)) return {route, unknown};
  }
  RejectUnknown(test, target, named, given);
}

/// What belongs to sizes that are found.
void RejectBesideSizes(const Names& given) {
  for (Name name : {Name("dropout"), Name("assurance")}) {
    for (Name other : {Name("n"), Name("solve")}) {
      if (!Contains(given, name) || !Contains(given, other)) continue;
      throw InputError({.code = Code::BelongsToSizesFound, .inputs = Texts({name, other})});
    }
  }
}

}  // namespace

std::vector<std::string> Texts(const Names& names) {
  std::vector<std::string> texts;
  for (Name name : names) texts.emplace_back(name.Text());
  return texts;
}

Names GivenNames(const Test& test, const InputValues& values) {
  Names names;
  for (const auto& [name, value] : values) {
    const bool* flag = std::get_if<bool>(&value);
    if (flag && !*flag) continue;
    names.push_back(FindParameter(test, name)->name);
  }
  return names;
}

Question AskedQuestion(const Names& given) {
  Question asked = Question::Power;
  for (Question question : askedQuestions) {
    if (!Contains(given, *AskedBy(question))) continue;
    if (asked != Question::Power) {
      throw InputError({.code = Code::TwoQuestions, .inputs = Texts({*AskedBy(asked), *AskedBy(question)})});
    }
    asked = question;
  }
  return asked;
}

const Route& ChooseRoute(const Test& test, Question question, const Names& given) {
  const std::vector<const Route*> routes = RoutesOf(test, question);
  Names own;
  std::copy_if(given.begin(), given.end(), std::back_inserter(own), [](Name name) { return !IsCommon(name); });
  RejectUnused(test, question, routes, own);
  RejectConflicts(routes, own);
  std::vector<Names> incomplete;
  for (const Route* route : routes) {
    if (!TakesAll(*route, own)) continue;
    Names missing = Missing(*route, own);
    if (missing.empty()) return *route;
    incomplete.push_back(std::move(missing));
  }
  RejectIncomplete(test, question, incomplete);
}

Asked FindAsked(const Test& test, const InputValues& values) {
  const Names given = GivenNames(test, values);
  RejectBesideSizes(given);
  const Question question = AskedQuestion(given);
  if (const std::optional<Name> target = TargetOfUnknown(given)) {
    return FindUnknownAsked(test, values, given, *target);
  }
  for (Name name : {Name("solve"), Name("below")}) {
    if (Contains(given, name)) throw InputError({.code = Code::SolvesWithoutTarget, .inputs = Texts({name})});
  }
  return {&ChooseRoute(test, question, given)};
}

}  // namespace planner
