#include "data/icon_names.h"

#include "files/case_insensitive_lookup.h"
#include "files/failure.h"
#include "files/text.h"
#include "files/text_file.h"

namespace ostrane {

namespace {

icon_name_pair pair_of(std::string_view line) {
  const std::size_t separator = line.find(';');
  if (separator == std::string_view::npos) return {};
  return {.name = std::string(files::trimmed(line.substr(0, separator))),
          .description = std::string(files::trimmed(line.substr(separator + 1)))};
}

}  // namespace

std::vector<icon_name_pair> read_icon_names(const files::file_path& path) {
  std::vector<icon_name_pair> rows(1);
  // Descriptions are optional.
  files::ignore_failure([&] {
    files::text_reader reader(path);
    while (!reader.at_end() && rows.size() <= max_icon_names) {
      rows.push_back(pair_of(reader.read_line()));
    }
  });
  if (rows.size() < 2) rows.resize(2);
  return rows;
}

files::file_path icon_names_file_in(const std::filesystem::path& folder) {
  return {files::case_insensitive_lookup().find(folder, "iconlist.csv"), u8"iconlist.csv"};
}

std::string icon_name_key(std::string_view entry_name) {
  const std::size_t dot = entry_name.find('.');
  return dot == std::string_view::npos ? "" : files::compare_key(entry_name.substr(0, dot));
}

std::size_t find_icon_name(const std::vector<icon_name_pair>& rows, std::string_view entry_name) {
  const std::string wanted = icon_name_key(entry_name);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (files::compare_key(rows[i].name) == wanted) return i;
  }
  return 0;
}

}  // namespace ostrane
