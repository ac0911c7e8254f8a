#include "computation.h"

#include <utility>

#include "format/format.h"
#include "interrupts.h"

using planner::Formatted;

namespace {

// The library may ask some hundred million times a second; a look at the clock takes as long as ten questions or so.
constexpr std::uint32_t questionsPerLook = 4096;
constexpr std::chrono::seconds linePeriod{1};

}  // namespace

Computation::Computation(std::string what)
    : what_(std::move(what)), questionsLeft_(questionsPerLook), nextLine_(start_ + linePeriod) {
  NoteInterrupts();
}

Computation::~Computation() { LetInterruptsEndTheProgram(); }

bool Computation::ShouldStop() {
  if (IsInterrupted()) return true;
  if (--questionsLeft_ == 0) LookAtTheClock();
  return false;
}

// Only the time spent is shown. How much is left the library does not say, and in a search it does not know. The line
// fits a terminal of forty columns, so that it can be overwritten.
void Computation::LookAtTheClock() {
  questionsLeft_ = questionsPerLook;
  if (!line_.IsShown()) return;
  const Clock::time_point now = Clock::now();
  if (now < nextLine_) return;
  nextLine_ = now + linePeriod;
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now - start_).count();
  line_.Show(Formatted("Computing {}, {} s so far", what_, seconds));
}
