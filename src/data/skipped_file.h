#pragma once

#include <string>

namespace ostrane {

// A file or entry that a job reports to the user.
struct skipped_file {
  std::string name;
  std::string reason;  // a sentence fragment
};

}  // namespace ostrane
