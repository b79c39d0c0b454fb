#pragma once

#include <string>
#include <vector>

namespace ostrane {

// While it lives the tool's calls to the system for files are counted, and one of them fails. A
// write that fails has written half of its bytes.
struct failing_calls {
  explicit failing_calls(int failing, int with = 0, bool all_behind_it = false);
  failing_calls(const failing_calls&) = delete;
  failing_calls& operator=(const failing_calls&) = delete;
  ~failing_calls();

  bool happened() const { return static_cast<int>(made.size()) > at; }

  const int at;        // the number of the failing call, from 0 on
  const int reason;    // of errno's numbering; at 0 the process is killed there
  const bool lasting;  // those behind it fail too
  std::vector<std::string> made;
};

}  // namespace ostrane
