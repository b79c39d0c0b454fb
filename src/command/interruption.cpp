#include "command/interruption.h"

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace ostrane::command {

namespace {

volatile std::sig_atomic_t stored_signal = 0;

extern "C" void store_signal(int number) {
  stored_signal = number;
  std::signal(number, store_signal);
}

}  // namespace

void catch_signals() {
  std::initializer_list<int> numbers = {SIGINT, SIGTERM,
#ifndef _WIN32
                                        SIGHUP, SIGPIPE
#endif
  };
  for (const int number : numbers) {
    // A signal that the parent process ignores stays ignored.
    if (std::signal(number, store_signal) == SIG_IGN) std::signal(number, SIG_IGN);
  }
}

void check_interruption() {
  if (stored_signal != 0) throw interruption{};
}

void raise_stored_signal() {
  const int number = stored_signal;
  std::signal(number, SIG_DFL);
  std::raise(number);
  std::_Exit(128 + number);
}

}  // namespace ostrane::command
