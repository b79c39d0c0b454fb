// The parts of the input are iconlist.csv, a shiplist and the names of entries. Clicks the names,
// saves and compares them. Generated parts share their names.
#include "generated_input.h"

using namespace ostrane;

// One in 64 lists repeats a line, up to 65536 times.
static std::string generate_list(fuzz::fields& from, const texts& likely) {
  std::string list;
  for (int left = from.ConsumeIntegralInRange(0, 30); left > 0; --left) {
    list += fuzz::text(from, likely);
  }
  const std::string line = fuzz::text(from, likely);
  const bool many = fuzz::one_in(from, 64);
  for (std::size_t left = many ? fuzz::size(from, {32000}) : 0; left > 0; --left) list += line;
  return list;
}

static std::string generate_lists(fuzz::fields& from) {
  const texts words = {"GEMS.SHP", "Gems.Shp", "GEMS;", "GEMS.SHP\r\n", "A\n", "GUIDE.TXT",
                       "\xE4.SHP", "\xC4.SHP", "*\n",   "\r\n",         "\n",  "\r",
                       ";",        " "};
  std::string lists = generate_list(from, words) + '\x1E';
  lists += generate_list(from, words) + '\x1E';
  return lists +
         generate_list(from, {"GEMS.SHP\x1E", "A\x1E", "\xC4.SHP", "Guide.txt\x1E", "\x1E", " "});
}

static void click_rows(const std::string& iconlist) {
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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  texts parts = fuzz::parts_of(fuzz::raw_or_generated(data, size, generate_lists));
  parts.resize(std::max<std::size_t>(parts.size(), 2));
  fuzz::restart_on_empty_drives();
  write("C:\\program\\iconlist.csv", parts[0]);
  write("C:\\lists\\ships.txt", parts[1]);
  restart();
  std::vector<entry> entries;
  for (std::size_t i = 2; i < parts.size(); ++i) entries.push_back({parts[i], "x"});
  entries.resize(std::min<std::size_t>(entries.size(), max_records - 1));
  open_bytes(archive_bytes(entries));
  fuzz::check(new_messages().empty(), "the archive is good");
  user::click(Form1.mnu_save);
  click_rows(parts[0]);
  run_comparison("C:\\lists", "ships.txt");
  const auto ends_line = [](char c) { return c == '\r' || c == '\n'; };
  const bool can_be_long = std::count_if(parts[1].begin(), parts[1].end(), ends_line) >= 32768;
  fuzz::check(!Form6.Visible() || can_be_long, "lists can be compared");
  return 0;
}
