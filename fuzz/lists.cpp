// The parts of the input are iconlist.csv, a shiplist and the names of an archive's entries. The
// names get their descriptions, are saved and compared.
#include <algorithm>

#include "archive_writer.h"
#include "target.h"

using namespace ostrane;

namespace {

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  texts parts = fuzz::parts_of(fuzz::text_of(data, size));
  parts.resize(std::max<std::size_t>(parts.size(), 2));
  fuzz::begin_on_empty_drives();
  write("C:\\program\\iconlist.csv", parts[0]);
  write("C:\\lists\\ships.txt", parts[1]);
  begin();
  std::vector<entry> entries;
  for (std::size_t i = 2; i < parts.size(); ++i) entries.push_back({parts[i], "x"});
  open_bytes(samples::archive_file(entries));
  fuzz::check(new_messages().empty(), "the archive is good");
  user::click(Form1.mnu_save);
  click_rows(parts[0]);
  compare_with("C:\\lists", "ships.txt");
  fuzz::check(!Form6.Visible(), "lists can be compared");
  return 0;
}
