// Inputs of the fuzz target kelpower as calls, in both directions.
//
// Usage: fuzz_calls write DIRECTORY   writes the first inputs: a typical call of every export, and one with an exact
//                                     computation where there is one
//        fuzz_calls show FILE...      prints the calls of inputs, before the target bounds their work

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "call_input.h"

namespace {

using kelfuzz::Reader;
using keltest::Arguments;
using keltest::Target;
using Bytes = std::vector<std::uint8_t>;

std::string DescribeInput(const Bytes& bytes) {
  Reader reader(bytes.data(), bytes.size());
  const Target& target = kelfuzz::ReadTarget(reader);
  return Describe(target, kelfuzz::ReadArguments(target, reader));
}

void WriteSeed(const std::string& path, const Target& target, const Arguments& arguments) {
  const Bytes bytes = kelfuzz::WriteCall(target, arguments);
  const std::string call = Describe(target, arguments);
  if (DescribeInput(bytes) != call) throw std::runtime_error("another call is read back: " + call);
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

void WriteSeeds(const std::string& directory) {
  for (const Target& target : keltest::Targets()) {
    const char* suffix = "";
    for (const Arguments& arguments : keltest::TypicalCalls(target)) {
      WriteSeed(directory + "/" + target.function->name + suffix, target, arguments);
      suffix = "Exact";
    }
  }
}

void Show(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
  std::printf("%s\n", DescribeInput(bytes).c_str());
}

bool Run(const std::vector<std::string>& arguments) {
  if (arguments.size() == 2 && arguments[0] == "write") {
    WriteSeeds(arguments[1]);
    return true;
  }
  if (arguments.size() < 2 || arguments[0] != "show") return false;
  for (std::size_t i = 1; i < arguments.size(); ++i) Show(arguments[i]);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (Run({argv + 1, argv + argc})) return 0;
    std::fputs("usage: fuzz_calls write DIRECTORY | show FILE...\n", stderr);
    return 2;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
}
