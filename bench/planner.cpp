#include <benchmark/benchmark.h>

#include "catalogue/catalogue.h"
#include "kelpower.h"
#include "solve/chart.h"
#include "solve/design_solver.h"
#include "solve/prepared_question.h"
#include "solve/solve.h"
#include "words/render.h"

// What the planner costs beside the library's own call: the export, one row of a prepared question, and whole answers.
namespace {

using planner::InputValues;
using planner::Numbers;
using planner::PreparedQuestion;

const InputValues design{{"means", Numbers{52, 47}}, {"sd", Numbers{10, 14}}, {"n", Numbers{40, 60}}};

const planner::Test& TwoMeans() { return *planner::FindTest("two-means"); }

double NextMean(double& mean) {
  mean = mean < 60 ? mean + 0.01 : 50;
  return mean;
}

void Export(benchmark::State& state) {
  double mean = 50;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PowerIndependentNondirectional(40, NextMean(mean), 10, 60, 47, 14, 0.05));
  }
}
BENCHMARK(Export)->Name("planner/power/export");

void PreparedRow(benchmark::State& state) {
  PreparedQuestion question(TwoMeans(), design);
  question.SetColumns({{"means", 0}});
  double mean = 50;
  for (auto _ : state) {
    const double row[] = {NextMean(mean)};
    benchmark::DoNotOptimize(question.Evaluate(row).value);
  }
}
BENCHMARK(PreparedRow)->Name("planner/power/prepared_row");

// In clusters the sizes are divided by the design effect, in inputs of their own.
void PreparedRowOfClusters(benchmark::State& state) {
  InputValues values = design;
  values["cluster-size"] = 20.0;
  values["icc"] = 0.05;
  PreparedQuestion question(TwoMeans(), values);
  question.SetColumns({{"means", 0}});
  double mean = 50;
  for (auto _ : state) {
    const double row[] = {NextMean(mean)};
    benchmark::DoNotOptimize(question.Evaluate(row).value);
  }
}
BENCHMARK(PreparedRowOfClusters)->Name("planner/power/prepared_row_of_clusters");

// The cheapest export shows the planner's own share best.
void CheapExport(benchmark::State& state) {
  double r = 0.1;
  for (auto _ : state) {
    r = r < 0.9 ? r + 1e-4 : 0.1;
    benchmark::DoNotOptimize(HalfCIOneSampPartial(84, 3, r, 0.05));
  }
}
BENCHMARK(CheapExport)->Name("planner/half_width/export");

void CheapPreparedRow(benchmark::State& state) {
  PreparedQuestion question(*planner::FindTest("partial"),
                            {{"r", 0.3}, {"partialled-out", 3.0}, {"n", 84.0}, {"interval", true}});
  question.SetColumns({{"r"}});
  double r = 0.1;
  for (auto _ : state) {
    r = r < 0.9 ? r + 1e-4 : 0.1;
    const double row[] = {r};
    benchmark::DoNotOptimize(question.Evaluate(row).value);
  }
}
BENCHMARK(CheapPreparedRow)->Name("planner/half_width/prepared_row");

// A design of a file beside the library's own call: its shape is looked up, its numbers are put in, the results collected.
void DesignRowSolved(benchmark::State& state) {
  const planner::Test& test = TwoMeans();
  planner::DesignSolver solver;
  planner::DesignRow row;
  const auto parameter = [&](const char* name) { return planner::FindParameter(test, std::string_view(name)); };
  const planner::Parameter& means = *parameter("means");
  const planner::Parameter& sd = *parameter("sd");
  const planner::Parameter& n = *parameter("n");
  const double sds[] = {10, 14};
  const double sizes[] = {40, 60};
  double mean = 50;
  for (auto _ : state) {
    const double pair[] = {NextMean(mean), 47};
    row.Start(test);
    row.AddNumbers(means, pair);
    row.AddNumbers(sd, sds);
    row.AddNumbers(n, sizes);
    benchmark::DoNotOptimize(solver.Solve(row).values.data());
  }
}
BENCHMARK(DesignRowSolved)->Name("planner/power/design_row");

void CheapDesignRow(benchmark::State& state) {
  const planner::Test& test = *planner::FindTest("partial");
  planner::DesignSolver solver;
  planner::DesignRow row;
  const auto parameter = [&](const char* name) { return planner::FindParameter(test, std::string_view(name)); };
  const planner::Parameter& correlation = *parameter("r");
  const planner::Parameter& count = *parameter("partialled-out");
  const planner::Parameter& n = *parameter("n");
  const planner::Parameter& interval = *parameter("interval");
  double r = 0.1;
  for (auto _ : state) {
    r = r < 0.9 ? r + 1e-4 : 0.1;
    row.Start(test);
    row.AddNumber(correlation, r);
    row.AddNumber(count, 3);
    row.AddNumber(n, 84);
    row.AddFlag(interval, true);
    benchmark::DoNotOptimize(solver.Solve(row).values.data());
  }
}
BENCHMARK(CheapDesignRow)->Name("planner/half_width/design_row");

void WholeSolve(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(planner::Solve(TwoMeans(), design).value);
}
BENCHMARK(WholeSolve)->Name("planner/power/solve");

void WholeReport(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(planner::RenderJson(planner::MakeReport(planner::Solve(TwoMeans(), design))));
  }
}
BENCHMARK(WholeReport)->Name("planner/power/solve_and_json");

void SizeExport(benchmark::State& state) {
  for (auto _ : state) {
    Numbers sizes;
    PowerReverseIndependentNondirectionalES(0.8, 1, 0.5, sizes, 0.05);
    benchmark::DoNotOptimize(sizes.data());
  }
}
BENCHMARK(SizeExport)->Name("planner/size/export");

void SizeSolve(benchmark::State& state) {
  const InputValues target{{"effect-d", 0.5}, {"power", 0.8}};
  for (auto _ : state) benchmark::DoNotOptimize(planner::Solve(TwoMeans(), target).value);
}
BENCHMARK(SizeSolve)->Name("planner/size/solve");

void Surface(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(planner::ComputeChart(TwoMeans(), {.name = "ratio-difference"}, design).First().value);
  }
}
BENCHMARK(Surface)->Name("planner/chart/surface_of_101_by_101")->Unit(benchmark::kMillisecond);

// Surfaces of 500 sizes by 50 effects; bench/anova.cpp has their distribution values one by one.
void SurfaceOfFTest(benchmark::State& state) {
  const InputValues groups{{"effect-f", 0.3}, {"n", Numbers{40, 40, 40}}};
  for (auto _ : state) {
    const planner::ChartRequest request{"n-effect-f", {4, 0.02}, {503, 1}, 1.0 / 49};
    benchmark::DoNotOptimize(planner::ComputeChart(*planner::FindTest("anova"), request, groups).First().value);
  }
}
BENCHMARK(SurfaceOfFTest)->Name("planner/chart/f_test_500_by_50")->Unit(benchmark::kMillisecond);

void SurfaceOfRegression(benchmark::State& state) {
  const InputValues model{{"effect-f2", 0.1}, {"predictors", 3.0}, {"n", 80.0}};
  for (auto _ : state) {
    const planner::ChartRequest request{"n-effect-f2", {10, 0.0004}, {509, 1}, 1.0 / 49};
    benchmark::DoNotOptimize(planner::ComputeChart(*planner::FindTest("regression"), request, model).First().value);
  }
}
BENCHMARK(SurfaceOfRegression)->Name("planner/chart/regression_500_by_50")->Unit(benchmark::kMillisecond);

}  // namespace
