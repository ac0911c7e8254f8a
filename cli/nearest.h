#ifndef KELPOWER_CLI_NEAREST_H
#define KELPOWER_CLI_NEAREST_H

#include <string>
#include <vector>

/// The word of `words` that needs the fewest letters changed, added or left out to become `typed`; empty when even that
/// word is far off.
std::string Nearest(const std::string& typed, const std::vector<std::string>& words);

#endif
