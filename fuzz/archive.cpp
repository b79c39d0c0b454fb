// The input is an archive, or for fuzz_icon the one icon file in an archive. Every row is clicked,
// and all series of its icons are looked at as a user would: motion, stepping, reports.
#include <algorithm>

#include "data/archive_bytes.h"
#include "target.h"

using namespace ostrane;

namespace {

void look_at_series() {
  fuzz::check(!Form3.Visible(), "the working message goes");
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

// Draws no more than `most_series`. Gives how many it drew.
std::int32_t browse(std::int32_t row, std::int32_t most_series) {
  std::int32_t first_icon = 1;
  tool_state.next_icon = 0;
  for (std::int32_t series = 1;; ++series) {
    new_messages();
    if (series == 1) {
      user::select_row(Form1.List1, row);
    } else {
      user::click(Form1.Command6);
    }
    // Each icon that is dealt with may give one; so may the file, and the place of the next icon.
    const std::int32_t dealt_with = std::max(tool_state.next_icon - first_icon, 0);
    fuzz::check(new_messages().size() <= static_cast<std::size_t>(dealt_with) + 2,
                "messages follow from the icons");
    if (tool_state.next_icon == 0) return series;
    look_at_series();
    first_icon = tool_state.next_icon;
    if (dealt_with == 0 || series >= most_series) return series;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::begin_on_empty_drives();
#ifdef INPUT_IS_AN_ICON_FILE
  const std::string file = fuzz::raw_or_made(data, size, fuzz::icon_file);
  const std::string archive = archive_bytes({{"F.SHP", file}, {"N.TXT", std::string(64, '\3')}});
#else
  const std::string archive = fuzz::raw_or_made(data, size, fuzz::archive);
#endif
  open_bytes(archive);
  fuzz::check(new_messages().size() <= 1, "an archive gives one message");
  // Many rows can lead to one icon file of many icons; what a user meets in one go is enough.
  std::int32_t actions = archive.size() < 65536 ? 30 : 2;
  for (std::int32_t row = 0; row < Form1.List1.ListCount() && actions > 0; ++row) {
    actions -= browse(row, actions);
    user::double_click(Form1.List1, row);
  }
  return 0;
}
