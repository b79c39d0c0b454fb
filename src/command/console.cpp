#include "command/console.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>

#include "command/interruption.h"
#include "command/program.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

using clock = std::chrono::steady_clock;

constexpr auto first_bar_delay = std::chrono::milliseconds(500);
constexpr auto bar_interval = std::chrono::milliseconds(100);
constexpr std::size_t bar_width = 30;

struct console_state {
  talk wanted = talk::normal;
  bool is_dry_run = false;
  std::string pending;
  bool bar_is_shown = false;
  std::size_t bar_index = 0;
  std::u8string bar_name;
  clock::time_point next_bar = clock::now() + first_bar_delay;
};

console_state console;

constexpr std::size_t print_buffer_size = 65536;

void write_out() {
  hide_progress();
  const std::size_t written =
      std::fwrite(console.pending.data(), 1, console.pending.size(), stdout);
  const bool is_written = written == console.pending.size() && std::fflush(stdout) == 0;
  const int reason = errno;
  console.pending.clear();
  check_interruption();
  if (!is_written) files::fail(u8"standard output", files::file_action::write, -reason);
}

void draw_bar(std::size_t count) {
  const std::size_t index = console.bar_index;
  const std::size_t full = count == 0 ? 0 : std::min(index * bar_width / count, bar_width);
  const std::string bar = std::string(full, '#') + std::string(bar_width - full, ' ');
  const std::string line = "\r[" + bar + "] " + std::to_string(index) + " of " +
                           std::to_string(count) + " " + files::as_bytes(console.bar_name) +
                           "\x1B[K";
  console.next_bar = clock::now() + bar_interval;
  console.bar_is_shown = true;
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

void configure_console(talk wanted, bool is_dry_run) {
  console.wanted = wanted;
  console.is_dry_run = is_dry_run;
}

bool is_dry_run() { return console.is_dry_run; }

void report_write(const std::u8string& target) {
  print_step({target, console.is_dry_run ? "would be written" : "is written"});
}

void print_step(const files::failure& step) {
  if (console.wanted == talk::verbose || console.is_dry_run) print_error(step);
}

void print(std::string_view bytes) {
  console.pending += bytes;
  if (console.pending.size() >= print_buffer_size) write_out();
}

void print_line(std::u8string_view text) { print(files::as_bytes(text) + "\n"); }

void flush_output() {
  if (!console.pending.empty()) write_out();
}

void print_error(const files::failure& failed) {
  hide_progress();
  std::u8string line = u8"ostrane-dat: ";
  if (!failed.subject.empty()) line += failed.subject + u8": ";
  line = files::printable(line + files::to_utf8(failed.reason)) + u8'\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void print_note(const files::failure& failed) {
  if (console.wanted != talk::quiet) print_error(failed);
}

void show_progress(std::size_t index, std::size_t count, std::string_view name) {
  check_interruption();
  console.bar_index = index;
  if (!name.empty()) console.bar_name = files::printable(files::to_utf8(name));
  static const bool has_terminal = stderr_is_terminal();
  if (!has_terminal || console.wanted == talk::quiet || clock::now() < console.next_bar) return;
  draw_bar(count);
}

void hide_progress() {
  if (!console.bar_is_shown) return;
  console.bar_is_shown = false;
  std::fputs("\r\x1B[K", stderr);
}

job_progress shown_progress(std::size_t count) {
  return {.on_file = [count](std::size_t index, const std::string& name,
                             std::int32_t) { show_progress(index, count, name); },
          .on_bytes = [count](std::int32_t) { show_progress(console.bar_index, count, ""); }};
}

}  // namespace ostrane::command
