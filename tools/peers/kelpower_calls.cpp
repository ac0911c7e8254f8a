// Times the exported functions on the designs that other programs are asked too.

#include <benchmark/benchmark.h>

#include <string>

#include "compiler.h"
#include "kelpower.h"

namespace {

// Three groups of the means 10, 12 and 15 with a standard deviation of 6, and five groups with a small effect f.
constexpr double threeMeans[] = {10, 12, 15};
constexpr double twenty[] = {20, 20, 20};
constexpr double manyEach[] = {240, 240, 240, 240, 240};

// The size of the first group, as the functions of two groups give it.
template <typename Search>
double FirstSize(Search search) {
  DoubleVector sizes;
  search(sizes);
  return sizes[0];
}

struct Design {
  const char* name;  // the same in every program
  double (*power)();
  double (*size)();
};

const Design designs[] = {
    {"one-sample-t", [] { return PowerOneSampleNondirectionalES(40, 0.4, 0.05); },
     [] { return PowerReverseOneSampleNondirectionalES(0.8, 0.4, 0.05); }},
    {"one-sample-t-one-sided", [] { return PowerOneSampleDirectionalES(40, 0.4, 0.05); },
     [] { return PowerReverseOneSampleDirectionalES(0.8, 0.4, 0.05); }},
    {"paired-t", [] { return PowerRelatedNondirectionalES(30, 0.5, 0.05); },
     [] { return PowerReverseRelatedNondirectionalES(0.9, 0.5, 0.05); }},
    {"two-sample-t", [] { return PowerIndependentNondirectionalES(64, 64, 0.5, 0.05); },
     [] {
       return FirstSize([](DoubleVector& sizes) { PowerReverseIndependentNondirectionalES(0.8, 1, 0.5, sizes, 0.05); });
     }},
    {"two-sample-t-one-sided", [] { return PowerIndependentDirectionalES(64, 64, 0.5, 0.05); },
     [] {
       return FirstSize([](DoubleVector& sizes) { PowerReverseIndependentDirectionalES(0.8, 1, 0.5, sizes, 0.05); });
     }},
    {"two-sample-t-small-effect", [] { return PowerIndependentNondirectionalES(1600, 1600, 0.1, 0.05); },
     [] {
       return FirstSize([](DoubleVector& sizes) { PowerReverseIndependentNondirectionalES(0.8, 1, 0.1, sizes, 0.05); });
     }},
    {"two-sample-t-unequal", [] { return PowerIndependentNondirectionalES(40, 80, 0.5, 0.05); },
     [] {
       return FirstSize([](DoubleVector& sizes) { PowerReverseIndependentNondirectionalES(0.8, 2, 0.5, sizes, 0.05); });
     }},
    {"anova", [] { return PowerOverallTest(3, threeMeans, 6, twenty, 0.05); },
     [] {
       return FirstSize(
           [](DoubleVector& sizes) { PowerReverseOverallTest(3, threeMeans, 6, twenty, 0.8, sizes, 0.05); });
     }},
    {"anova-small-effect", [] { return PowerOverallTestwES(5, 0.1, 0, manyEach, 0.05); },
     [] {
       return FirstSize([](DoubleVector& sizes) { PowerReverseOverallTestwES(5, 0.1, 0, manyEach, 0.8, sizes, 0.05); });
     }},
    {"one-proportion", [] { return PowerOneSampBinom(50, 0.7, 0.5, 0, 0, 0.05, 0, nullptr); },
     [] { return PowerReverseOneSampBinom(0.8, 0.7, 0.5, 0, 0, 0.05, 0, nullptr); }},
    {"two-proportions-z", [] { return PowerIndSampBinom(100, 100, 0.3, 0.5, 0, 0, 0, 0.05, 0, 1, nullptr); },
     [] {
       return FirstSize([](DoubleVector& sizes) {
         PowerReverseIndSampBinom(0.8, 0.3, 0.5, sizes, 1, 0, 0, 0, 0.05, 0, 1, nullptr);
       });
     }},
    {"two-proportions-arcsine", [] { return PowerIndSampBinom(100, 100, 0.3, 0.5, 0, 3, 0, 0.05, 0, 0, nullptr); },
     [] {
       return FirstSize([](DoubleVector& sizes) {
         PowerReverseIndSampBinom(0.8, 0.3, 0.5, sizes, 1, 0, 3, 0, 0.05, 0, 0, nullptr);
       });
     }},
    {"two-proportions-unequal", [] { return PowerIndSampBinom(80, 160, 0.3, 0.5, 0, 3, 0, 0.05, 0, 0, nullptr); },
     [] {
       return FirstSize([](DoubleVector& sizes) {
         PowerReverseIndSampBinom(0.8, 0.3, 0.5, sizes, 2, 0, 3, 0, 0.05, 0, 0, nullptr);
       });
     }},
    {"correlation", [] { return PowerbyOneSampPearson(85, 0.3, 0, 0, 1, 0.05); },
     [] { return PowerReversebyOneSampPearson(0.8, 0.3, 0, 0, 1, 0.05, nullptr); }},
    {"regression", [] { return PowerbymlrwES(95, 5, 5, 1.0 / 9, 0, 1, 0.05); },
     [] { return PowerReversebymlrwES(0.8, 5, 5, 1.0 / 9, 0, 1, 0.05); }},
};

void Time(benchmark::State& state, double (*call)()) {
  for (auto _ : state) benchmark::DoNotOptimize(call());
  state.counters["answer"] = call();
}

}  // namespace

int main(int argc, char** argv) {
  for (const Design& design : designs) {
    const std::string name = design.name;
    benchmark::RegisterBenchmark((name + "/power").c_str(), Time, design.power);
    benchmark::RegisterBenchmark((name + "/size").c_str(), Time, design.size);
  }
  benchmark::AddCustomContext("compiler", Compiler());
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
}
