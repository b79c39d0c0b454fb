#include "lists/text_view.h"

#include <algorithm>
#include <string>

#include "archive/entry_bounds.h"
#include "forms/form1.h"
#include "icons/show_working_message.h"
#include "platform/file_error.h"
#include "platform/message_box.h"
#include "state/files.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int64_t most_text = std::int64_t{16} << 20U;

// The bytes of the entry that the file holds.
std::string read_text(std::int32_t offset) {
  const std::int64_t there = offset < 0 ? 0 : file_1.size() - offset;
  const std::int64_t count =
      std::clamp<std::int64_t>(tool_state.entry_bytes_left, 0, std::max<std::int64_t>(there, 0));
  std::string text(static_cast<std::size_t>(std::min(count, most_text)), ' ');
  if (text.empty()) return text;
  file_1.seek(offset);
  text.resize(file_1.read(std::as_writable_bytes(std::span(text))));
  std::replace(text.begin(), text.end(), '\0', ' ');
  return text;
}

}  // namespace

void show_text_entry() {
  const std::int32_t offset = entry_start(tool_state.selected_index);
  tool_state.entry_bytes_left =
      in_32_bits(std::int64_t{entry_end(tool_state.selected_index)} - offset);
  Form1.Text6.Text = "";
  try {
    file_1.open_to_read(tool_state.archive_path);
    show_working_message();
    Form1.Text6.Text = read_text(offset);
  } catch (const platform::file_error& error) {
    platform::message_box(error.text);
  }
  file_1.close();
}

}  // namespace ostrane
