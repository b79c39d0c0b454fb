#pragma once

#include <sys/resource.h>

#include <csignal>

namespace ostrane {

// While it lives no file can grow beyond 2000000 bytes; the system says so as for a full disk.
class full_disk {
 public:
  full_disk() {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small = {.rlim_cur = 2000000, .rlim_max = before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  full_disk(const full_disk&) = delete;
  full_disk& operator=(const full_disk&) = delete;
  ~full_disk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_ = {};
};

}  // namespace ostrane
