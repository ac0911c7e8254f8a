#pragma once

#include <string>
#include <vector>

#include "planner/chart.h"
#include "planner/inputs.h"

// What the questions about two independent proportions and their charts share.
namespace planner {

constexpr int arcsineTest = 3;
constexpr int conditionalTest = 4;  // 3 would let the search of sizes end by the z test

// An exact power counts tables: these groups take less than a second.
constexpr double largestExactGroup = 10000;

bool IsConditional(const Inputs& in);
bool IsExact(const Inputs& in);

/// The proportions, whichever way their difference is given.
double FirstProportion(const Inputs& in);
double SecondProportion(const Inputs& in);

double RiskDifference(const Inputs& in);
double RiskRatio(const Inputs& in);
double OddsRatio(const Inputs& in);

/// The ways to give the two proportions: the parameters of each.
std::vector<std::vector<std::string>> EffectsOfTwoProportions();

/// The options that choose the test.
std::vector<std::string> OptionsOfTwoProportions();

/// The names and one more.
std::vector<std::string> With(std::vector<std::string> names, const char* name);

std::vector<Chart> ChartsOfTwoProportions();

}  // namespace planner
