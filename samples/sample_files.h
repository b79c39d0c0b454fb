#pragma once

#include <string>
#include <vector>

namespace ostrane::samples {

struct sample_file {
  std::string name;   // upper case, at most 13 characters
  std::string bytes;  // one byte a character
};

// The files that the sample archive is built from.
std::vector<sample_file> sample_files();

}  // namespace ostrane::samples
