#include "assurance/proportion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "proportions/one_sample_interval.h"
#include "support/share_of_studies.h"

namespace kelpower::assurance {
namespace {

using proportions::OneSampleInterval;
using proportions::OneSampleMethod;

struct Method {
  const char* name;
  OneSampleMethod method;
  bool isCorrected;
};

constexpr Method kMethods[] = {{"Wald", OneSampleMethod::Wald, false},
                               {"corrected Wald", OneSampleMethod::Wald, true},
                               {"adjusted logit", OneSampleMethod::LogitAdjusted, false},
                               {"logit", OneSampleMethod::Logit, false},
                               {"Clopper and Pearson", OneSampleMethod::ClopperPearson, false},
                               {"Jeffreys", OneSampleMethod::Jeffreys, false},
                               {"Wilson", OneSampleMethod::Wilson, false},
                               {"corrected Wilson", OneSampleMethod::Wilson, true},
                               {"Agresti and Coull", OneSampleMethod::AgrestiCoull, false}};

/// The half-width of a method at a count.
struct OfMethod {
  Method method;
  double alpha;

  double operator()(double size, double events) const {
    return OneSampleInterval({method.method, events / size, alpha, method.isCorrected}).HalfWidth(size);
  }
};

/// The sum over all counts.
double BySum(const ProportionWish& wish, double size) {
  double sum = 0;
  for (double x = 0; x <= size; ++x) {
    long error = 0;
    if (wish.halfWidthAt(size, std::min(x, size - x)) <= wish.halfWidth)
      sum += KelMath::KelDistFun::PdfBin(x, size, wish.proportion, error);
  }
  return sum;
}

TEST(AssuranceOfAProportion, IsTheSumOverAllCounts) {
  std::mt19937 engine(81);
  std::uniform_real_distribution<double> uniform(0, 1);
  for (const Method& method : kMethods) {
    for (int i = 0; i < 60; ++i) {
      const double alpha = i % 3 == 0 ? 1e-4 : 0.3 * uniform(engine) + 0.001;
      const double halfWidth = 0.3 * uniform(engine) + 0.02;
      const OfMethod halfWidthAt{method, alpha};
      const ProportionWish wish{halfWidthAt, uniform(engine), halfWidth};
      const double size = std::floor(1 + 400 * uniform(engine) * uniform(engine));
      EXPECT_NEAR(*Assurance(wish, size), BySum(wish, size), 1e-12)
          << method.name << ' ' << alpha << ' ' << halfWidth << ' ' << wish.proportion << ' ' << size;
    }
  }
}

// Of 20 at a proportion of 0.3: half the interval of Clopper and Pearson is 0.1928 at 4 events, 0.2022 at 5 and 0.2211 at 8.
TEST(AssuranceOfAProportion, IsTheProbabilityOfTheShortIntervals) {
  const OfMethod halfWidthAt{kMethods[4], 0.05};
  EXPECT_NEAR(halfWidthAt(20, 4), (0.4366 - 0.0573) / 2, 1e-4);
  long error = 0;
  EXPECT_NEAR(*Assurance({halfWidthAt, 0.3, 0.195}, 20),
              KelMath::KelDistFun::CdfBin(4, 20, 0.3, error) + KelMath::KelDistFun::CdfBin(4, 20, 0.7, error), 1e-15);
  EXPECT_EQ(*Assurance({halfWidthAt, 0.3, 0.25}, 20), 1);
  EXPECT_EQ(*Assurance({halfWidthAt, 0.3, 0.05}, 20), 0);
}

TEST(AssuranceOfAProportion, IsTheShareOfStudies) {
  for (const Method& method : kMethods) {
    const OfMethod halfWidthAt{method, 0.05};
    const ProportionWish wish{halfWidthAt, 0.15, 0.09};
    std::binomial_distribution<int> events(70, 0.15);
    const auto share = Simulate(
        5000, 82, [&](auto& engine) { return halfWidthAt(70, static_cast<double>(events(engine))) <= wish.halfWidth; });
    const double assurance = *Assurance(wish, 70);
    EXPECT_GT(assurance, 0.1) << method.name;
    EXPECT_LT(assurance, 0.99) << method.name;
    EXPECT_LT(share.StandardErrorsFrom(assurance), kMostStandardErrors) << method.name;
  }
}

// What the search rests on.
TEST(AssuranceOfAProportion, HoldsForIntervalsThatShortenAsTheSizeGrows) {
  for (const Method& method : kMethods) {
    for (const double alpha : {1e-6, 0.01, 0.05, 0.3}) {
      const OfMethod at{method, alpha};
      const auto isLonger = [](double a, double b) { return a > b * (1 + 1e-13); };  // not where either is NaN
      for (double size = 2; size < 160; ++size) {
        EXPECT_FALSE(isLonger(at(size, size / 2), at(size - 1, (size - 1) / 2))) << method.name << ' ' << size;
        double shortest = at(size, 0);
        bool isRising = false;
        for (double x = 0; x <= size / 2; ++x) {
          const double halfWidth = at(size, x);
          EXPECT_FALSE(isLonger(at(size + 1, x), halfWidth)) << method.name << ' ' << size << ' ' << x;
          EXPECT_FALSE(!std::isnan(halfWidth) && std::isnan(at(size + 1, x))) << method.name << ' ' << size;
          if (isLonger(halfWidth, shortest)) isRising = true;
          EXPECT_FALSE(isRising && (isLonger(shortest, halfWidth) || std::isnan(halfWidth)))
              << method.name << ' ' << alpha << ' ' << size << ' ' << x;
          shortest = halfWidth;
        }
      }
    }
  }
}

TEST(SizeOfAProportion, IsTheOneFoundByTryingAll) {
  std::mt19937 engine(83);
  std::uniform_real_distribution<double> uniform(0, 1);
  constexpr double largest = 600;
  int found = 0;
  for (const Method& method : kMethods) {
    for (int i = 0; i < 12; ++i) {
      const OfMethod halfWidthAt{method, i % 4 == 0 ? 0.01 : 0.05};
      const ProportionWish wish{halfWidthAt, uniform(engine), 0.045 + 0.2 * uniform(engine)};
      const double assurance = 0.05 + 0.94 * uniform(engine);
      double first = 0;
      double lasting = 1;
      for (double size = 1; size <= largest; ++size) {
        const bool reaches = *Assurance(wish, size) >= assurance;
        if (reaches && first == 0) first = size;
        if (!reaches) lasting = size + 1;
      }
      EXPECT_EQ(FirstSize(wish, assurance, largest).ValueOr(0), first) << method.name << ' ' << i;
      EXPECT_EQ(LastingSize(wish, assurance, largest).ValueOr(largest + 1), lasting) << method.name << ' ' << i;
      if (first > 0) ++found;
    }
  }
  EXPECT_GT(found, 80);
}

TEST(SizeOfAProportion, IsFoundAmongMillions) {
  const OfMethod halfWidthAt{kMethods[4], 0.05};
  const ProportionWish wish{halfWidthAt, 0.3, 0.0005};
  const double first = *FirstSize(wish, 0.8);
  const double lasting = *LastingSize(wish, 0.8);
  EXPECT_GT(first, 3.2e6);
  EXPECT_LE(first, lasting);
  EXPECT_GE(*Assurance(wish, first), 0.8);
  EXPECT_LT(*Assurance(wish, lasting - 1), 0.8);
  for (double back = 1; back < 20; ++back) EXPECT_LT(*Assurance(wish, first - back), 0.8);
  for (double on = 0; on < 20; ++on) EXPECT_GE(*Assurance(wish, lasting + on), 0.8);
}

// Wald's interval of no event has no length, and one observation is no event or nothing but events.
TEST(SizeOfAProportion, OfWaldMayBeShortForTheWrongReason) {
  const OfMethod halfWidthAt{kMethods[0], 0.05};
  EXPECT_EQ(*FirstSize({halfWidthAt, 0.3, 0.1}, 0.9), 1);
  EXPECT_GT(*LastingSize({halfWidthAt, 0.3, 0.1}, 0.9), 80);
}

TEST(SizeOfAProportion, AnswersCertainOutcomes) {
  const OfMethod wilson{kMethods[6], 0.05};
  EXPECT_EQ(*FirstSize({wilson, 0, 0.1}, 0.9), *FirstSize({wilson, 1, 0.1}, 0.9));
  const OfMethod logit{kMethods[3], 0.05};
  EXPECT_EQ(FirstSize({logit, 0, 0.1}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize({logit, 0, 0.1}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(*LastingSize({wilson, 0.2, 2}, 0.9), 1);
}

TEST(SizeOfAProportion, SaysWhyThereIsNone) {
  const OfMethod wilson{kMethods[6], 0.05};
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Assurance({wilson, 1.1, 0.1}, 20).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance({wilson, 0.1, 0.1}, 20.5).Reason(), NoValue::Refused);
  EXPECT_EQ(Assurance({wilson, 0.1, 0.1}, 0).Reason(), NoValue::Refused);
  EXPECT_EQ(*Assurance({wilson, 0.1, nan}, 20), 0);
  EXPECT_TRUE(std::isnan(*Assurance({wilson, nan, 0.2}, 50)));
  EXPECT_EQ(FirstSize({wilson, nan, 0.1}, 0.9).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize({wilson, 0.1, 0.1}, 1).Reason(), NoValue::Refused);
  EXPECT_EQ(LastingSize({wilson, 0.1, 0.1}, nan).Reason(), NoValue::Refused);
  EXPECT_EQ(FirstSize({wilson, 0.3, 0.01}, 0.9, 1000).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize({wilson, 0.3, 0.01}, 0.9, 1000).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize({wilson, 0.3, 1e-7}, 0.9).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize({wilson, 0.3, 0.1}, 0.9, largestCount, [] { return true; }).Reason(), NoValue::Stopped);
}

}  // namespace
}  // namespace kelpower::assurance
