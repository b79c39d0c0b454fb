#include "state/open_archive.h"

#include "data/archive_index.h"
#include "data/data_error.h"
#include "files/paths.h"

namespace ostrane {

void open_archive_file() {
  if (tool_state.archive_is_open == flag_false) {
    throw data_error("No archive is open. Read one first.");
  }
  open_unchanged(tool_state.archive_file, files::to_file_path(tool_state.archive_path_copy),
                 tool_state.archive_stamp);
}

void require_open_archive() {
  const std::string failure = read_open_archive([] {});
  if (!failure.empty()) throw data_error(failure);
}

bool icons_are_from_open_archive() {
  return tool_state.archive_is_open == flag_true && tool_state.directory_index >= 0;
}

std::span<const dat_record> index_records() {
  return std::span(tool_state.dat_index).first(static_cast<std::size_t>(tool_state.record_count));
}

std::string entry_name(std::int32_t index) {
  return name_with_blanks(tool_state.dat_index[static_cast<std::size_t>(index)].name);
}

}  // namespace ostrane
