#include "words/json_writer.h"

#include <algorithm>
#include <cmath>

#include "words/json_values.h"
#include "words/numbers.h"

namespace planner {

std::string Spelt(std::string_view name, NameStyle style) {
  std::string spelt(name);
  if (style == NameStyle::Underscores) std::replace(spelt.begin(), spelt.end(), '-', '_');
  return spelt;
}

void JsonWriter::Key(std::string_view key) {
  BeginEntry();
  AppendJsonText(out_, key);
  out_ += layout_ == JsonLayout::Lines ? ": " : ":";
  isAfterKey_ = true;
}

void JsonWriter::Text(std::string_view text) {
  BeginValue();
  AppendJsonText(out_, text);
}

void JsonWriter::Number(double number) {
  if (!std::isfinite(number)) return Null();
  BeginValue();
  AppendShortest(out_, number);
}

void JsonWriter::Flag(bool flag) {
  BeginValue();
  out_ += flag ? "true" : "false";
}

void JsonWriter::Null() {
  BeginValue();
  out_ += "null";
}

void JsonWriter::Of(const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return Flag(*flag);
  if (const auto* number = std::get_if<double>(&value)) return Number(*number);
  if (const auto* numbers = std::get_if<Numbers>(&value)) return Of(*numbers);
  Text(std::get<std::string>(value));
}

void JsonWriter::Of(const Numbers& numbers) {
  OpenArray();
  for (double number : numbers) Number(number);
  CloseArray();
}

void JsonWriter::Written(std::string_view json) {
  BeginValue();
  out_ += json;
}

void JsonWriter::BeginValue() {
  if (!isAfterKey_ && !hasEntries_.empty()) BeginEntry();
  isAfterKey_ = false;
}

void JsonWriter::BeginEntry() {
  if (hasEntries_.back()) out_ += ',';
  hasEntries_.back() = true;
  NewLine();
}

void JsonWriter::NewLine() {
  if (layout_ == JsonLayout::Compact) return;
  out_ += '\n';
  out_.append(2 * hasEntries_.size(), ' ');
}

void JsonWriter::Open(char bracket) {
  BeginValue();
  out_ += bracket;
  hasEntries_.push_back(false);
}

void JsonWriter::Close(char bracket) {
  const bool hadEntries = hasEntries_.back();
  hasEntries_.pop_back();
  if (hadEntries) NewLine();
  out_ += bracket;
}

}  // namespace planner
