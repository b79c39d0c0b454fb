#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "files/failure.h"
#include "state/tool_state.h"

// The open archive is the one whose index `dat_index` and `List1` hold.
namespace ostrane {

// Opens `archive_file` to read entries. Throws data_error if no archive is open or if its file has
// changed since the index was read, and file_error.
void open_archive_file();

// Opens `archive_file`, runs a job that reads it, and closes it. Returns why it failed, or "".
template <typename Job>
[[nodiscard]] std::string read_open_archive(const Job& job) {
  std::string failure = files::failure_of([&job] {
    open_archive_file();
    job();
  });
  tool_state.archive_file.close();
  return failure;
}

// Throws data_error if the archive cannot be opened to read entries. Call before a command clears
// what is shown.
void require_open_archive();

// True if the icons shown last, those of `directory_index`, are from the open archive.
bool icons_are_from_open_archive();

// The first `record_count` records of `dat_index`.
std::span<const dat_record> index_records();

// The name of an entry for files and messages. `index` is that in `dat_index`.
std::string entry_name(std::int32_t index);

}  // namespace ostrane
