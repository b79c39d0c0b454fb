#include <cstdio>
#include <new>

#include "command/console.h"
#include "command/interruption.h"
#include "command/program.h"
#include "command/run_command.h"
#include "files/failure.h"
#include "files/system_calls.h"

int main(int argc, char** argv) {
  using namespace ostrane::command;
  catch_signals();
  files::ignore_size_limit_signal();
  set_up_standard_streams();
  try {
    const int status = run_command(arguments_of(argc, argv));
    hide_progress();
    return status;
  } catch (const interruption&) {
    hide_progress();
    raise_stored_signal();
  } catch (const std::bad_alloc&) {
    hide_progress();
    std::fprintf(stderr, "ostrane-dat: %s\n", files::out_of_memory_text);
  } catch (const std::exception& error) {
    hide_progress();
    std::fprintf(stderr, "ostrane-dat: %s\n", error.what());
  }
  return status_failed;
}
