// The input is an archive, or for fuzz_icon the only icon file of an archive. It is checked as by
// `ostrane-dat check`. Clicks every row and uses every view on all series: motion, stepping,
// reports. Then extracts it, which must write nothing but files in one folder.
#include "data/archive_check.h"
#include "generated_input.h"

using namespace ostrane;

static void check_faults(std::size_t archive_size) {
  std::size_t faults = 0;
  check_archive(
      {disk_path("C:\\ostrane.dat"), u8"a"},
      [&faults](const std::string&, const std::string& fault) {
        fuzz::check(!fault.empty() && fault.find('\n') == fault.npos, "a fault is a line");
        ++faults;
      },
      [](std::size_t, std::size_t, const std::string&) {});
  // A record has at most six faults, an icon four.
  fuzz::check(faults <= archive_size + 10, "the number of faults is limited");
}

static void use_series() {
  fuzz::check(!Form3.Visible(), "the working message is hidden");
  fuzz::check(tool_state.slots_loaded + 1 == Form1.s16_image.loaded(), "the slots are counted");
  user::click(Form1.Command5);
  for (std::int32_t ticks = 0; Form1.Timer1.Enabled(); ++ticks) {
    fuzz::check(ticks <= tool_state.slots_drawn, "a motion ends with the series");
    user::tick(Form1.Timer1);
  }
  for (auto* button : {&Form1.Command3, &Form1.Command3, &Form1.Command4, &Form1.Command4}) {
    user::click(*button);
  }
  for (const std::int32_t slot : {0, 1, static_cast<std::int32_t>(tool_state.slots_drawn)}) {
    user::double_click(Form1.s16_image, slot);
    user::click(Form3.message);
  }
}

// Draws at most `max_series`. Returns the number of series drawn.
static std::int32_t browse(std::int32_t row, std::int32_t max_series) {
  std::int32_t first_icon = 1;
  tool_state.next_icon = 0;
  for (std::int32_t series = 1;; ++series) {
    new_messages();
    series == 1 ? user::select_row(Form1.List1, row) : user::click(Form1.Command6);
    // One per icon, one for the file, and one for the position of the next icon.
    const std::int32_t processed = std::max(tool_state.next_icon - first_icon, 0);
    fuzz::check(new_messages().size() <= static_cast<std::size_t>(processed) + 2,
                "few messages per icon");
    if (tool_state.next_icon == 0) return series;
    use_series();
    first_icon = tool_state.next_icon;
    if (processed == 0 || series >= max_series) return series;
  }
}

static void extract(const std::string& archive) {
  new_messages();
  const fs::path out = disk_path("C:\\out");
  fs::create_directory(out);
  // An entry of this name would overwrite the open archive.
  fs::create_symlink("../ostrane.dat", out / "SELF.DAT");
  extract_into("C:\\out");
  fuzz::check(new_messages().size() <= 2, "an extraction shows at most two messages");
  fuzz::check(!Form3.Visible(), "the progress is hidden");
  fuzz::check(read("C:\\ostrane.dat") == archive, "the archive does not change");
  std::size_t outside = 0;
  std::uintmax_t bytes = 0;
  for (const auto& found : fs::recursive_directory_iterator(fuzz::top_folder())) {
    const bool inside = found.path().parent_path() == out;
    fuzz::check(!inside || found.is_regular_file(), "entries become files");
    if (!inside) ++outside;
    if (inside && !found.is_symlink()) bytes += found.file_size();
  }
  // The parent folders of `out`, the drive D:, the tool's folder and the archive.
  fuzz::check(outside == 8, "nothing is written outside the folder");
  fuzz::check(bytes <= archive.size(), "each byte of the archive is written at most once");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::restart_on_empty_drives();
#ifdef INPUT_IS_AN_ICON_FILE
  const std::string file = fuzz::raw_or_generated(data, size, fuzz::icon_file);
  const std::string archive = archive_bytes({{"F.SHP", file}, {"N.TXT", std::string(64, '\3')}});
#else
  const std::string archive = fuzz::raw_or_generated(data, size, fuzz::archive);
#endif
  open_bytes(archive);
  fuzz::check(new_messages().size() <= 1, "opening shows at most one message");
  check_faults(archive.size());
  // Many rows can share a large icon file, so the number of series is limited.
  std::int32_t actions = archive.size() < 65536 ? 30 : 2;
  for (std::int32_t row = 0; row < Form1.List1.ListCount() && actions > 0; ++row) {
    actions -= browse(row, actions);
    user::double_click(Form1.List1, row);
  }
  extract(archive);
  return 0;
}
