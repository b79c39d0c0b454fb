#pragma once

#include <cerrno>

namespace files {

// An entry of the table of system calls. It calls its function again after -EINTR.
template <typename>
struct system_call;

template <typename Result, typename... Arguments>
struct system_call<Result(Arguments...)> {
  using function = Result (*)(Arguments...);

  constexpr system_call(function called) : function_(called) {}
  Result operator()(Arguments... arguments) const {
    for (;;) {
      const Result status = function_(arguments...);
      if (status != -EINTR) return status;
    }
  }

 private:
  function function_;
};

}  // namespace files
