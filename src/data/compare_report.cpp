#include "data/compare_report.h"

#include "data/number_text.h"
#include "files/text.h"

namespace ostrane {

namespace {

// The merge: row i of the archive, line j of the shiplist, and the keys of both.
class report_walk {
 public:
  report_walk(compare_report& report, std::span<const std::string> archive,
              shiplist_comparison& ships)
      : report_(report), archive_(archive), ships_(ships) {}

  void run() {
    ships_.shiplist_walk_done = false;
    step_list();
    step_ship();
    while (!ships_.shiplist_walk_done) {
      write_smaller_names();
      // Both sides advance even if their names differ.
      step_list();
      step_ship();
      ships_.shiplist_walk_done = i_ >= end_record_ || j_ >= ships_.shiplist_last;
    }
    for (; i_ < end_record_; step_list()) write_list_row();
    for (; j_ < ships_.shiplist_last; step_ship()) write_ship_row();
  }

 private:
  // Lines past the final one read as empty.
  static std::string key_of(std::span<const std::string> lines, std::int32_t line) {
    const auto at = static_cast<std::size_t>(line);
    return at < lines.size() ? files::compare_key(lines[at]) : "";
  }

  void step_list() { list_key_ = key_of(archive_, ++i_); }
  void step_ship() { ship_key_ = key_of(ships_.shiplist_lines, ++j_); }

  // Writes the names that sort before the other side's current name, first those of the archive.
  // The first loop includes the end record.
  void write_smaller_names() {
    for (; i_ <= end_record_ && list_key_ < ship_key_; step_list()) write_list_row();
    for (; j_ < ships_.shiplist_last && list_key_ > ship_key_; step_ship()) write_ship_row();
  }

  void write(std::string line) {
    report_.lines.push_back(std::move(line));
    report_.differs = true;
  }

  void write_list_row() {
    const std::string number = std::to_string(i_);
    const std::string indent(number.size() < 5 ? 5 - number.size() : 0, ' ');
    write(indent + number + " " + list_key_);
  }

  void write_ship_row() { write(std::string(20, ' ') + ship_key_); }

  compare_report& report_;
  std::span<const std::string> archive_;
  shiplist_comparison& ships_;
  std::int32_t end_record_ = static_cast<std::int32_t>(archive_.size()) - 1;
  std::int32_t i_ = -1;
  std::int32_t j_ = -1;
  std::string list_key_;
  std::string ship_key_;
};

std::vector<std::string> head_lines(std::int32_t records, std::int32_t lines) {
  std::vector<std::string> head = {
      "The following differences was found between your Ostrane.dat and the shiplist",
      "",
      "      Present in    Present in   ",
      "Icon# Ostrane.dat   Shiplist     ",
  };
  if (records == lines) return head;
  const std::string counts = "# in Ostrane.dat=" + sign_column_text(records) +
                             ", # in Shiplist=" + sign_column_text(lines);
  head.insert(head.begin(), {"Different number of Icons:", "", counts, ""});
  return head;
}

}  // namespace

compare_report run_comparison(shiplist_comparison& comparison,
                              std::span<const std::string> archive) {
  const auto records = static_cast<std::int32_t>(archive.size());
  const std::int32_t lines = comparison.shiplist_last + 1;
  compare_report report = {head_lines(records, lines), records != lines};
  report_walk(report, archive, comparison).run();
  return report;
}

}  // namespace ostrane
