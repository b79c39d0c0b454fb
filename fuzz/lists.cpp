// The parts of the input are iconlist.csv, a shiplist and the names of an archive's entries. The
// names get their descriptions, are saved and compared.
#include <algorithm>

#include "archive_writer.h"
#include "forms/forms.h"
#include "platform/user.h"
#include "tool_on_drives.h"

namespace fuzz = ostrane::fuzz;
namespace user = platform::user;
using namespace ostrane;

namespace {

std::size_t lines_in(std::string_view text) {
  const auto ends = [](char c) { return c == '\r' || c == '\n'; };
  return 1 + static_cast<std::size_t>(std::count_if(text.begin(), text.end(), ends));
}

void click_rows(const std::string& iconlist) {
  for (std::int32_t row = 0; row < std::min(Form1.List1.ListCount(), 20); ++row) {
    user::select_row(Form1.List1, row);
    const std::string& name = Form1.List1.List(row);
    const std::string caption = Form1.Frame1.Caption();
    if (caption == name) continue;
    fuzz::check(caption.starts_with(name + " - "), "a caption begins with the name");
    fuzz::check(iconlist.find(caption.substr(name.size() + 3)) != std::string::npos,
                "a description comes from the list");
  }
}

void compare_with(const std::string& shiplist) {
  std::filesystem::create_directory(fuzz::drive_c() / "lists");
  fuzz::write(fuzz::drive_c() / "lists" / "ships.txt", shiplist);
  user::click(Form1.mnu_read_filelist);
  Form6.Dir1.Path = "C:\\lists";
  user::select_file(Form6.File1, 0);
  user::click(Form6.Command1);
  fuzz::check(!Form6.Visible(), "lists can be compared");
  const std::string report = fuzz::read(fuzz::drive_c() / "Shiplist-compare.txt");
  constexpr std::string_view head_end = "Icon# Ostrane.dat   Shiplist     \r\n";
  const std::size_t head = report.find(head_end);
  fuzz::check(head != std::string::npos, "a report has a head");
  // Beside its name a row takes 8 bytes and a line of the shiplist 22.
  std::size_t most = shiplist.size() + 22 * lines_in(shiplist);
  for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
    most += Form1.List1.List(row).size() + 8;
  }
  fuzz::check(report.size() - head - head_end.size() <= most, "a report tells each name once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<std::string> parts = fuzz::parts_of(fuzz::text_of(data, size));
  parts.resize(std::max<std::size_t>(parts.size(), 2));
  fuzz::begin(parts[0]);
  std::vector<samples::sample_file> entries;
  for (std::size_t i = 2; i < parts.size(); ++i) entries.push_back({parts[i], "x"});
  fuzz::open_archive_of(samples::archive_file(entries));
  fuzz::check(fuzz::messages() == 0, "the archive is good");
  user::click(Form1.mnu_save);
  click_rows(parts[0]);
  compare_with(parts[1]);
  fuzz::check_memory(fuzz::memory_without_pictures, size);
  return 0;
}
