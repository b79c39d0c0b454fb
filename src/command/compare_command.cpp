#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "command/program.h"
#include "data/compare_report.h"
#include "files/code_page.h"
#include "files/text_file.h"

namespace ostrane::command {

namespace {

void write_report(const std::string& target, const std::vector<std::string>& lines) {
  if (target == "-") {
    for (const std::string& line : lines) print_line(files::to_utf8(line));
    return;
  }
  require_replaceable_in_dry_run(target);
  report_write(files::as_utf8(target));
  if (is_dry_run()) return;
  files::binary_file stream;
  if (!open_stream(target, stream)) return files::write_lines(named_file(target), lines);
  for (const std::string& line : lines) {
    const std::string ended = line + "\r\n";
    stream.write(std::as_bytes(std::span(ended)));
  }
  stream.close();
}

}  // namespace

int compare(const compare_options& options) {
  for (const std::string& input : {options.archive, options.shiplist}) {
    if (input != "-") require_other_file(options.report, path_of_argument(input));
  }
  const archive_index index = read_archive_index(named_input(options.archive));
  std::vector<std::string> names;
  names.reserve(index.records.size());
  for (const dat_record& record : index.records) names.push_back(name_without_nuls(record.name));
  shiplist_comparison shiplist;
  read_shiplist(named_input(options.shiplist), shiplist);
  sort_shiplist(shiplist);
  const compare_report report = run_comparison(shiplist, names);
  write_report(options.report, report.lines);
  return report.differs ? status_differs : status_done;
}

}  // namespace ostrane::command
