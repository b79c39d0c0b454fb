#include "command/outputs.h"

#include "command/console.h"
#include "command/named_files.h"
#include "command/program.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/file_writer.h"

namespace ostrane::command {

namespace fs = std::filesystem;

namespace {

bool leads_to_standard_output(const std::string& argument) {
  return argument == "-" || is_standard_output(path_of_argument(argument));
}

}  // namespace

bool is_stream(const std::string& argument) {
  std::error_code failed;
  const fs::file_type type = fs::status(path_of_argument(argument), failed).type();
  return leads_to_standard_output(argument) || type == fs::file_type::fifo ||
         type == fs::file_type::character;
}

bool open_stream(const std::string& argument, files::binary_file& file) {
  if (!is_stream(argument)) return false;
  flush_output();
  const std::u8string shown = argument == "-" ? u8"standard output" : files::as_utf8(argument);
  file.prepare(shown);
  const int opened = leads_to_standard_output(argument) ? open_standard_output()
                                                        : open_pipe(path_of_argument(argument));
  if (opened < 0) files::fail(shown, files::file_action::write, opened);
  file.adopt(opened);
  return true;
}

void require_replaceable_in_dry_run(const std::string& argument) {
  if (!is_dry_run() || is_stream(argument)) return;
  files::require_writable(named_link_target(argument));
}

void write_result(const std::string& argument, std::string_view bytes) {
  require_replaceable_in_dry_run(argument);
  report_write(files::as_utf8(argument));
  if (is_dry_run()) return;
  files::binary_file file;
  if (open_stream(argument, file)) {
    file.write(std::as_bytes(std::span(bytes)));
    file.close();
  } else {
    files::write_bytes(file, named_link_target(argument), bytes,
                       {.mode = files::write_mode::durable});
  }
}

bool is_same_file(const std::string& output, const fs::path& input) {
  std::error_code failed;
  if (output == "-") return fs::is_regular_file(input, failed) && is_standard_output(input);
  return fs::equivalent(path_of_argument(output), input, failed);
}

void require_other_file(const std::string& output, const fs::path& input) {
  if (!is_same_file(output, input)) return;
  throw files::file_error(files::file_error_number::permission_denied, files::file_action::write,
                          files::as_utf8(output), "it is read by this command");
}

}  // namespace ostrane::command
