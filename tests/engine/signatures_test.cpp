// The types of every export, as the header declares them, are those of the interface that was agreed on.

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "binding.h"

namespace {

nlohmann::json ReadSignatures() {
  std::ifstream file(KELPOWER_VECTORS "/signatures.json");
  return nlohmann::json::parse(file);
}

std::string Types(const nlohmann::json& arguments) {
  std::string types;
  for (const auto& argument : arguments) types += argument.at(1).get<std::string>();
  return types;
}

TEST(Signatures, EveryExportHasItsTypes) {
  const nlohmann::json signatures = ReadSignatures();
  ASSERT_FALSE(keltest::Exports().empty());
  for (const keltest::Function& function : keltest::Exports()) {
    ASSERT_TRUE(signatures.contains(function.name)) << function.name << " is not part of the interface";
    const nlohmann::json& signature = signatures[function.name];
    EXPECT_EQ(function.result, signature[0]) << "result of " << function.name;
    EXPECT_EQ(function.arguments, Types(signature[1])) << "arguments of " << function.name;
  }
}

}  // namespace
