// The input is an archive. Every row is clicked, every icon of it drawn.
#include "browse.h"
#include "forms/forms.h"
#include "platform/user.h"
#include "tool_on_drives.h"

namespace fuzz = ostrane::fuzz;
using ostrane::Form1;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::begin();
  fuzz::open_archive_of(fuzz::text_of(data, size));
  fuzz::check(fuzz::messages() <= 1, "an archive gives one message");
  // Many rows can lead to one icon file of many icons; what a user meets in one go is enough.
  std::int32_t actions = 30;
  for (std::int32_t row = 0; row < Form1.List1.ListCount() && actions > 0; ++row) {
    actions -= fuzz::browse(row, actions);
    platform::user::double_click(Form1.List1, row);
  }
  fuzz::check_memory(fuzz::memory_for_pictures, size);
  return 0;
}
