#ifndef KELPOWER_CLI_COMPLETE_H
#define KELPOWER_CLI_COMPLETE_H

#include <string>
#include <vector>

/// A word that may stand where the command line ends, and what it means.
struct Candidate {
  std::string word;
  std::string meaning = {};
};

/// The words that the last of `words` may become: tests, the options that still go with those given, the words of a
/// choice, the axes of a chart. `words` stand after the program's name, and the last may be empty. Where a file is to be
/// named, the only candidate is `anyFile`.
std::vector<Candidate> Candidates(std::vector<std::string> words);

constexpr const char* anyFile = ":files";

/// The candidates for a shell: one a line, with its meaning after a tab.
std::string Completions(const std::vector<std::string>& words);

#endif
