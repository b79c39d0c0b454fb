#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/compare_report.h"
#include "files/code_page.h"

namespace ostrane::command {

int compare(const compare_options& options) {
  require_other_file(options.report, options.archive);
  require_other_file(options.report, options.shiplist);
  const archive_index index = read_archive_index(named_file(options.archive));
  std::vector<std::string> rows;
  rows.reserve(index.records.size());
  for (const dat_record& record : index.records) rows.push_back(name_without_nuls(record.name));
  const std::string none;
  const name_list names = {.count = static_cast<std::int32_t>(rows.size()),
                           .name = [&](std::int32_t row) -> const std::string& {
                             const auto at = static_cast<std::size_t>(row);
                             return at < rows.size() ? rows[at] : none;
                           }};
  shiplist_comparison comparison;
  read_shiplist(named_file(options.shiplist), comparison);
  sort_shiplist(comparison);
  const auto to_output = [](std::string_view line) { print_line(files::to_utf8(line)); };
  const bool has_differences =
      options.report == "-" ? write_compare_report(to_output, names, comparison)
                            : write_compare_report(named_file(options.report), names, comparison);
  return has_differences ? status_differs : status_done;
}

}  // namespace ostrane::command
