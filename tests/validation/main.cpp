// Holds the powers of designs beside simulated studies.
//   kelpower_validation DESIGNS [--part I/K] [--studies N] [--seed S]
// A line of DESIGNS is an object with the members `test` and `inputs` of a request of the C interface, and others for the
// page. A line is printed for each: the same object with
//   power           what the C interface answers: the power, or the expected one of an uncertain effect
//   kind            "exact" where that is claimed to be the power of the test itself, else "approximation"
//   rejected        the share of the studies that the test rejects
//   studies         how many were drawn: `studies` of the design or a million, or N
//   standard-error  of that share, at the true power as far as it is known: the power of an exact test, the counted one,
//                   else the share
//   counted         the probability of all outcomes that the test rejects, where they were counted through
// Each design has a seed of its own. With --seed these are others, and the rows have the member `seed`.
// With --part every K-th design is done, from the I-th on, counted from 0.

#include <kelplan.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "support/share_of_studies.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

using Json = nlohmann::ordered_json;

struct Options {
  std::string designs;
  int part = 0;
  int parts = 1;
  int studies = 0;  // as the design says
  unsigned seed = 0;
};

double PowerOf(const Json& request) {
  char* text = nullptr;
  const int status = kelplan_solve(request.dump().c_str(), nullptr, &text);
  const Json answer = Json::parse(text ? text : "{}");
  kelplan_free(text);
  if (status != KELPLAN_OK) throw std::invalid_argument(answer.dump());
  const Json& results = answer.at("results");
  return results.at(results.contains("power") ? "power" : "expected-power").get<double>();
}

/// The seed follows from the design, so that designs added before it do not change its studies (FNV-1a).
unsigned SeedOf(const std::string& text) {
  unsigned hash = 2166136261U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return hash;
}

Json Row(const Json& design, const Options& options) {
  const Json request{{"test", design.at("test")}, {"inputs", design.at("inputs")}};
  Inputs inputs(design.at("inputs"));
  const Study study = MakeStudy(design.at("test"), inputs);
  if (!inputs.Unread().empty()) throw std::invalid_argument("no study follows " + inputs.Unread());
  const int drawn = options.studies > 0 ? options.studies : design.value("studies", 1000000);
  Json row = design;
  const double power = PowerOf(request);
  const SimulatedShare share = Simulate(drawn, SeedOf(request.dump()) + options.seed, study.rejects);
  row["power"] = power;
  row["kind"] = study.isExact ? "exact" : "approximation";
  row["rejected"] = share.share;
  row["studies"] = drawn;
  if (options.seed > 0) row["seed"] = options.seed;
  double truth = study.isExact ? power : share.share;
  if (study.counted) {
    truth = study.counted();
    row["counted"] = truth;
  }
  row["standard-error"] = std::sqrt(truth * (1 - truth) / drawn);
  return row;
}

int Validate(const Options& options) {
  std::ifstream file(options.designs);
  std::string line;
  int failures = 0;
  int lines = 0;
  for (; std::getline(file, line); ++lines) {
    if (lines % options.parts != options.part) continue;
    try {
      std::printf("%s\n", Row(Json::parse(line), options).dump().c_str());
      std::fflush(stdout);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s\n  %s\n", line.c_str(), error.what());
      ++failures;
    }
  }
  return lines > 0 && failures == 0 ? 0 : 1;
}

bool Read(int argc, char** argv, Options& options) {
  if (argc < 2 || argc % 2 != 0) return false;
  options.designs = argv[1];
  for (int i = 2; i < argc; i += 2) {
    const std::string name = argv[i];
    if (name == "--studies") {
      options.studies = std::atoi(argv[i + 1]);
    } else if (name == "--seed") {
      options.seed = static_cast<unsigned>(std::atoi(argv[i + 1]));
    } else if (name != "--part" || std::sscanf(argv[i + 1], "%d/%d", &options.part, &options.parts) != 2) {
      return false;
    }
  }
  return options.parts > 0 && options.part >= 0;
}

}  // namespace
}  // namespace kelpower::validation

int main(int argc, char** argv) {
  kelpower::validation::Options options;
  if (kelpower::validation::Read(argc, argv, options)) return kelpower::validation::Validate(options);
  std::fprintf(stderr, "kelpower_validation DESIGNS [--part I/K] [--studies N] [--seed S]\n");
  return 2;
}
