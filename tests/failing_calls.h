#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ostrane {

// What happens at a call.
struct call_fault {
  enum fault_kind {
    fails,        // it is not made, and reports `reason`; of a write half is done
    lies,         // it is made, and reports `reason`
    interrupted,  // it reports EINTR once, and then is made
    kills,        // the process ends there
    stops,        // the process is stopped there, until it is continued
  } kind = fails;
  int reason = 0;        // of errno's numbering
  bool lasting = false;  // all calls after it fail too
};

// While it lives the tool's calls to the system for files are counted, and one of them goes wrong.
// A read or a write moves half of what it is asked to.
class failing_calls {
 public:
  explicit failing_calls(int at, call_fault with = {.kind = call_fault::kills});
  failing_calls(const failing_calls&) = delete;
  failing_calls& operator=(const failing_calls&) = delete;
  ~failing_calls();

  bool happened() const { return static_cast<int>(made.size()) > at; }

  const int at;  // the number of the call, from 0 on
  const call_fault fault;
  std::vector<std::string> made;
};

}  // namespace ostrane
