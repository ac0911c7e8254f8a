#include "man_page.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "run.h"
#include "solve/axes.h"
#include "usage_error.h"

namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

/// The options of a help text that begin a line.
std::vector<std::string> OptionsAtLines(const std::string& help) {
  std::vector<std::string> options;
  for (std::size_t at = help.find("\n  --"); at != std::string::npos; at = help.find("\n  --", at + 1)) {
    options.push_back(help.substr(at + 3, help.find_first_of(" ,\n", at + 3) - at - 3));
  }
  return options;
}

TEST(ManPage, NamesEveryOptionAxisAndExample) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string page = ManPageOf(test.name);
    const std::string help = RunProgram({test.name, "--help"}).out;
    const std::vector<std::string> options = OptionsAtLines(help);
    EXPECT_GT(options.size(), test.parameters.size()) << "and those that are no inputs";
    for (const std::string& option : options) EXPECT_TRUE(Has(page, Bold(option))) << test.name << ' ' << option;
    for (const auto& axis : planner::AllAxes(test))
      EXPECT_TRUE(Has(page, std::string("\n").append(Bold(axis.name)).append("\n"))) << axis.name;
    for (const auto& example : test.examples) {
      EXPECT_TRUE(Has(page, Bold("kelpower " + example.arguments))) << example.arguments;
      EXPECT_TRUE(Has(page, Prose(example.sentence))) << example.arguments;
    }
  }
}

TEST(ManPage, HasItsSectionsInOrder) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string page = ManPageOf(test.name);
    std::size_t last = 0;
    for (const char* section : {"NAME", "SYNOPSIS", "DESCRIPTION", "QUESTIONS", "OPTIONS", "CHARTS", "EXAMPLES",
                                "METHOD", "EXIT STATUS", "SEE ALSO"}) {
      const std::size_t at = page.find(std::string("\n.SH ") + section + "\n");
      ASSERT_NE(at, std::string::npos) << test.name << ' ' << section;
      EXPECT_GT(at, last) << test.name << ' ' << section;
      last = at;
    }
    EXPECT_TRUE(Has(page.substr(page.find(".SH METHOD")), "Source: ")) << test.name;
  }
}

TEST(ManPage, OfTheProgramNamesTheOthers) {
  const std::string page = ManPageOf("");
  for (const planner::Test& test : planner::Tests()) EXPECT_TRUE(Has(page, Bold("kelpower-" + test.name) + "(1)"));
  for (const char* command : {"run", "effect"}) {
    EXPECT_TRUE(Has(page, Bold(std::string("kelpower-") + command) + "(1)"));
    EXPECT_TRUE(Has(ManPageOf(command), std::string(".TH kelpower\\-") + command + " 1 "));
  }
  EXPECT_THROW(ManPageOf("list"), UsageError);
}

TEST(ManPage, OfEffectSizesHasEveryFormula) {
  const std::string page = ManPageOf("effect");
  for (const auto& formula : planner::EffectSizes().formulas) {
    EXPECT_TRUE(Has(page, Prose(formula.formula))) << formula.formula;
  }
}

TEST(ManPage, SendsFromATestToThoseThatItNames) {
  const std::string page = ManPageOf("two-means");
  const std::string others = page.substr(page.find(".SH SEE ALSO"));
  EXPECT_TRUE(Has(others, Bold("kelpower-paired-means") + "(1)"));
  EXPECT_TRUE(Has(others, Bold("kelpower-anova") + "(1)"));
  EXPECT_FALSE(Has(others, Bold("kelpower-mean") + "(1)"));
}

/// The date in the title line with this SOURCE_DATE_EPOCH.
std::string TitleAt(const char* epoch) {
  setenv("SOURCE_DATE_EPOCH", epoch, 1);
  const std::string page = RunProgram({"--man", "run"}).out;
  unsetenv("SOURCE_DATE_EPOCH");
  return page.substr(0, page.find('\n'));
}

TEST(ManPage, HasTheDateOfTheSource) {
  const std::string foot = " \"kelpower " KELPOWER_VERSION "\" \"User Commands\"";
  EXPECT_EQ(TitleAt("0"), ".TH kelpower\\-run 1 1970-01-01" + foot);
  EXPECT_EQ(TitleAt("951782400"), ".TH kelpower\\-run 1 2000-02-29" + foot);
  EXPECT_EQ(TitleAt("253402300799"), ".TH kelpower\\-run 1 9999-12-31" + foot);
  for (const char* wrong : {"", "-1", "now", "253402300800", "1e9"}) {
    setenv("SOURCE_DATE_EPOCH", wrong, 1);
    const Outcome run = RunProgram({"--man"});
    unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(run.status, 2) << wrong;
    EXPECT_TRUE(Has(run.err, "SOURCE_DATE_EPOCH is \"" + std::string(wrong) + "\"")) << run.err;
  }
}

TEST(Roff, KeepsDashesThatAreTyped) {
  EXPECT_EQ(Prose("a two-sided test"), "a two-sided test");
  EXPECT_EQ(Prose("with --half-width, -1 or 1e-05"), "with \\-\\-half\\-width, \\-1 or 1e\\-05");
  EXPECT_EQ(Prose("1 - alpha"), "1 \\- alpha");
  EXPECT_EQ(Prose("pages 107-128"), "pages 107-128");
  EXPECT_EQ(Literal("two-means"), "two\\-means");
}

TEST(Roff, EscapesWhatIsAMacroOrAnEscape) {
  ManPage page("name", "2000-01-01", "1");
  page.Section("NAME");
  page.Paragraph(Prose(".svg and 'q' and \\"));
  page.Paragraph("more");
  EXPECT_TRUE(Has(page.Text(), "\n.SH NAME\n\\&.svg and \\(aqq\\(aq and \\e\n.PP\nmore\n")) << page.Text();
}

TEST(Roff, SetsUsageInFonts) {
  EXPECT_EQ(UsageInFonts("kelpower anova --n N [--one-sided] [--sd SD]"),
            "\\fBkelpower\\fR \\fBanova\\fR \\fB\\-\\-n\\fR\\~\\fIN\\fR [\\fB\\-\\-one\\-sided\\fR] "
            "[\\fB\\-\\-sd\\fR\\~\\fISD\\fR]");
  EXPECT_EQ(UsageInFonts("kelpower mean (--non-inferiority | --margin MARGIN) --n N"),
            "\\fBkelpower\\fR \\fBmean\\fR (\\fB\\-\\-non\\-inferiority\\fR\\~| \\fB\\-\\-margin\\fR\\~\\fIMARGIN\\fR) "
            "\\fB\\-\\-n\\fR\\~\\fIN\\fR");
}

}  // namespace
