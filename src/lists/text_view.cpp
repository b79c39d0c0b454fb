#include "lists/text_view.h"

#include <algorithm>
#include <string>

#include "data/entry_range.h"
#include "files/failure.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "progress/show_working_message.h"
#include "state/files.h"
#include "state/open_archive.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int64_t max_shown_bytes = std::int64_t{2} << 20U;

// How many bytes of the entry the file holds.
std::int64_t bytes_there(std::int32_t offset) {
  const std::int64_t to_end_of_file = offset < 0 ? 0 : file_1.size() - offset;
  return std::clamp<std::int64_t>(tool_state.stream.entry_bytes_left, 0,
                                  std::max<std::int64_t>(to_end_of_file, 0));
}

std::string read_text(std::int32_t offset, std::int64_t count) {
  std::string text(static_cast<std::size_t>(count), ' ');
  if (text.empty()) return text;
  file_1.seek(offset);
  text.resize(file_1.read(std::as_writable_bytes(std::span(text))));
  std::replace(text.begin(), text.end(), '\0', ' ');
  return text;
}

// Returns what the user has to know about it, or "".
std::string show_text(std::int32_t offset) {
  open_archive_file(file_1);
  const std::int64_t count = bytes_there(offset);
  Form1.Text6.Text = read_text(offset, std::min(count, max_shown_bytes));
  if (count <= max_shown_bytes) return "";
  return "This text has " + std::to_string(count) + " bytes. Only the first " +
         std::to_string(max_shown_bytes) + " of them are shown.";
}

}  // namespace

void show_text_entry() {
  const std::int32_t offset = entry_start(index_records(), tool_state.selected_index);
  tool_state.stream.entry_bytes_left =
      clamp_to_int32(std::int64_t{entry_end(index_records(), tool_state.selected_index)} - offset);
  Form1.Text6.Text = "";
  show_working_message();
  std::string told;
  const std::string failure = files::failure_of([&] { told = show_text(offset); });
  file_1.close();
  if (!failure.empty()) told = failure;
  if (!told.empty()) forms_layer::message_box(told);
}

}  // namespace ostrane
