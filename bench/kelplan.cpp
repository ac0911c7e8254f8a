// What the C interface costs beside the library's own calls, which bench/planner.cpp times on the same designs: a row of a
// batch, with and without a caller to ask for a stop, a batch of one row, and a request in JSON.

#include <benchmark/benchmark.h>
#include <kelplan.h>

#include <cstddef>
#include <vector>

namespace {

constexpr std::size_t rows = 1024;

int Never(void*) { return 0; }

/// Times rows of a batch of one column, whose numbers go from `from` on. The result at `wanted` is, and no other.
void RunRows(benchmark::State& state, const char* request, double from, double step, std::size_t wanted, bool asks,
             std::size_t count = rows) {
  kelplan_batch* batch = nullptr;
  if (kelplan_prepare(request, &batch, nullptr) != KELPLAN_OK) return state.SkipWithError("not prepared");
  std::vector<double> column(count);
  for (std::size_t i = 0; i < count; ++i) column[i] = from + step * static_cast<double>(i);
  std::vector<double> values(count);
  std::vector<int> status(count);
  std::vector<double*> results(8, nullptr);
  results[wanted] = values.data();
  const double* columns[] = {column.data()};
  const kelplan_options options{sizeof(kelplan_options), Never, nullptr};
  for (auto _ : state) {
    kelplan_run(batch, count, columns, nullptr, results.data(), nullptr, status.data(), sizeof(int),
                asks ? &options : nullptr);
    benchmark::DoNotOptimize(values.data());
  }
  if (status.front() != KELPLAN_OK) state.SkipWithError("not answered");
  state.counters["row"] = benchmark::Counter(static_cast<double>(count) * static_cast<double>(state.iterations()),
                                             benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
  kelplan_release(batch);
}

const char* const ofPower =
    R"({"test":"two-means","inputs":{"means":[52,47],"sd":[10,14],"n":[40,60]},"columns":[{"name":"means","entry":0}]})";
const char* const ofHalfWidth =
    R"({"test":"partial","inputs":{"partialled-out":3,"n":84,"interval":true},"columns":["r"]})";

void PowerRows(benchmark::State& state) { RunRows(state, ofPower, 50, 0.01, 2, false); }
BENCHMARK(PowerRows)->Name("kelplan/power/rows");

void PowerRowsThatAsk(benchmark::State& state) { RunRows(state, ofPower, 50, 0.01, 2, true); }
BENCHMARK(PowerRowsThatAsk)->Name("kelplan/power/rows_that_ask");

// The cheapest call shows the interface's own share best.
void HalfWidthRows(benchmark::State& state) { RunRows(state, ofHalfWidth, 0.1, 7e-4, 0, false); }
BENCHMARK(HalfWidthRows)->Name("kelplan/half_width/rows");

void HalfWidthRowsThatAsk(benchmark::State& state) { RunRows(state, ofHalfWidth, 0.1, 7e-4, 0, true); }
BENCHMARK(HalfWidthRowsThatAsk)->Name("kelplan/half_width/rows_that_ask");

void OneRow(benchmark::State& state) { RunRows(state, ofHalfWidth, 0.3, 0, 0, false, 1); }
BENCHMARK(OneRow)->Name("kelplan/half_width/one_row");

void Request(benchmark::State& state) {
  for (auto _ : state) {
    char* answer = nullptr;
    benchmark::DoNotOptimize(
        kelplan_solve(R"({"test":"two-means","inputs":{"means":[52,47],"sd":[10,14],"n":[40,60]}})", nullptr, &answer));
    kelplan_free(answer);
  }
}
BENCHMARK(Request)->Name("kelplan/power/request");

}  // namespace
