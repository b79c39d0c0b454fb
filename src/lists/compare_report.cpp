#include "lists/compare_report.h"

#include "files/paths.h"
#include "files/text_file.h"
#include "forms/form1.h"
#include "lists/compare_key.h"
#include "state/sign_column_text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Where the walk stands, at item i of `List1` and at line j of the shiplist, and the names there.
struct walk_position {
  std::int32_t i = -1;
  std::int32_t j = -1;
  std::string list_key;
  std::string ship_key;
};

void step_list(walk_position& at) { at.list_key = compare_key(Form1.List1.List(++at.i)); }

// A line behind the final one is empty.
void step_ship(walk_position& at) {
  const auto line = static_cast<std::size_t>(++at.j);
  const bool there = line < tool_state.shiplist_lines.size();
  at.ship_key = there ? compare_key(tool_state.shiplist_lines[line]) : "";
}

void write_list_row(files::text_writer& report, walk_position& at) {
  const std::string number = std::to_string(at.i);
  const std::string indent(number.size() < 5 ? 5 - number.size() : 0, ' ');
  report.write_line(indent + number + " " + at.list_key);
  step_list(at);
}

void write_ship_row(files::text_writer& report, walk_position& at) {
  report.write_line(std::string(20, ' ') + at.ship_key);
  step_ship(at);
}

void write_head(files::text_writer& report) {
  const std::int32_t lines = tool_state.shiplist_last + 1;
  if (tool_state.record_count != lines) {
    report.write_line("Different number of Icons:");
    report.write_line("");
    report.write_line("# in Ostrane.dat=" + sign_column_text(tool_state.record_count) +
                      ", # in Shiplist=" + sign_column_text(lines));
    report.write_line("");
  }
  report.write_line(
      "The following differences was found between your Ostrane.dat and the shiplist");
  report.write_line("");
  report.write_line("      Present in    Present in   ");
  report.write_line("Icon# Ostrane.dat   Shiplist     ");
}

// Writes the names that are less than the other side's present one, first of the archive, then of
// the shiplist. The bound of the first run takes in the end record.
void write_smaller_names(files::text_writer& report, walk_position& at) {
  while (at.i < tool_state.record_count && at.list_key < at.ship_key) write_list_row(report, at);
  while (at.j < tool_state.shiplist_last && at.list_key > at.ship_key) write_ship_row(report, at);
}

void walk(files::text_writer& report) {
  walk_position at;
  tool_state.shiplist_walk_done = flag_false;
  step_list(at);
  step_ship(at);
  while (tool_state.shiplist_walk_done == flag_false) {
    write_smaller_names(report, at);
    // Both sides step on, whether or not their names agree now.
    step_list(at);
    step_ship(at);
    if (at.i >= tool_state.record_count - 1 || at.j >= tool_state.shiplist_last) {
      tool_state.shiplist_walk_done = flag_true;
    }
  }
  while (at.i < tool_state.record_count - 1) write_list_row(report, at);
  while (at.j < tool_state.shiplist_last) write_ship_row(report, at);
}

}  // namespace

void write_compare_report() {
  files::text_writer report(files::on_drives(compare_report_path));
  write_head(report);
  walk(report);
  report.close();
}

}  // namespace ostrane
