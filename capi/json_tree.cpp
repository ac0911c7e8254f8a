#include "json_tree.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "words/json_writer.h"

namespace kelplan {
namespace {

using Kind = JsonTree::Kind;

constexpr std::size_t longest = std::size_t{16} << 20;  // bytes
constexpr std::size_t deepest = 8;
constexpr std::size_t mostValues = 200'000;
constexpr std::size_t mostKeys = 1000;

/// Builds the tree as the parser reads. A refusal is thrown.
class Builder : public nlohmann::json_sax<nlohmann::json> {
public:
  explicit Builder(JsonTree& root) : root_(root) {}

  bool null() override { return Add({}); }
  bool boolean(bool flag) override {
    return Add({.kind = Kind::Flag, .flag = flag, .text = {}, .items = {}, .keys = {}});
  }
  bool number_integer(number_integer_t number) override { return AddNumber(static_cast<double>(number)); }
  bool number_unsigned(number_unsigned_t number) override { return AddNumber(static_cast<double>(number)); }
  bool number_float(number_float_t number, const string_t&) override { return AddNumber(number); }
  bool string(string_t& text) override {
    return Add({.kind = Kind::Text, .text = std::move(text), .items = {}, .keys = {}});
  }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override { return Open(Kind::Object); }
  bool end_object() override { return Close(); }
  bool start_array(std::size_t) override { return Open(Kind::Array); }
  bool end_array() override { return Close(); }

  bool key(string_t& key) override {
    std::vector<std::string>& keys = open_.back()->keys;
    if (std::find(keys.begin(), keys.end(), key) != keys.end()) {
      throw BadRequest("key-repeated", "The key \"" + key + "\" stands twice in one object.");
    }
    if (keys.size() == mostKeys) throw BadRequest("too-large", "An object has more than 1000 keys.");
    keys.push_back(std::move(key));
    return true;
  }

  bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception&) override {
    throw BadRequest("not-json", "The request is not JSON: see byte " + std::to_string(position) + ".");
  }

private:
  bool AddNumber(double number) {
    return Add({.kind = Kind::Number, .number = number, .text = {}, .items = {}, .keys = {}});
  }

  bool Add(JsonTree value) {
    Place(std::move(value));
    return true;
  }

  JsonTree& Place(JsonTree value) {
    if (++count_ > mostValues) throw BadRequest("too-large", "The request has more than 200000 values.");
    JsonTree& place = open_.empty() ? root_ : open_.back()->items.emplace_back();
    place = std::move(value);
    return place;
  }

  bool Open(Kind kind) {
    if (open_.size() == deepest) throw BadRequest("nested-too-deeply", "The request is nested more than 8 deep.");
    open_.push_back(&Place({.kind = kind, .text = {}, .items = {}, .keys = {}}));
    return true;
  }

  bool Close() {
    open_.pop_back();
    return true;
  }

  JsonTree& root_;
  std::vector<JsonTree*> open_;  // what is open stays where it is until it is closed
  std::size_t count_ = 0;
};

void Write(planner::JsonWriter& json, const JsonTree& value) {
  switch (value.kind) {
    case Kind::Null: return json.Null();
    case Kind::Flag: return json.Flag(value.flag);
    case Kind::Number: return json.Number(value.number);
    case Kind::Text: return json.Text(value.text);
    case Kind::Array: json.OpenArray(); break;
    case Kind::Object: json.OpenObject(); break;
  }
  for (std::size_t i = 0; i < value.items.size(); ++i) {
    if (value.Is(Kind::Object)) json.Key(value.keys[i]);
    Write(json, value.items[i]);
  }
  value.Is(Kind::Array) ? json.CloseArray() : json.CloseObject();
}

}  // namespace

const JsonTree* JsonTree::Find(std::string_view key) const {
  const auto found = std::find(keys.begin(), keys.end(), key);
  return found == keys.end() ? nullptr : &items[static_cast<std::size_t>(found - keys.begin())];
}

JsonTree ReadJson(std::string_view text) {
  if (text.size() > longest) throw BadRequest("too-large", "The request is longer than 16 MiB.");
  JsonTree root;
  Builder builder(root);
  nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
  return root;
}

std::string ShortText(const JsonTree& value) {
  constexpr std::size_t most = 100;
  std::string text;
  planner::JsonWriter json(text);
  Write(json, value);
  if (text.size() <= most) return text;
  std::size_t end = most;
  while (end > 0 && (text[end] & 0xC0) == 0x80) --end;  // not within a character
  return text.substr(0, end) + "...";
}

}  // namespace kelplan
