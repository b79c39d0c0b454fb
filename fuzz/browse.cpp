#include "browse.h"

#include <algorithm>

#include "forms/forms.h"
#include "platform/user.h"
#include "state/tool_state.h"
#include "tool_on_drives.h"

namespace ostrane::fuzz {

namespace user = platform::user;

namespace {

void run_motion() {
  user::click(Form1.Command5);
  for (std::int32_t ticks = 0; Form1.Timer1.Enabled(); ++ticks) {
    check(ticks <= tool_state.slots_drawn, "a motion ends with the series");
    user::tick(Form1.Timer1);
  }
}

void look_at_series() {
  check(!Form3.Visible(), "the working message goes");
  check(tool_state.slots_loaded + 1 == Form1.s16_image.loaded(), "the slots are counted");
  run_motion();
  for (auto* button : {&Form1.Command3, &Form1.Command3, &Form1.Command4, &Form1.Command4}) {
    user::click(*button);
  }
  for (const std::int32_t slot : {0, 1, static_cast<std::int32_t>(tool_state.slots_drawn)}) {
    user::double_click(Form1.s16_image, slot);
    user::click(Form3.message);
  }
}

}  // namespace

std::int32_t browse(std::int32_t row, std::int32_t most_series) {
  tool_state.next_icon = 0;
  std::size_t messages_before = messages();
  user::select_row(Form1.List1, row);
  std::int32_t first_icon = 1;
  for (std::int32_t series = 1;; ++series) {
    // Each icon that is dealt with may give one; so may the file, and the place of the next icon.
    const auto dealt_with =
        static_cast<std::size_t>(std::max(tool_state.next_icon - first_icon, 0));
    check(messages() - messages_before <= dealt_with + 2, "messages follow from the icons");
    if (tool_state.next_icon == 0) return series;
    look_at_series();
    first_icon = tool_state.next_icon;
    messages_before = messages();
    if (series >= most_series) return series;
    user::click(Form1.Command6);
    if (tool_state.next_icon == first_icon) return series;
  }
}

}  // namespace ostrane::fuzz
