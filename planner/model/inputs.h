#ifndef KELPOWER_PLANNER_MODEL_INPUTS_H
#define KELPOWER_PLANNER_MODEL_INPUTS_H

#include <array>

#include "model/name.h"
#include "model/parameter.h"
#include "model/stop_request.h"
#include "model/value.h"

namespace planner {

/// The inputs of one question as its route reads them: single numbers are spread over the groups, and the word of a
/// choice is the library's code. An input is found by the index of its name, so that reading and setting one costs next
/// to nothing.
class Inputs {
public:
  bool Has(Name name) const { return slots_[name.Index()].isGiven; }

  double Number(Name name) const { return slots_[name.Index()].number; }
  bool Flag(Name name) const { return Number(name) != 0; }
  /// The library's code of the chosen word.
  int Choice(Name name) const { return static_cast<int>(Number(name)); }
  const Numbers& List(Name name) const { return slots_[name.Index()].list; }

  /// Sets a number; a flag is 1 or 0, a choice its code.
  void Set(Name name, double number) {
    slots_[name.Index()].isGiven = true;
    slots_[name.Index()].number = number;
  }
  void SetList(Name name, const Numbers& list) {
    slots_[name.Index()].isGiven = true;
    slots_[name.Index()].list = list;
  }
  /// Sets one entry of a list that is there.
  void SetEntry(Name name, std::size_t entry, double number) { slots_[name.Index()].list[entry] = number; }
  /// Takes over an input from others that describe the same design.
  void Take(Name name, const Inputs& others) { slots_[name.Index()] = others.slots_[name.Index()]; }
  void Erase(Name name) { slots_[name.Index()].isGiven = false; }

  /// Sets an input to a value that its parameter allows; the second gives it back.
  void SetValue(const Parameter& parameter, const Value& value);
  Value ValueOf(const Parameter& parameter) const;

  /// The level of the test. Several comparisons share that which is given (Bonferroni).
  double Alpha() const { return Has("comparisons") ? Number("alpha") / Number("comparisons") : Number("alpha"); }
  int Groups() const { return groups_; }
  void SetGroups(int groups) { groups_ = groups; }
  /// Shares of the groups in the total: the sizes where they are given, else the ratios, else all equal.
  Numbers Weights() const;

  StopRequest* Stop() const { return stop_; }
  void SetStop(StopRequest* stop) { stop_ = stop; }

private:
  struct Slot {
    bool isGiven = false;
    double number = 0;
    Numbers list;
  };

  std::array<Slot, Name::count> slots_;
  int groups_ = 1;
  StopRequest* stop_ = nullptr;
};

}  // namespace planner

#endif
