#include "assurance/correlation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "support/drawn_correlation.h"
#include "support/reference_rows.h"
#include "support/share_of_studies.h"

namespace kelpower::assurance {
namespace {

constexpr CorrelationModel kModels[] = {CorrelationModel::Exact, CorrelationModel::Fisher};

TEST(AssuranceOfCorrelations, AgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/correlation.csv");
  ASSERT_GT(rows.size(), 40u);
  for (const auto& row : rows) {
    EXPECT_NEAR(*Assurance(CorrelationInterval{row[0]}, {row[2], row[3]}, row[1]), row[4], 2e-12)
        << row[0] << ' ' << row[1];
  }
}

/// Half the length of the interval of Fisher's z, as a study computes it.
double HalfWidthOf(double z, double size, double quantile) {
  const double h = quantile / std::sqrt(size - 3);
  return (std::tanh(z + h) - std::tanh(z - h)) / 2;
}

TEST(AssuranceOfCorrelations, IsTheShareOfStudies) {
  for (const double rho : {0.0, 0.5}) {
    const double halfWidth = rho == 0 ? 0.325 : 0.26;
    const auto share = Simulate(20000, 71, [&](auto& engine) {
      return HalfWidthOf(std::atanh(DrawCorrelation(engine, 36, rho)), 36, 1.959963984540054) <= halfWidth;
    });
    const double assurance = *Assurance(CorrelationInterval{rho}, {halfWidth, 0.05}, 36);
    EXPECT_GT(assurance, 0.01);
    EXPECT_LT(assurance, 0.99);
    EXPECT_LT(share.StandardErrorsFrom(assurance), kMostStandardErrors) << rho;
  }
}

TEST(AssuranceOfCorrelations, IsTheShareOfStudiesOfTheCorrectedInterval) {
  CorrelationInterval interval{0.7};
  interval.isCorrected = true;
  const auto share = Simulate(20000, 72, [&](auto& engine) {
    const double r = DrawCorrelation(engine, 20, 0.7);
    return HalfWidthOf(std::atanh(r) - r / 38, 20, 1.959963984540054) <= 0.25;
  });
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(interval, {0.25, 0.05}, 20)), kMostStandardErrors);
}

// The partial correlation of two variables given a third that both depend on.
TEST(AssuranceOfCorrelations, IsTheShareOfStudiesOfPartialCorrelations) {
  const double rho = 0.4;
  const int size = 30;
  const auto share = Simulate(8000, 73, [&](auto& engine) {
    std::normal_distribution<double> normal;
    double s[3][3] = {};
    double mean[3] = {};
    for (int i = 0; i < size; ++i) {
      const double w = normal(engine);
      const double u = normal(engine);
      const double v = rho * u + std::sqrt(1 - rho * rho) * normal(engine);
      const double x[3] = {u + w, v - 0.5 * w, w};
      for (int a = 0; a < 3; ++a) {
        mean[a] += x[a] / size;
        for (int b = 0; b < 3; ++b) s[a][b] += x[a] * x[b];
      }
    }
    const auto r = [&](int a, int b) {
      return (s[a][b] - size * mean[a] * mean[b]) /
             std::sqrt((s[a][a] - size * mean[a] * mean[a]) * (s[b][b] - size * mean[b] * mean[b]));
    };
    const double partial = (r(0, 1) - r(0, 2) * r(1, 2)) / std::sqrt((1 - r(0, 2) * r(0, 2)) * (1 - r(1, 2) * r(1, 2)));
    return HalfWidthOf(std::atanh(partial), size - 1, 1.959963984540054) <= 0.3;
  });
  CorrelationInterval interval{rho};
  interval.partialledOut = 1;
  EXPECT_LT(share.StandardErrorsFrom(*Assurance(interval, {0.3, 0.05}, size)), kMostStandardErrors);
}

// The mean of z is known to the order of 1 / n^2, and the rest of its distribution to that of 1 / n.
TEST(AssuranceOfCorrelations, OfFishersModelIsNear) {
  for (const double rho : {0.0, 0.4, 0.9}) {
    for (const double size : {50.0, 1000.0, 1e6}) {
      const double h = 1.959963984540054 / std::sqrt(size - 3);
      const double z = std::atanh(rho) + 0.3 / std::sqrt(size);
      const Wish wish{(std::tanh(z + h) - std::tanh(z - h)) / 2, 0.05};
      CorrelationInterval interval{rho};
      const double exact = *Assurance(interval, wish, size);
      interval.model = CorrelationModel::Fisher;
      EXPECT_NEAR(*Assurance(interval, wish, size), exact, 0.3 / size + 1e-8) << rho << ' ' << size;
    }
  }
}

TEST(AssuranceOfCorrelations, FirstSizesAreThoseFoundByTryingAll) {
  for (const CorrelationModel model : kModels) {
    for (const double rho : {0.0, 0.3, -0.7, 0.95}) {
      for (const double halfWidth : {0.09, 0.2, 0.4}) {
        for (const double assurance : {0.003, 0.1, 0.5, 0.9, 0.999}) {
          CorrelationInterval interval{rho};
          interval.model = model;
          const Wish wish{halfWidth, 0.05};
          double size = 4;
          while (*Assurance(interval, wish, size) < assurance) ++size;
          EXPECT_EQ(*FirstSize(interval, wish, assurance), size) << rho << ' ' << halfWidth << ' ' << assurance;
        }
      }
    }
  }
}

// What the bisection rests on.
TEST(AssuranceOfCorrelations, FallsAtMostOnceAndRisesFromThereOn) {
  for (const CorrelationModel model : kModels) {
    for (const double rho : {0.0, 0.1, 0.5, 0.9}) {
      for (const double halfWidth : {0.02, 0.1, 0.3}) {
        for (const double alpha : {0.001, 0.05, 0.5}) {
          CorrelationInterval interval{rho};
          interval.model = model;
          bool hasRisen = false;
          double last = 2;
          for (double size = 20; last != 1 && size < 1e6; size = std::ceil(size * 1.06)) {
            const double assurance = *Assurance(interval, {halfWidth, alpha}, size);
            if (assurance > last + 1e-11) hasRisen = true;
            EXPECT_FALSE(hasRisen && assurance < last - 1e-11)
                << rho << ' ' << halfWidth << ' ' << alpha << ' ' << size;
            last = assurance;
          }
        }
      }
    }
  }
}

TEST(AssuranceOfCorrelations, AnswersTheEnds) {
  EXPECT_EQ(*Assurance(CorrelationInterval{1}, {0.1, 0.05}, 10), 1);
  EXPECT_EQ(*Assurance(CorrelationInterval{0.5}, {1, 0.05}, 10), 1);
  EXPECT_EQ(*Assurance(CorrelationInterval{0.5}, {0, 0.05}, 10), 0);
  EXPECT_EQ(*Assurance(CorrelationInterval{0.2}, {0.1, 0.05}, 1e9), 1);
  EXPECT_EQ(*Assurance(CorrelationInterval{0.2}, {1e-9, 0.05}, 1e9), 0);
  EXPECT_NEAR(*Assurance(CorrelationInterval{0.999999}, {0.5, 0.05}, 4), 1, 1e-3);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(Assurance(CorrelationInterval{nan}, {0.1, 0.05}, 10).ValueOr(0)));
  EXPECT_TRUE(std::isnan(Assurance(CorrelationInterval{0.5}, {nan, 0.05}, 10).ValueOr(0)));
}

TEST(AssuranceOfCorrelations, SaysWhyThereIsNone) {
  EXPECT_EQ(Assurance(CorrelationInterval{0.5}, {0.1, 0.05}, 3).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(CorrelationInterval{0.5, 8}, {0.1, 0.05}, 11).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(CorrelationInterval{0.5, -1}, {0.1, 0.05}, 11).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(CorrelationInterval{1.5}, {0.1, 0.05}, 11).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance(CorrelationInterval{0.5}, {0.1, 1}, 11).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(CorrelationInterval{0.5}, {0.1, 0.05}, 0).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize(CorrelationInterval{0.1}, {1e-6, 0.05}, 0.9).Reason(), NoValue::NotReached);
}

}  // namespace
}  // namespace kelpower::assurance
