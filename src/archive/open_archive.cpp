#include "archive/open_archive.h"

#include "files/file_error.h"
#include "files/paths.h"
#include "state/tool_state.h"

namespace ostrane {

void open_archive_file(files::binary_file& file) {
  if (tool_state.archive_is_open == flag_false) {
    throw files::file_error{files::file_error_number::file_not_found,
                            "No archive is open. Read one first."};
  }
  file.open_to_read(files::on_drives(tool_state.archive_path_copy));
  if (file.facts().stamp == tool_state.archive_stamp) return;
  file.close();
  throw files::file_error{
      files::file_error_number::device_error,
      tool_state.archive_path_copy + " has changed since it was read. Read it again."};
}

}  // namespace ostrane
