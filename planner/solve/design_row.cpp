#include "solve/design_row.h"

#include <variant>

namespace planner {
namespace {

template <typename T>
std::string_view BytesOf(const T& value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

}  // namespace

void DesignRow::Start(const Test& test) {
  test_ = &test;
  shape_.assign(BytesOf(test_));
  numbers_.clear();
  given_.clear();
  wordCount_ = 0;
}

void DesignRow::Add(const Parameter& parameter, const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return AddFlag(parameter, *flag);
  if (const auto* number = std::get_if<double>(&value)) return AddNumber(parameter, *number);
  if (const auto* numbers = std::get_if<Numbers>(&value)) return AddNumbers(parameter, *numbers);
  AddWord(parameter, std::get<std::string>(value));
}

void DesignRow::AddNumbers(const Parameter& parameter, std::span<const double> numbers) {
  const std::size_t count = numbers.size();
  // The number of groups decides how long lists are.
  AddToShape(parameter, BytesOf(count));
  if (parameter.role == Role::Shape) {
    for (double number : numbers) AddToShape(parameter, BytesOf(number));
  }
  given_.push_back({&parameter, numbers_.size(), count});
  numbers_.insert(numbers_.end(), numbers.begin(), numbers.end());
}

void DesignRow::AddFlag(const Parameter& parameter, bool isSet) {
  AddToShape(parameter, isSet ? "1" : "0");
  if (wordCount_ == words_.size()) words_.emplace_back();
  Word& word = words_[wordCount_++];
  word.parameter = &parameter;
  word.isSet = isSet;
}

void DesignRow::AddWord(const Parameter& parameter, std::string_view text) {
  AddToShape(parameter, text);
  if (wordCount_ == words_.size()) words_.emplace_back();
  Word& word = words_[wordCount_++];
  word.parameter = &parameter;
  word.word.assign(text);
}

InputValues DesignRow::Values() const {
  InputValues values;
  for (const auto& [parameter, first, count] : given_) {
    const auto begin = numbers_.begin() + static_cast<std::ptrdiff_t>(first);
    const std::string name(parameter->name.Text());
    if (parameter->IsList()) {
      values[name] = Numbers(begin, begin + static_cast<std::ptrdiff_t>(count));
    } else {
      values[name] = *begin;
    }
  }
  for (std::size_t i = 0; i < wordCount_; ++i) {
    const auto& [parameter, isSet, word] = words_[i];
    const std::string name(parameter->name.Text());
    if (parameter->kind == Kind::Flag) {
      values[name] = isSet;
    } else {
      values[name] = word;
    }
  }
  return values;
}

/// Each input is told by its index and the length of what follows, so that no two shapes read the same.
void DesignRow::AddToShape(const Parameter& parameter, std::string_view value) {
  shape_ += static_cast<char>(parameter.name.Index());
  const std::size_t length = value.size();
  shape_.append(BytesOf(length));
  shape_.append(value);
}

}  // namespace planner
