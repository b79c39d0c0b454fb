#include "data/compare_report.h"

#include "data/number_text.h"
#include "files/text.h"
#include "files/text_file.h"

namespace ostrane {

namespace {

// The merge: row i of the archive, line j of the shiplist, and the keys of both.
class report_walk {
 public:
  report_walk(const line_writer& report, const name_list& archive, shiplist_comparison& ships)
      : report_(report), archive_(archive), ships_(ships) {}

  // Returns true if a name was written.
  bool run() {
    ships_.shiplist_walk_done = false;
    step_list();
    step_ship();
    while (!ships_.shiplist_walk_done) {
      write_smaller_names();
      // Both sides advance even if their names differ.
      step_list();
      step_ship();
      ships_.shiplist_walk_done = i_ >= archive_.count - 1 || j_ >= ships_.shiplist_last;
    }
    while (i_ < archive_.count - 1) write_list_row();
    while (j_ < ships_.shiplist_last) write_ship_row();
    return wrote_;
  }

 private:
  void step_list() { list_key_ = files::compare_key(archive_.name(++i_)); }

  // Lines past the final one read as empty.
  void step_ship() {
    const auto line = static_cast<std::size_t>(++j_);
    const bool exists = line < ships_.shiplist_lines.size();
    ship_key_ = exists ? files::compare_key(ships_.shiplist_lines[line]) : "";
  }

  // Writes the names that sort before the other side's current name, first those of the archive.
  // The first loop includes the end record.
  void write_smaller_names() {
    while (i_ < archive_.count && list_key_ < ship_key_) write_list_row();
    while (j_ < ships_.shiplist_last && list_key_ > ship_key_) write_ship_row();
  }

  void write_list_row() {
    const std::string number = std::to_string(i_);
    const std::string indent(number.size() < 5 ? 5 - number.size() : 0, ' ');
    report_(indent + number + " " + list_key_);
    wrote_ = true;
    step_list();
  }

  void write_ship_row() {
    report_(std::string(20, ' ') + ship_key_);
    wrote_ = true;
    step_ship();
  }

  const line_writer& report_;
  const name_list& archive_;
  shiplist_comparison& ships_;
  std::int32_t i_ = -1;
  std::int32_t j_ = -1;
  std::string list_key_;
  std::string ship_key_;
  bool wrote_ = false;
};

void write_head(const line_writer& report, std::int32_t records, std::int32_t lines) {
  if (records != lines) {
    report("Different number of Icons:");
    report("");
    report("# in Ostrane.dat=" + sign_column_text(records) +
           ", # in Shiplist=" + sign_column_text(lines));
    report("");
  }
  report("The following differences was found between your Ostrane.dat and the shiplist");
  report("");
  report("      Present in    Present in   ");
  report("Icon# Ostrane.dat   Shiplist     ");
}

}  // namespace

bool write_compare_report(const line_writer& write_line, const name_list& archive,
                          shiplist_comparison& comparison) {
  const std::int32_t lines = comparison.shiplist_last + 1;
  write_head(write_line, archive.count, lines);
  const bool wrote_names = report_walk(write_line, archive, comparison).run();
  return wrote_names || archive.count != lines;
}

bool write_compare_report(const files::file_path& path, const name_list& archive,
                          shiplist_comparison& comparison) {
  std::string lines;
  const bool differs = write_compare_report(
      [&lines](std::string_view line) { lines.append(line).append("\r\n"); }, archive, comparison);
  files::write_text(path, lines, archive.archive);
  return differs;
}

}  // namespace ostrane
