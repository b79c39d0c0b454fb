#include "command/interruption.h"

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace ostrane::command {

namespace {

volatile std::sig_atomic_t noted_signal = 0;

extern "C" void note_signal(int number) {
  noted_signal = number;
  std::signal(number, note_signal);
}

}  // namespace

void catch_signals() {
  std::initializer_list<int> numbers = {SIGINT, SIGTERM,
#ifndef _WIN32
                                        SIGHUP, SIGPIPE
#endif
  };
  for (const int number : numbers) {
    // Signals that the parent process ignores stay ignored.
    if (std::signal(number, note_signal) == SIG_IGN) std::signal(number, SIG_IGN);
  }
}

void check_interruption() {
  if (noted_signal != 0) throw interruption{};
}

void end_interrupted() {
  const int number = noted_signal;
  std::signal(number, SIG_DFL);
  std::raise(number);
  std::_Exit(128 + number);
}

}  // namespace ostrane::command
