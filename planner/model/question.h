#ifndef KELPOWER_PLANNER_MODEL_QUESTION_H
#define KELPOWER_PLANNER_MODEL_QUESTION_H

#include <optional>

#include "model/name.h"

namespace planner {

enum class Question {
  Power,
  SampleSize,
  HalfWidth,
  SampleSizeForHalfWidth,
  EffectSizes,  // of what a study found; no test answers it
};

/// The questions that an input of their own asks. The power is asked without one.
inline constexpr Question askedQuestions[] = {Question::SampleSize, Question::HalfWidth,
                                              Question::SampleSizeForHalfWidth};

/// The input that asks the question.
constexpr std::optional<Name> AskedBy(Question question) {
  switch (question) {
    case Question::Power:
    case Question::EffectSizes: break;
    case Question::SampleSize: return Name("power");
    case Question::HalfWidth: return Name("interval");
    case Question::SampleSizeForHalfWidth: return Name("half-width");
  }
  return std::nullopt;
}

constexpr bool AsksForSizes(Question question) {
  return question == Question::SampleSize || question == Question::SampleSizeForHalfWidth;
}

constexpr bool IsAboutPower(Question question) {
  return question == Question::Power || question == Question::SampleSize;
}

/// The question about the value that sizes found for this one are checked by.
constexpr Question ValueQuestion(Question question) {
  return IsAboutPower(question) ? Question::Power : Question::HalfWidth;
}

}  // namespace planner

#endif
