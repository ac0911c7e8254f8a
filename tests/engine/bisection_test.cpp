// Every search for a size by a test that is not exact, on random designs: the library, which evaluates few points of
// its bisection, gives the bits of the same library with the plain bisection, and asks the StopRequest as often.
//
// KELPOWER_DESIGNS is the number of designs of each export, KELPOWER_SEED starts their random numbers.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "target.h"

namespace {

using namespace keltest;

std::string FromEnvironment(const char* name, const char* otherwise) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : otherwise;
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// --- The same function in both libraries ---

Function PlainOf(const Function& function) {
  static void* const library = dlopen(KELPOWER_PLAIN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* const address = dlsym(library, function.name.c_str());
  if (address == nullptr) throw std::runtime_error(dlerror());
  Function plain = function;
  plain.address = reinterpret_cast<void (*)()>(address);
  return plain;
}

// --- Random designs near the reference cases ---

std::vector<VectorCase> CasesOf(const std::string& function) {
  std::vector<VectorCase> cases;
  for (const VectorCase& vectorCase : AllCases())
    if (vectorCase.function == function) cases.push_back(vectorCase);
  return cases;
}

const std::vector<double> extremes = {0,
                                      -0.0,
                                      1,
                                      -1,
                                      2,
                                      1e-300,
                                      1e-160,
                                      1e-17,
                                      1 - 1e-16,
                                      1e17,
                                      1e160,
                                      1e300,
                                      1e308,
                                      0.999999,
                                      1e-9,
                                      std::numeric_limits<double>::denorm_min(),
                                      std::numeric_limits<double>::infinity(),
                                      std::numeric_limits<double>::quiet_NaN()};

class Designs {
public:
  Designs(const Target& target, std::uint64_t seed)
      : function_(*target.function), names_(target.names), cases_(CasesOf(target.function->name)), random_(seed) {}

  Arguments Next() {
    const std::size_t pick = std::uniform_int_distribution<std::size_t>(0, cases_.size() - 1)(random_);
    Arguments arguments = MakeArguments(cases_[pick], function_.arguments);
    for (std::size_t i = 0; i < arguments.size(); ++i) Vary(arguments[i], function_.arguments[i], names_[i]);
    return arguments;
  }

private:
  void Vary(Argument& argument, char type, const std::string& name) {
    argument.number = Near(argument.number);
    for (double& entry : argument.array) entry = Near(entry);
    if (IsExactness(name)) argument.integer = 0;
    if (type != 's') return;
    argument.isNull = Chance(0.5);
    argument.stopRequest.stopsAt = Chance(0.1) ? std::uniform_int_distribution<int>(1, 80)(random_) : INT64_MAX;
    argument.stopRequest.asked = 0;
  }

  // Exact computations are not searched in this way.
  bool IsExactness(const std::string& name) const {
    return name == "exact" || (name == "method" && Contains(function_.name, "OneSamp"));
  }

  // A number between 0 and 1, such as a level, keeps between them; others keep their sign.
  double Near(double x) {
    if (Chance(0.02)) return extremes[std::uniform_int_distribution<std::size_t>(0, extremes.size() - 1)(random_)];
    if (Chance(0.1)) return x;
    const double factor = std::exp(std::normal_distribution<double>(0, 1)(random_));
    if (x > 0 && x < 1) return x * factor / (1 - x + x * factor);
    return x * factor;
  }

  bool Chance(double probability) { return std::bernoulli_distribution(probability)(random_); }

  const Function& function_;
  std::vector<std::string> names_;
  std::vector<VectorCase> cases_;
  std::mt19937_64 random_;
};

// --- The comparison ---

// All that a call gives, as bits.
std::string OutcomeOf(const Function& function, Arguments arguments) {
  const Result result = Call(function, arguments);
  std::string bits(reinterpret_cast<const char*>(&result.number), sizeof result.number);
  for (const Argument& argument : arguments) {
    const std::vector<double>& array = argument.array;
    bits += std::to_string(argument.stopRequest.asked);
    bits.append(reinterpret_cast<const char*>(array.data()), array.size() * sizeof(double));
  }
  return bits;
}

class Bisection : public testing::TestWithParam<Target> {};

TEST_P(Bisection, GivesTheBitsOfThePlainOne) {
  const Function& function = *GetParam().function;
  const Function plain = PlainOf(function);
  ASSERT_NE(plain.address, function.address);
  const int count = std::stoi(FromEnvironment("KELPOWER_DESIGNS", "3500"));
  const std::uint64_t seed = std::stoull(FromEnvironment("KELPOWER_SEED", "1"));
  Designs designs(GetParam(), seed);
  for (int i = 0; i < count; ++i) {
    const Arguments arguments = designs.Next();
    ASSERT_EQ(OutcomeOf(function, arguments), OutcomeOf(plain, arguments)) << Describe(GetParam(), arguments);
  }
}

std::vector<Target> Searches() {
  std::vector<Target> searches;
  for (const Target& target : Targets())
    if (IsSearch(target)) searches.push_back(target);
  return searches;
}

INSTANTIATE_TEST_SUITE_P(Exports, Bisection, testing::ValuesIn(Searches()),
                         [](const auto& tested) { return tested.param.function->name; });

}  // namespace
