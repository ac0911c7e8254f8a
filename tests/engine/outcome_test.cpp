// The observation of a call reports what it must: it is run on functions made for it that break one promise each.

#include "outcome.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>

#include "limited_memory.h"

namespace {

using namespace keltest;
using Problems = std::vector<std::string>;

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double missingValue = std::numeric_limits<double>::lowest();

XYPlot MakeCurve(double y, bool hasX) { return {1, hasX ? new double[1]{0} : nullptr, new double[1]{y}}; }

double Power(double alpha, double power) { return alpha > 0 ? power : -1; }
double PowerSC(double pooledSD) { return pooledSD > 0 ? 0.5 : 1; }
double PowerStopped(StopRequest* stop, double answer) { return stop->ShouldStop() ? answer : 0.5; }
double PowerReverse(StopRequest* stop, double questions) {
  for (double i = 0; i < questions; ++i) stop->ShouldStop();
  return missingValue;
}
double Meddle(int numGroups, double* numbers, double position) {
  return numbers[static_cast<int>(position)] = numGroups;
}
double ReadOnly(const double* numbers) { return const_cast<double*>(numbers)[0] = 7; }
void Append(DoubleVector& sizes, double first, double fails) {
  sizes = {first};
  if (fails > 0) throw std::bad_alloc();
}
XYPlot PlotLine(double y) { return MakeCurve(y, true); }
XYPlot PlotNSC(double y) { return MakeCurve(y, true); }  // the name of a chart in double precision
XYPlot PlotHalf(double y) { return MakeCurve(y, false); }
XYPlot PlotSteps(double step) { return step > 5 ? XYPlot{0, nullptr, nullptr} : MakeCurve(1, true); }
XYZPlot PlotPlane(double z) { return {1, 1, new double[1]{0}, new double[1]{0}, new double[1]{z}}; }

Argument Number(double number) {
  Argument argument;
  argument.number = number;
  return argument;
}

Argument Array(std::vector<double> numbers) {
  Argument argument;
  argument.array = std::move(numbers);
  return argument;
}

Argument StopsAt(std::int64_t question) {
  Argument argument;
  argument.stopRequest.stopsAt = question;
  return argument;
}

Argument Groups(std::int32_t count) {
  Argument argument;
  argument.integer = count;
  return argument;
}

template <class F>
Outcome ObserveCall(const char* name, F* function, const std::vector<std::string>& names, const Arguments& arguments) {
  const Function bound = Bind(name, function);
  return Observe({&bound, names}, arguments);
}

template <class F>
Problems ProblemsOf(const char* name, F* function, const std::vector<std::string>& names, const Arguments& arguments) {
  return ObserveCall(name, function, names, arguments).problems;
}

TEST(Outcome, PowersOfOrdinaryDesignsAreProbabilities) {
  const auto problems = [](double alpha, double power) {
    return ProblemsOf("Power", Power, {"alpha", "x"}, {Number(alpha), Number(power)});
  };
  for (const double power : {0.0, 0.5, 1.0, -1.0, -2.0, missingValue}) EXPECT_EQ(problems(0.05, power), Problems{});
  EXPECT_EQ(problems(0.05, 2), Problems{"not a power: 2"});
  EXPECT_EQ(problems(0.05, -0.25), Problems{"not a power: -0.25"});
  EXPECT_EQ(problems(1.5, 2), Problems{});
}

TEST(Outcome, NaNGivesNoPower) {
  EXPECT_EQ(ProblemsOf("Power", Power, {"alpha", "x"}, {Number(0.05), Number(quietNaN)}), Problems{});
  EXPECT_EQ(ProblemsOf("Power", PowerSC, {"x"}, {Number(quietNaN)}), Problems{"NaN has a power: 1"});
  EXPECT_EQ(ProblemsOf("PowerSC", PowerSC, {"pooledSD"}, {Number(quietNaN)}), Problems{});
}

TEST(Outcome, StoppedComputationsEnd) {
  const auto power = [](std::int64_t stopsAt, double answer) {
    return ProblemsOf("PowerStopped", PowerStopped, {"stop", "x"}, {StopsAt(stopsAt), Number(answer)});
  };
  EXPECT_EQ(power(1, missingValue), Problems{});
  EXPECT_EQ(power(2, 0.25), Problems{});
  EXPECT_EQ(power(1, 0.25), Problems{"stopped, but not missing: 0.25"});
  const auto search = [](double questions) {
    return ProblemsOf("PowerReverse", PowerReverse, {"stop", "x"}, {StopsAt(2), Number(questions)});
  };
  EXPECT_EQ(search(5), Problems{});
  EXPECT_EQ(search(6), Problems{"goes on after a true answer: 4"});
}

TEST(Outcome, ArraysStayButForTheLastCoefficient) {
  const auto problems = [](const char* name, double position) {
    return ProblemsOf(name, Meddle, {"numGroups", "c", "x"}, {Groups(2), Array({0, 0, 0}), Number(position)});
  };
  EXPECT_EQ(problems("Meddle", 1), Problems{});
  EXPECT_EQ(problems("Meddle", 0), Problems{"c was changed"});
  EXPECT_EQ(problems("Meddle", 2), Problems{"c was changed"});
  EXPECT_EQ(problems("MeddleReverse", 1), Problems{"c was changed"});
  EXPECT_EQ(ProblemsOf("ReadOnly", ReadOnly, {"c"}, {Array({0})}), Problems{"c was changed"});
}

TEST(Outcome, AVectorIsNotHalfMadeWhenMemoryRunsOut) {
  const auto append = [](double first, double fails) {
    return ObserveCall("Append", Append, {"v", "x", "y"}, {Array({1}), Number(first), Number(fails)});
  };
  EXPECT_FALSE(append(3, 0).ranOutOfMemory);
  EXPECT_EQ(append(3, 0).problems, Problems{});
  EXPECT_TRUE(append(3, 1).ranOutOfMemory);
  EXPECT_EQ(append(3, 1).problems, Problems{"v is half made"});
  EXPECT_EQ(append(1, 1).problems, Problems{});
  EXPECT_EQ(append(missingValue, 1).problems, Problems{});
}

TEST(Outcome, ChartsAreWhole) {
  EXPECT_EQ(ProblemsOf("PlotLine", PlotLine, {"x"}, {Number(0.5)}), Problems{});
  EXPECT_EQ(ProblemsOf("PlotLine", PlotLine, {"x"}, {Number(0.1)}),
            Problems{"not in single precision: 0.10000000000000001"});
  EXPECT_EQ(ProblemsOf("PlotNSC", PlotNSC, {"x"}, {Number(0.1)}), Problems{});
  EXPECT_EQ(ProblemsOf("PlotLine", PlotLine, {"x"}, {Number(3)}), Problems{"not a power: 3"});
  EXPECT_EQ(ProblemsOf("PlotPlane", PlotPlane, {"x"}, {Number(0.5)}), Problems{});
  EXPECT_EQ(ProblemsOf("PlotPlane", PlotPlane, {"x"}, {Number(3)}), Problems{"not a power: 3"});
  EXPECT_EQ(ProblemsOf("PlotHalf", PlotHalf, {"x"}, {Number(0.5)}),
            (Problems{"only one of two arrays", "points without arrays"}));
  for (const double step : {0.0, -1.0, quietNaN})
    EXPECT_EQ(ProblemsOf("PlotSteps", PlotSteps, {"step"}, {Number(step)}), Problems{"points without a step"});
  for (const double step : {0.5, 6.0})
    EXPECT_EQ(ProblemsOf("PlotSteps", PlotSteps, {"step"}, {Number(step)}), Problems{});
}

TEST(Outcome, DifferentResultsHaveDifferentBits) {
  const auto bits = [](double power) {
    return ObserveCall("Power", Power, {"alpha", "x"}, {Number(0.05), Number(power)}).bits;
  };
  EXPECT_EQ(bits(0.5), bits(0.5));
  EXPECT_NE(bits(0.0), bits(-0.0));
}

// The operators are called as functions, because the compiler may leave out a new whose object is not needed.

TEST(LimitedMemory, FailsAndCounts) {
  const std::int64_t live = LiveAllocations();
  void* first = nullptr;
  const auto allocateTwo = [&] {
    const LimitedMemory limit(2, SIZE_MAX);
    first = ::operator new(8);
    ::operator delete(::operator new(8));
  };
  EXPECT_THROW(allocateTwo(), std::bad_alloc);
  ASSERT_NE(first, nullptr);
  const std::int64_t liveAfter = LiveAllocations();
  ::operator delete(first);
  EXPECT_EQ(liveAfter, live + 1);
  EXPECT_EQ(LiveAllocations(), live);
}

TEST(LimitedMemory, RefusesLargeArraysAlone) {
  const LimitedMemory limit(INT64_MAX, 24);
  const auto allocateArray = [](std::size_t bytes) { ::operator delete[](::operator new[](bytes)); };
  EXPECT_NO_THROW(allocateArray(24));
  EXPECT_THROW(allocateArray(25), std::bad_alloc);
  EXPECT_NO_THROW(::operator delete(::operator new(25)));
}

}  // namespace
