#include "call_input.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <string>

namespace kelfuzz {
namespace {

using keltest::Argument;
using keltest::Arguments;
using keltest::Target;

// More groups than this take the same paths.
constexpr std::int32_t mostGroups = 12;

// A vector of sizes holds fewer numbers than this before the call.
constexpr std::int32_t vectorLengths = 16;

// Integers from -8 on are one byte, up to this value of it; beyond, the byte says that all four follow.
constexpr std::int32_t integerShift = 8;
constexpr std::uint8_t lastShortInteger = 239;

// Any kind of number that `Reader` takes for a bit pattern.
constexpr std::uint8_t bitPattern = 4;

enum StopKind : std::uint8_t { nullValue, neverStops, fromQuestion };
constexpr std::uint8_t stopKinds = 3;

// FNV-1a, folded to 16 bits.
std::uint16_t Hash(const std::string& name) {
  std::uint32_t hash = 2166136261U;
  for (const char c : name) hash = (hash ^ static_cast<std::uint8_t>(c)) * 16777619U;
  return static_cast<std::uint16_t>(hash ^ hash >> 16);
}

const std::map<std::uint16_t, const Target*>& TargetsByHash() {
  static const std::map<std::uint16_t, const Target*> targets = [] {
    std::map<std::uint16_t, const Target*> all;
    for (const Target& target : keltest::Targets()) all.emplace(Hash(target.function->name), &target);
    return all;
  }();
  return targets;
}

bool HasArrays(const Target& target) { return target.function->arguments.find_first_of("pP") != std::string::npos; }

std::int32_t ReadInteger(Reader& reader) {
  const std::uint8_t byte = reader.Byte();
  return byte <= lastShortInteger ? byte - integerShift : static_cast<std::int32_t>(reader.Bits(4));
}

std::vector<double> ReadNumbers(Reader& reader, std::int32_t count) {
  std::vector<double> numbers;
  for (std::int32_t i = 0; i < count; ++i) numbers.push_back(reader.Number());
  numbers.shrink_to_fit();  // so that the address sanitizer sees an access beyond the end
  return numbers;
}

void ReadStopRequest(Reader& reader, Argument& argument) {
  const std::uint8_t kind = reader.Byte() % stopKinds;
  argument.isNull = kind == nullValue;
  argument.stopRequest.stopsAt =
      kind == fromQuestion ? static_cast<std::int64_t>(reader.Bits(4)) : std::numeric_limits<std::int64_t>::max();
}

class Writer {
public:
  void Byte(std::uint8_t byte) { bytes_.push_back(byte); }

  void Bits(std::uint64_t bits, int bytes) {
    for (int i = bytes - 1; i >= 0; --i) Byte(static_cast<std::uint8_t>(bits >> (8 * i)));
  }

  void Number(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    Byte(bitPattern);
    Bits(bits, 8);
  }

  void Integer(std::int32_t value) {
    if (value >= -integerShift && value <= lastShortInteger - integerShift)
      return Byte(static_cast<std::uint8_t>(value + integerShift));
    Byte(lastShortInteger + 1);
    Bits(static_cast<std::uint32_t>(value), 4);
  }

  void StopRequest(const Argument& argument) {
    constexpr std::int64_t noQuestion = std::int64_t{1} << 32;
    if (argument.isNull) return Byte(nullValue);
    if (argument.stopRequest.stopsAt >= noQuestion) return Byte(neverStops);
    Byte(fromQuestion);
    Bits(static_cast<std::uint64_t>(argument.stopRequest.stopsAt), 4);
  }

  std::vector<std::uint8_t> Take() { return std::move(bytes_); }

private:
  std::vector<std::uint8_t> bytes_;
};

}  // namespace

const Target& ReadTarget(Reader& reader) {
  const auto& targets = TargetsByHash();
  const auto found = targets.lower_bound(static_cast<std::uint16_t>(reader.Bits(2)));
  return *(found == targets.end() ? targets.begin() : found)->second;
}

Arguments ReadArguments(const Target& target, Reader& reader) {
  Arguments arguments(target.names.size());
  std::int32_t numGroups = 0;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    Argument& argument = arguments[i];
    switch (target.function->arguments[i]) {
      case 'd': argument.number = reader.Number(); break;
      case 'i': argument.integer = ReadInteger(reader); break;
      case 'b': argument.integer = reader.Byte(); break;
      case 'p':
      case 'P': argument.array = ReadNumbers(reader, numGroups); break;
      case 'v': argument.array = ReadNumbers(reader, reader.Byte() % vectorLengths); break;
      case 's': ReadStopRequest(reader, argument); break;
      default: break;
    }
    if (target.names[i] != "numGroups" || !HasArrays(target)) continue;
    argument.integer = std::min(argument.integer, mostGroups);
    numGroups = argument.integer;
  }
  return arguments;
}

std::vector<std::uint8_t> WriteCall(const Target& target, const Arguments& arguments) {
  Writer writer;
  writer.Bits(Hash(target.function->name), 2);
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Argument& argument = arguments[i];
    switch (target.function->arguments[i]) {
      case 'd': writer.Number(argument.number); break;
      case 'i': writer.Integer(argument.integer); break;
      case 'b': writer.Byte(static_cast<std::uint8_t>(argument.integer)); break;
      case 'v': writer.Byte(static_cast<std::uint8_t>(argument.array.size())); [[fallthrough]];
      case 'p':
      case 'P':
        for (const double number : argument.array) writer.Number(number);
        break;
      case 's': writer.StopRequest(argument); break;
      default: break;
    }
  }
  return writer.Take();
}

}  // namespace kelfuzz
