#include <cmath>
#include <memory>

#include "support/linear_model.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

struct RegressionStudy {
  std::size_t n;
  int predictors;
  int tested;
  double f2;          // variance that the tested ones explain over the unexplained one
  double otherSlope;  // of each predictor that is not tested
  bool hasIntercept;
};

Column Drawn(std::size_t n, Engine& engine) {
  std::normal_distribution<double> normal;
  Column column(n);
  for (double& value : column) value = normal(engine);
  return column;
}

/// Regressions of drawn responses with an unexplained variance of 1, the tested predictors last in the model.
class RegressionAnalysis {
public:
  explicit RegressionAnalysis(const RegressionStudy& study) : study_(study) {}

  /// On predictors that vary from study to study.
  double FOfRandom(Engine& engine) {
    LinearModel model = Start();
    Column y = Drawn(study_.n, engine);
    const double slope = std::sqrt(study_.f2 / study_.tested);
    for (int i = 0; i < study_.predictors; ++i) {
      const bool isTested = i >= study_.predictors - study_.tested;
      const Column x = Drawn(study_.n, engine);
      AddTo(y, isTested ? slope : study_.otherSlope, x);
      model.Add(x, isTested);
    }
    return model.F(y);
  }

  /// On predictors that all studies share. The tested ones add as much to the fit as f2 says: its sum of squares is n f2.
  double FOfFixed(Engine& engine) {
    if (expected_.empty()) Fix();
    Column y = Drawn(study_.n, engine);
    AddTo(y, 1, expected_);
    return fixed_.F(y);
  }

private:
  LinearModel Start() const {
    LinearModel model;
    if (study_.hasIntercept) model.Add(Column(study_.n, 1), false);
    return model;
  }

  static void AddTo(Column& y, double slope, const Column& x) {
    for (std::size_t i = 0; i < y.size(); ++i) y[i] += slope * x[i];
  }

  void Fix() {
    Engine engine(7);
    fixed_ = Start();
    expected_ = Column(study_.n, 0);
    Column effect(study_.n, 0);
    for (int i = 0; i < study_.predictors; ++i) {
      const bool isTested = i >= study_.predictors - study_.tested;
      const Column x = Drawn(study_.n, engine);
      AddTo(isTested ? effect : expected_, isTested ? 1 : study_.otherSlope, x);
      fixed_.Add(x, isTested);
    }
    const double added = fixed_.TestedSquares(effect);
    AddTo(expected_, std::sqrt(static_cast<double>(study_.n) * study_.f2 / added), effect);
  }

  RegressionStudy study_;
  LinearModel fixed_;
  Column expected_;
};

}  // namespace

Study OfRegression(Inputs& inputs) {
  RegressionStudy study{};
  study.n = static_cast<std::size_t>(inputs.Number("n"));
  study.predictors = inputs.Whole("predictors");
  study.tested = inputs.Has("tested") ? inputs.Whole("tested") : study.predictors;
  study.hasIntercept = !inputs.Flag("no-intercept");
  const double reduced = inputs.Number("r-squared-reduced", 0);
  if (inputs.Has("effect-f2")) {
    study.f2 = inputs.Number("effect-f2");
  } else {
    const double full = inputs.Number("r-squared");
    study.f2 = (full - reduced) / (1 - full);
    if (study.predictors > study.tested) {
      study.otherSlope = std::sqrt(reduced / (1 - full) / (study.predictors - study.tested));
    }
  }
  const double df2 = static_cast<double>(study.n) - study.predictors - (study.hasIntercept ? 1 : 0);
  const double critical = UpperF(inputs.Alpha(), study.tested, df2);
  const bool isRandom = inputs.Flag("random");
  const auto analysis = std::make_shared<RegressionAnalysis>(study);
  return {true, [=](Engine& engine) {
            return (isRandom ? analysis->FOfRandom(engine) : analysis->FOfFixed(engine)) > critical;
          }};
}

}  // namespace kelpower::validation
