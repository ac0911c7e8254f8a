#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "catalogue/catalogue.h"
#include "run.h"

namespace {

const std::string design = "anova --means 10,12,15 --sd 6 --n 20,20,20";

/// A folder of its own for each test, removed at its end.
class ChartFiles : public testing::Test {
protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "kelpowerXXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder = name;
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  /// What the program writes to a file of that name.
  std::string Written(const std::string& arguments, const std::string& name) const {
    const std::string path = folder / name;
    std::vector<std::string> words = Words(arguments);
    words.insert(words.end(), {"--output", path});
    const Outcome run = RunProgram(words);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }

  std::filesystem::path folder;
};

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(Chart, EveryDescribedChartHasPoints) {
  for (const planner::Test& test : planner::Tests()) {
    for (const planner::Chart& chart : test.charts) {
      const Outcome run = RunProgram(Words(chart.example + " --format json"));
      ASSERT_EQ(run.status, 0) << chart.example << '\n' << run.err;
      const auto json = nlohmann::json::parse(run.out);
      EXPECT_GT(json["power"].size(), 5u) << chart.example;
      EXPECT_EQ(json["x"].size(), json["power"].size()) << chart.example;
      const auto gives = [&](const planner::Route& route) {
        return route.exportName == json["export"] || route.oneSidedExport == json["export"];
      };
      EXPECT_TRUE(std::any_of(test.routes.begin(), test.routes.end(), gives)) << chart.example;
      EXPECT_TRUE(json.contains("design")) << chart.example;
    }
  }
}

TEST(Chart, IsDrawnInCharacters) {
  for (const std::string chart : {" --chart n", " --chart n-sd --from 12,2 --to 150,12"}) {
    const Outcome run = RunProgram(Words(design + chart));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Holds(run.out, "total sample size (observations)")) << run.out;
    EXPECT_TRUE(Holds(run.out, "power 0.63")) << run.out;
    EXPECT_TRUE(Holds(run.out, "One-way analysis of variance")) << run.out;
  }
}

TEST(Chart, InCharactersNamesBothAxesOfASurface) {
  const Outcome run = RunProgram(Words(design + " --chart n-sd --from 12,2 --to 150,12"));
  EXPECT_TRUE(Holds(run.out, "upwards: standard deviation")) << run.out;
  for (const char* level : {"power 0.5 ", "power 0.8 ", "power 0.9 ", "power 0.95"}) {
    EXPECT_TRUE(Holds(run.out, level)) << run.out;
  }
}

TEST_F(ChartFiles, HoldTitlesAndMark) {
  const std::string svg = Written(design + " --chart n", "curve.svg");
  EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
  EXPECT_TRUE(Holds(svg, "total sample size (observations)"));
  EXPECT_TRUE(Holds(svg, "n = 60, power 0.63"));
  EXPECT_EQ(Written(design + " --chart sd", "curve.png").rfind("\x89PNG", 0), 0u);
  EXPECT_EQ(Written(design + " --chart n", "curve.pdf").rfind("%PDF", 0), 0u);
  EXPECT_EQ(Written(design + " --chart n", "curve.csv"), RunProgram(Words(design + " --chart n --format csv")).out);
  EXPECT_EQ(Written(design + " --chart n", "curve.json"), RunProgram(Words(design + " --chart n --format json")).out);
}

TEST_F(ChartFiles, NameTheLevelsOfASurface) {
  const std::string svg = Written(design + " --chart n-sd --from 12,2 --to 150,12", "surface.svg");
  for (const char* text : {"power 0.5<", "power 0.8<", "power 0.9<", "power 0.95<", "standard deviation"}) {
    EXPECT_TRUE(Holds(svg, text)) << text;
  }
  const std::regex dashes("stroke-dasharray='[^']*'");
  std::set<std::string> patterns;
  for (std::sregex_iterator match(svg.begin(), svg.end(), dashes), end; match != end; ++match) {
    patterns.insert(match->str());
  }
  EXPECT_EQ(patterns.size(), 3u);  // and the line of 0.8 is whole
}

TEST_F(ChartFiles, NameOnlyTheLevelsThatASurfaceHas) {
  const std::string svg = Written(design + " --chart n-sd --from 12,6 --to 60,12", "low.svg");
  EXPECT_TRUE(Holds(svg, "power 0.5<"));
  EXPECT_FALSE(Holds(svg, "power 0.8<"));
}

TEST_F(ChartFiles, MayHaveAnyName) {
  EXPECT_EQ(Written(design + " --chart n", "a 'b\" `$(c);\n.svg").rfind("<?xml", 0), 0u);
}

TEST_F(ChartFiles, ThatCannotBeWrittenFail) {
  const Outcome run = RunProgram(Words(design + " --chart n --output " + (folder / "none" / "x.csv").string()));
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(Holds(run.err, "cannot be written")) << run.err;
}

TEST_F(ChartFiles, NeedGnuplotForADrawing) {
  const std::string path = std::getenv("PATH");
  setenv("PATH", folder.c_str(), 1);
  const Outcome run = RunProgram(Words(design + " --chart n"));
  const Outcome table = RunProgram(Words(design + " --chart n --format csv"));
  setenv("PATH", path.c_str(), 1);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "kelpower: The chart cannot be drawn: gnuplot is not installed; .csv and .json need none.\n");
  EXPECT_EQ(table.status, 0);
}

TEST_F(ChartFiles, SayThatGnuplotFailed) {
  const std::filesystem::path fake = folder / "gnuplot";
  std::ofstream(fake) << "#!/bin/sh\nexit 1\n";
  std::filesystem::permissions(fake, std::filesystem::perms::owner_all);
  const std::string path = std::getenv("PATH");
  setenv("PATH", (folder.string() + ":" + path).c_str(), 1);
  const Outcome run = RunProgram(Words(design + " --chart n"));
  setenv("PATH", path.c_str(), 1);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "kelpower: The chart cannot be drawn: gnuplot failed.\n");
}

}  // namespace
