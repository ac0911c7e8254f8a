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
#include "solve/axes.h"

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

TEST(Chart, EveryAxisOfTheFirstExampleIsDrawn) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string example = test.examples.front().arguments;
    for (const planner::Axis& axis : planner::AllAxes(test)) {
      const Outcome run = RunProgram(Words(example + " --chart " + axis.name + " --format json"));
      if (run.status == 2) continue;  // a number of another route
      ASSERT_EQ(run.status, 0) << example << " --chart " << axis.name << '\n' << run.err;
      const auto json = nlohmann::json::parse(run.out);
      const auto& curve = json["curves"][0];
      EXPECT_EQ(json["x"].size(), curve[json["quantity"].get<std::string>()].size()) << example;
      EXPECT_TRUE(curve.contains("design")) << example << " --chart " << axis.name;
      EXPECT_FALSE(curve["inputs"].empty());
    }
  }
}

TEST(Chart, BeginsWithoutAFormFeed) {
  EXPECT_EQ(RunProgram(Words(design + " --chart n")).out.find('\f'), std::string::npos);
}

TEST(Chart, HasSeveralCurves) {
  const Outcome run = RunProgram(Words("two-means --effect-d 0.2,0.5,0.8 --power 0.8 --chart n"));
  EXPECT_EQ(run.status, 0) << run.err;
  for (const char* label : {"effect size d 0.2", "effect size d 0.5", "effect size d 0.8"}) {
    EXPECT_TRUE(Holds(run.out, label)) << run.out;
  }
  const std::string table = " --power 0.8 --chart n --from 10 --to 20 --format csv";
  EXPECT_EQ(RunProgram(Words("two-means --effect-d 0.2,0.5" + table)).out,
            RunProgram(Words("two-means --effect-d 0.2 --effect-d 0.5" + table)).out);
}

TEST(Chart, IsDrawnInCharacters) {
  for (const std::string chart : {" --chart total", " --chart total-sd --from 12,2 --to 150,12"}) {
    const Outcome run = RunProgram(Words(design + chart));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Holds(run.out, "total sample size (observations)")) << run.out;
    EXPECT_TRUE(Holds(run.out, "power 0.63")) << run.out;
    EXPECT_TRUE(Holds(run.out, "One-way analysis of variance")) << run.out;
  }
}

TEST(Chart, InCharactersNamesBothAxesOfASurface) {
  const Outcome run = RunProgram(Words(design + " --chart total-sd --from 12,2 --to 150,12"));
  EXPECT_TRUE(Holds(run.out, "upwards: standard deviation")) << run.out;
  for (const char* level : {"power 0.5 ", "power 0.8 ", "power 0.9 ", "power 0.95"}) {
    EXPECT_TRUE(Holds(run.out, level)) << run.out;
  }
}

TEST_F(ChartFiles, HoldTitlesAndMark) {
  const std::string svg = Written(design + " --chart total", "curve.svg");
  EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
  EXPECT_TRUE(Holds(svg, "total sample size (observations)"));
  EXPECT_TRUE(Holds(svg, "total = 60, power 0.63"));
  EXPECT_EQ(Written(design + " --chart sd", "curve.png").rfind("\x89PNG", 0), 0u);
  EXPECT_EQ(Written(design + " --chart n", "curve.pdf").rfind("%PDF", 0), 0u);
  EXPECT_EQ(Written(design + " --chart n", "curve.csv"), RunProgram(Words(design + " --chart n --format csv")).out);
  EXPECT_EQ(Written(design + " --chart n", "curve.json"), RunProgram(Words(design + " --chart n --format json")).out);
}

TEST_F(ChartFiles, NameTheLevelsOfASurface) {
  const std::string svg = Written(design + " --chart total-sd --from 12,2 --to 150,12", "surface.svg");
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
  const std::string svg = Written(design + " --chart total-sd --from 12,6 --to 60,12", "low.svg");
  EXPECT_TRUE(Holds(svg, "power 0.5<"));
  EXPECT_FALSE(Holds(svg, "power 0.8<"));
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST_F(ChartFiles, TellTheirContentToThoseWhoCannotSeeIt) {
  const std::string svg = Written(design + " --chart n", "curve.svg");
  EXPECT_EQ(Count(svg, "<title id="), 1u);
  EXPECT_TRUE(Holds(svg, "<title id=\"title\">One-way analysis of variance: overall F test</title>"));
  EXPECT_TRUE(Holds(svg,
                    "Power over sample size per group (observations) from 2 to 65; group means 10, 12, 15; standard "
                    "deviation 6; significance level 0.05. Design: n per group = 20, power 0.63.</desc>"));
  EXPECT_FALSE(Holds(svg, "<title>Gnuplot</title>"));
}

TEST_F(ChartFiles, TellCurvesApartByDashesAndColours) {
  const std::string svg = Written("two-means --effect-d 0.2,0.5,0.8 --power 0.8 --chart n", "curves.svg");
  for (const char* colour : {"rgb(  0, 114, 178)", "rgb(213,  94,   0)", "rgb(  0, 158, 115)"}) {
    EXPECT_TRUE(Holds(svg, colour)) << colour;
  }
  const std::regex dashes("stroke-dasharray='[^']*'");
  std::set<std::string> patterns;
  for (std::sregex_iterator match(svg.begin(), svg.end(), dashes), end; match != end; ++match) {
    patterns.insert(match->str());
  }
  EXPECT_EQ(patterns.size(), 2u);  // and one is whole
}

/// Width and height in the header of a PNG file.
std::pair<int, int> SizeOfPng(const std::string& png) {
  const auto number = [&](std::size_t at) {
    int value = 0;
    for (std::size_t i = at; i < at + 4; ++i) value = value * 256 + static_cast<unsigned char>(png[i]);
    return value;
  };
  return {number(16), number(20)};
}

TEST_F(ChartFiles, HaveTheSizeAndTitleAskedFor) {
  EXPECT_EQ(SizeOfPng(Written(design + " --chart n --width 400 --height 300", "small.PNG")), std::pair(400, 300));
  EXPECT_EQ(SizeOfPng(Written(design + " --chart n --width 400 --height 300 --dpi 192", "fine.png")),
            std::pair(800, 600));
  EXPECT_TRUE(Holds(Written(design + " --chart n --title Mine", "mine.svg"), ">Mine</title>"));
}

TEST_F(ChartFiles, AreOfTheFormatAskedFor) {
  const std::string json = RunProgram(Words(design + " --chart n --format json")).out;
  EXPECT_EQ(Written(design + " --chart n --format json", "chart.txt"), json);
  EXPECT_EQ(Written(design + " --chart n --format json", "chart.json"), json);
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
