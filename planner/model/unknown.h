#ifndef KELPOWER_PLANNER_MODEL_UNKNOWN_H
#define KELPOWER_PLANNER_MODEL_UNKNOWN_H

#include <string>

#include "model/inputs.h"
#include "model/name.h"
#include "model/question.h"

namespace planner {

/// How the power or half-width of a design moves as one of its numbers grows.
enum class Trend { Rises, Falls };

/// Where an unknown is looked for: between these ends, neither of which it takes unless its parameter allows it.
struct Piece {
  double low;
  double high;
};

/// A number of a design that is solved for where the power or the half-width is given in its place. On its piece the
/// power is monotone, so that there is one answer at most.
struct Unknown {
  Name input;
  Question target;     // the power, or the half-width
  Trend trend;         // on the piece
  std::string reason;  // for the trend

  /// The piece, where it depends on the other inputs. Null: all that the parameter allows.
  Piece (*piece)(const Inputs&) = nullptr;
  /// The piece on the other side of no effect, which `below` chooses; the trend there is the other one.
  Piece (*pieceBelow)(const Inputs&) = nullptr;
  /// Puts the number into the inputs of a route that does not take it: the ratio, which changes the sizes.
  void (*set)(Inputs&, double at) = nullptr;
  /// The next number from `at` on that a study can have: a ratio of whole sizes.
  double (*attainable)(const Inputs&, double at) = nullptr;
};

}  // namespace planner

#endif
