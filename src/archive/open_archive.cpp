#include "archive/open_archive.h"

#include "platform/file_error.h"
#include "platform/paths.h"
#include "state/tool_state.h"

namespace ostrane {

void open_archive_file(platform::binary_file& file) {
  if (tool_state.archive_is_open == flag_false) {
    throw platform::file_error{platform::file_error_number::file_not_found,
                               "No archive is open. Read one first."};
  }
  file.open_to_read(platform::on_drives(tool_state.archive_path_copy));
  if (file.facts().stamp == tool_state.archive_stamp) return;
  file.close();
  throw platform::file_error{
      platform::file_error_number::device_error,
      tool_state.archive_path_copy + " has changed since it was read. Read it again."};
}

}  // namespace ostrane
