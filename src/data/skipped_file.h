#pragma once

#include <string>

namespace ostrane {

// A file or an entry that a job skipped.
struct skipped_file {
  std::string name;
  std::string reason;  // a sentence fragment
};

}  // namespace ostrane
