#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <regex>

#include "run.h"

namespace {

struct Terminal {
  unsigned short columns = 80;
  unsigned short lines = 24;
  const char* kind = "xterm";
  const char* noColor = "";
};

/// What the program shows on a terminal.
std::string Shown(const std::vector<std::string>& arguments, const Terminal& terminal) {
  std::vector<std::string> texts{KELPOWER_PROGRAM};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);

  winsize size{};
  size.ws_col = terminal.columns;
  size.ws_row = terminal.lines;
  int screen = -1;
  const pid_t child = forkpty(&screen, nullptr, nullptr, &size);
  if (child == 0) {
    setenv("TERM", terminal.kind, 1);
    setenv("NO_COLOR", terminal.noColor, 1);
    execv(argv[0], argv.data());
    _exit(127);
  }
  std::string text;
  char block[4096];
  for (ssize_t count = read(screen, block, sizeof block); count > 0; count = read(screen, block, sizeof block)) {
    text.append(block, static_cast<std::size_t>(count));
  }
  close(screen);
  waitpid(child, nullptr, 0);
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

const std::vector<std::string> question = Words("anova --means 10,12,15 --sd 6 --n 20");
const std::vector<std::string> chart = Words("anova --means 10,12,15 --sd 6 --n 20 --chart n");

std::ptrdiff_t Lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

class OnATerminal : public testing::Test {
protected:
  void SetUp() override {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0) GTEST_SKIP() << "there are no terminals here";  // such as in a chroot without devpts
    close(terminal);
  }
};

TEST_F(OnATerminal, PaintsHeadingsAndAnswersAndNothingElse) {
  const std::string painted = Shown(question, {});
  EXPECT_EQ(painted.rfind("\033[1mOne-way analysis of variance", 0), 0u) << painted;
  EXPECT_NE(painted.find("\033[1;36m"), std::string::npos);
  EXPECT_EQ(std::regex_replace(painted, std::regex("\033\\[[0-9;]*m"), ""), RunProgram(question).out);
}

TEST_F(OnATerminal, IsNotPaintedWhereThatIsNotWanted) {
  EXPECT_EQ(Shown(question, {80, 24, "xterm", "1"}), RunProgram(question).out);
  EXPECT_EQ(Shown(question, {80, 24, "dumb", ""}), RunProgram(question).out);
}

TEST_F(OnATerminal, IsFilledByACharacterChart) {
  const std::string small = Shown(chart, {80, 24});
  EXPECT_EQ(Lines(Shown(chart, {80, 40})) - Lines(small), 16);
  EXPECT_NE(Shown(chart, {120, 24}), small);
  EXPECT_EQ(small, Shown(chart, {80, 24, "dumb", ""}));
}

TEST_F(OnATerminal, LeavesRoomForAChartHoweverSmallItIs) {
  EXPECT_EQ(Shown(chart, {10, 5}), Shown(chart, {41, 13}));
  EXPECT_NE(Shown(chart, {42, 14}), Shown(chart, {41, 13}));
  EXPECT_EQ(Shown(chart, {0, 0}), Shown(chart, {80, 25}));
}

}  // namespace
