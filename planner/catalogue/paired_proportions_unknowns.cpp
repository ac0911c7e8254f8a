#include "catalogue/paired_proportions.h"

namespace planner {

std::vector<Unknown> UnknownsOfPairedProportions() {
  constexpr const char* reason = "the difference grows faster than its standard error";
  const auto discordant = [&](Name input, Piece (*piece)(const Inputs&), Piece (*below)(const Inputs&)) {
    return Unknown{.input = input,
                   .target = Question::Power,
                   .trend = Trend::Rises,
                   .reason = reason,
                   .piece = piece,
                   .pieceBelow = below};
  };
  return {
      discordant(
          "p12",
          [](const Inputs& in) -> Piece {
            return {in.Number("p21"), 1 - in.Number("p21")};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("p21")};
          }),
      discordant(
          "p21",
          [](const Inputs& in) -> Piece {
            return {in.Number("p12"), 1 - in.Number("p12")};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("p12")};
          }),
      discordant(
          "proportion1",
          [](const Inputs& in) -> Piece {
            return {in.Number("proportion2"), 1};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("proportion2")};
          }),
      discordant(
          "proportion2",
          [](const Inputs& in) -> Piece {
            return {in.Number("proportion1"), 1};
          },
          [](const Inputs& in) -> Piece {
            return {0, in.Number("proportion1")};
          }),
      {.input = "correlation",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = "fewer pairs are discordant, of which as many more are of one kind"},
  };
}

}  // namespace planner
