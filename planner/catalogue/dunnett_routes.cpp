#include <optional>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/dunnett.h"
#include "comparisons/dunnett.h"

namespace planner {
namespace {

namespace comparisons = kelpower::comparisons;

/// The test of given sizes is kept: a number that is solved for, and the points of a chart, share it.
class Powers {
public:
  Powers() = default;
  Powers(const Powers&) {}
  Powers& operator=(const Powers&) = delete;

  double operator()(const Inputs& in) {
    const comparisons::DunnettTest& test = TestOf(in);
    const Numbers noncentralities = test.Noncentralities(MeansOfDunnett(in));
    if (in.Has("group")) return OrNaN(test.PowerOfOne(noncentralities[AskedGroup(in) - 1]));
    const auto which = in.Flag("all-comparisons") ? comparisons::Comparisons::All : comparisons::Comparisons::Any;
    return OrNaN(test.Power(which, noncentralities));
  }

private:
  const comparisons::DunnettTest& TestOf(const Inputs& in) {
    const bool isOneSided = in.Flag("one-sided");
    if (!test_ || in.List("n") != sizes_ || isOneSided != isOneSided_ || in.Alpha() != alpha_) {
      sizes_ = in.List("n");
      isOneSided_ = isOneSided;
      alpha_ = in.Alpha();
      test_.emplace(sizes_, isOneSided_, alpha_);
    }
    return *test_;
  }

  std::optional<comparisons::DunnettTest> test_;
  Numbers sizes_;
  bool isOneSided_ = false;
  double alpha_ = 0;
};

double HalfWidth(const Inputs& in) {
  return comparisons::HalfWidthOfComparison(in.Number("sd"), in.List("n"), AskedGroup(in), in.Alpha());
}

Route PowerRoute(Names needs) {
  needs.push_back("n");
  return {.question = Question::Power,
          .needs = std::move(needs),
          .accepts = {"groups", "group", "all-comparisons", "one-sided"},
          .value = Powers()};
}

Route SizeRoute(Names needs) {
  return {.question = Question::SampleSize,
          .needs = std::move(needs),
          .accepts = {"ratios", "groups", "group", "all-comparisons", "one-sided"}};
}

}  // namespace

std::vector<Route> RoutesOfDunnett() {
  return {
      PowerRoute({"means", "sd"}),
      PowerRoute({"effect-d"}),
      SizeRoute({"means", "sd"}),
      SizeRoute({"effect-d"}),
      {.question = Question::HalfWidth, .needs = {"group", "sd", "n"}, .accepts = {"groups"}, .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth, .needs = {"group", "sd"}, .accepts = {"ratios", "groups"}},
  };
}

}  // namespace planner
