#pragma once

#include <string>
#include <vector>

namespace files {

// Returns " Did you mean WORD?" for the known word that differs least from `word`, or "" if all
// differ in more than a third of its characters.
std::string did_you_mean(const std::string& word, const std::vector<std::string>& known);

}  // namespace files
