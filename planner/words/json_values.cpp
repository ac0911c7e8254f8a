#include "words/json_values.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "words/numbers.h"

namespace planner {

void AppendJsonText(std::string& out, std::string_view text) {
  const auto isPlain = [](char letter) { return letter >= ' ' && letter <= '~' && letter != '"' && letter != '\\'; };
  if (std::all_of(text.begin(), text.end(), isPlain)) {
    out += '"';
    out += text;
    out += '"';
    return;
  }
  using Json = nlohmann::json;
  out += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

void AppendJson(std::string& out, const Numbers& numbers) {
  out += '[';
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i > 0) out += ',';
    AppendShortest(out, numbers[i]);
  }
  out += ']';
}

void AppendJson(std::string& out, const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) {
    out += *flag ? "true" : "false";
  } else if (const auto* number = std::get_if<double>(&value)) {
    AppendShortest(out, *number);
  } else if (const auto* numbers = std::get_if<Numbers>(&value)) {
    AppendJson(out, *numbers);
  } else {
    AppendJsonText(out, std::get<std::string>(value));
  }
}

void OpenObject::AddNumber(std::string_view name, double number) { AppendShortest(Begin(name), number); }

std::string& OpenObject::Begin(std::string_view name) {
  if (!isEmpty_) out_ += ',';
  isEmpty_ = false;
  AppendJsonText(out_, name);
  return out_ += ':';
}

void AppendCsvResults(const DesignAnswer& answer, const std::vector<std::size_t>& places, std::string& out) {
  const std::vector<ResultColumn>& columns = *answer.columns;
  for (std::size_t place : places) {
    if (place < columns.size() && columns[place].reading == Reading::Sizes) {
      out += ListedWithSpaces(answer.SizesOf(columns[place]));
    } else if (place < columns.size() && !std::isnan(answer.values[place])) {
      AppendShortest(out, answer.values[place]);
    }
    out += ',';
  }
}

}  // namespace planner
