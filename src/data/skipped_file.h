#pragma once

#include <string>

namespace ostrane {

// A file or an entry that a job has to tell of.
struct skipped_file {
  std::string name;
  std::string reason;  // the end of a sentence
};

}  // namespace ostrane
