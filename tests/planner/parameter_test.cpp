#include "model/parameter.h"

#include <gtest/gtest.h>

#include <limits>

#include "support.h"
#include "words/parse.h"

namespace planner {
namespace {

std::string ComplaintAbout(const Parameter& parameter, const std::string& text) {
  try {
    Parse(parameter, text);
  } catch (const InputError& error) {
    return Said(error);
  }
  return "";
}

TEST(Limits, AllowWhatTheySay) {
  const Limits limits = Number("sd", "", "").Above(0).AtMost(1).limits;
  EXPECT_FALSE(limits.Allow(0));
  EXPECT_TRUE(limits.Allow(5e-324));
  EXPECT_TRUE(limits.Allow(1));
  EXPECT_FALSE(limits.Allow(1.0000000000000002));
  EXPECT_FALSE(limits.Allow(std::numeric_limits<double>::quiet_NaN()));
}

TEST(Limits, NeverAllowWhatIsNotFinite) {
  const Limits limits = Number("sd", "", "").limits;
  EXPECT_TRUE(limits.Allow(-1e308));
  EXPECT_FALSE(limits.Allow(std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(limits.Allow(-std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(limits.Allow(std::numeric_limits<double>::quiet_NaN()));
}

TEST(Limits, AreSaidInWords) {
  const Parameter number = Number("sd", "", "");
  EXPECT_EQ(Allowed(number), "a number");
  EXPECT_EQ(Allowed(number.Above(0)), "a number above 0");
  EXPECT_EQ(Allowed(number.AtLeast(1)), "a number of at least 1");
  EXPECT_EQ(Allowed(number.Below(1)), "a number below 1");
  EXPECT_EQ(Allowed(number.AtMost(2).AtLeast(-2)), "a number from -2 to 2");
  EXPECT_EQ(Allowed(number.Above(0).Below(1)), "a number between 0 and 1, neither included");
  EXPECT_EQ(Allowed(number.AtLeast(0).Below(1)), "a number of at least 0 and below 1");
  EXPECT_EQ(Allowed(number.AtLeast(2).Whole()), "a whole number of at least 2");
}

TEST(Parse, ReadsEachKind) {
  EXPECT_EQ(std::get<double>(Parse(Number("sd", "", "").Above(0), "2.5")), 2.5);
  EXPECT_EQ(std::get<Numbers>(Parse(PerGroup("n", "", ""), "1,2,3")), (Numbers{1, 2, 3}));
  EXPECT_EQ(std::get<Numbers>(Parse(PerGroup("n", "", ""), "4")), Numbers{4});
  EXPECT_EQ(std::get<std::string>(Parse(OneOf("adjust", "", "", {{"none", 2, ""}}), "none")), "none");
  EXPECT_TRUE(std::get<bool>(Parse(Flag("one-sided", "", ""), "yes")));
}

TEST(Parse, NamesOptionValueAndWhatIsAllowed) {
  EXPECT_EQ(ComplaintAbout(Number("sd", "", "").Above(0), "-3"), "--sd is -3, but must be a number above 0.");
  EXPECT_EQ(ComplaintAbout(Number("sd", "", "").Above(0), "3x"), "--sd is \"3x\", but must be a number above 0.");
  EXPECT_EQ(ComplaintAbout(OneOf("adjust", "", "", {{"sidak", 1, ""}, {"none", 2, ""}}), "both"),
            "--adjust is \"both\", but must be sidak or none.");
  EXPECT_EQ(ComplaintAbout(List("pair", "", "").Length(2), "1,2,3"),
            "--pair is 1, 2, 3, but must be two numbers like 52,47.");
  EXPECT_EQ(ComplaintAbout(PerGroup("n", "", "").AtLeast(1).Spreads(), "5,0"),
            "--n is 5, 0, but must be a number of at least 1, or a list of such, one for each group.");
}

TEST(Parse, RefusesBrokenLists) {
  for (const char* text : {"", ",", "1,", ",1", "1,,2", "1;2", "1, 2", "[1,2]", "1,nan", "1,inf"}) {
    EXPECT_NE(ComplaintAbout(PerGroup("n", "", ""), text), "") << text;
  }
}

TEST(Parameter, RefusesAValueOfAnotherKind) {
  EXPECT_FALSE(Number("sd", "", "").Allows(Numbers{1}));
  EXPECT_FALSE(Number("sd", "", "").Allows(std::string("1")));
  EXPECT_FALSE(Flag("one-sided", "", "").Allows(1.0));
  EXPECT_FALSE(PerGroup("n", "", "").Allows(1.0));
  EXPECT_FALSE(PerGroup("n", "", "").Allows(Numbers{}));
}

TEST(Name, IsFoundByItsText) {
  EXPECT_EQ(Name::Of("one-sided"), Name("one-sided"));
  EXPECT_EQ(Name("one-sided").Text(), "one-sided");
  EXPECT_FALSE(Name::Of("one-side"));
  EXPECT_FALSE(Name::Of(""));
}

}  // namespace
}  // namespace planner
