#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/compare_report.h"
#include "files/code_page.h"
#include "files/text_file.h"

namespace ostrane::command {

int compare(const compare_options& options) {
  require_other_file(options.report, options.archive);
  require_other_file(options.report, options.shiplist);
  const archive_index index = read_archive_index(named_file(options.archive));
  std::vector<std::string> names;
  names.reserve(index.records.size());
  for (const dat_record& record : index.records) names.push_back(name_without_nuls(record.name));
  shiplist_comparison shiplist;
  read_shiplist(named_file(options.shiplist), shiplist);
  sort_shiplist(shiplist);
  const compare_report report = compare_with(shiplist, names);
  if (options.report == "-") {
    for (const std::string& line : report.lines) print_line(files::to_utf8(line));
  } else {
    files::write_lines(named_file(options.report), report.lines);
  }
  return report.differs ? status_differs : status_done;
}

}  // namespace ostrane::command
