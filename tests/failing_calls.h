#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "files/system_calls.h"

namespace ostrane {

struct call_fault {
  enum fault_kind {
    fails,         // returns -`reason` without the call; a write writes half first
    lies,          // returns -`reason` after the call
    interrupted,   // returns -EINTR once
    does_nothing,  // a write returns 0, a rename reports success
    kills,         // kills the process
    stops,         // stops the process until SIGCONT
  } kind = fails;
  int reason = 0;        // an errno
  bool lasting = false;  // all later calls fail too
};

// During its lifetime the tool's file calls are recorded, and call `at`, or the first or all of one
// name, fail. Reads and writes move half of the bytes asked for.
struct failing_calls {
  explicit failing_calls(int at = INT32_MAX, call_fault with = {.kind = call_fault::kills},
                         std::string name = "");
  failing_calls(std::string name, int reason)
      : failing_calls(INT32_MAX, {.reason = reason, .lasting = true}, std::move(name)) {}
  ~failing_calls();

  bool happened() const { return static_cast<int>(calls.size()) > at; }
  // Calls `act` before each call of that name.
  void before(const std::string& name, const std::function<void()>& act) {
    before_call = [=](const std::string& call) {
      if (call == name) act();
    };
  }

  const int at;  // 0-based number of the call
  const call_fault fault;
  const std::string failing_name;
  std::function<void(const std::string& name)> before_call = [](const auto&) {};
  std::size_t max_bytes = SIZE_MAX;  // per read or write
  std::vector<std::string> calls;
};

}  // namespace ostrane
