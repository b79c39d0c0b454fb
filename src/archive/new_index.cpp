#include "archive/new_index.h"

#include <algorithm>

#include "files/code_page.h"
#include "files/file_error.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Trimmed, cut at 13 characters or filled with blanks.
record_name padded(const std::string& file_name) {
  record_name name;
  name.fill(' ');
  const std::string_view text = files::trimmed(file_name).substr(0, name_size);
  std::copy(text.begin(), text.end(), name.begin());
  return name;
}

std::int32_t offset_after(std::int32_t offset, std::int64_t size, const std::string& path) {
  const std::int64_t behind = offset + size;
  if (behind <= INT32_MAX) return static_cast<std::int32_t>(behind);
  throw files::file_error{files::file_error_number::device_error,
                          "With " + path +
                              " the archive would be larger than 2 GB, which is "
                              "the most that it can be."};
}

// As the archive bears it: in upper case, with NUL for every blank.
record_name stored_name(record_name name) {
  for (char& c : name) c = c == ' ' ? '\0' : files::upper_case(c);
  return name;
}

}  // namespace

std::vector<dat_record> make_new_index(const std::string& folder,
                                       const std::vector<std::string>& files,
                                       files::case_insensitive_lookup& names) {
  const auto count = static_cast<std::int32_t>(files.size()) + 1;
  std::int32_t next_offset = count_size + record_size * count;
  std::vector<dat_record> records;
  records.reserve(files.size() + 1);
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::int64_t size = files::file_size(files::on_drives(folder + files[i], names));
    const std::int32_t behind = offset_after(next_offset, size, folder + files[i]);
    make_record& record = tool_state.make_index[i];
    record.name = padded(files[i]);
    record.size = static_cast<std::int32_t>(size);
    record.offset = next_offset;
    records.push_back({.offset = next_offset, .name = stored_name(record.name)});
    next_offset = behind;
  }
  records.push_back({.offset = next_offset, .name = {}});
  return records;
}

}  // namespace ostrane
