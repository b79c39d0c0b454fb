// The input is an archive, or for fuzz_icon the only icon file of an archive. Clicks every row and
// uses every view on all series: motion, stepping, reports.
#include "generated_input.h"

using namespace ostrane;

namespace {

void use_series() {
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
std::int32_t browse(std::int32_t row, std::int32_t max_series) {
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

}  // namespace

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
  // Many rows can share a large icon file, so the number of series is limited.
  std::int32_t actions = archive.size() < 65536 ? 30 : 2;
  for (std::int32_t row = 0; row < Form1.List1.ListCount() && actions > 0; ++row) {
    actions -= browse(row, actions);
    user::double_click(Form1.List1, row);
  }
  return 0;
}
