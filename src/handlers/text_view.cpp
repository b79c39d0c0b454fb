#include "handlers/text_view.h"

#include <algorithm>
#include <string>

#include "data/entry_kind.h"
#include "data/entry_range.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "progress/progress.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

// Bytes of the entry that are inside the file.
std::int64_t available_bytes(const entry_range& entry) {
  const std::int64_t to_end_of_file =
      entry.start < 0 ? 0 : tool_state.archive_file.size() - entry.start;
  return std::clamp<std::int64_t>(size_of(entry), 0, std::max<std::int64_t>(to_end_of_file, 0));
}

std::string read_text(std::int32_t offset, std::int64_t count) {
  std::string text(static_cast<std::size_t>(count), ' ');
  if (text.empty()) return text;
  tool_state.archive_file.seek(offset);
  text.resize(tool_state.archive_file.read(std::as_writable_bytes(std::span(text))));
  std::replace(text.begin(), text.end(), '\0', ' ');
  return text;
}

// Why a text of so many bytes is not shown completely, or "".
std::string cut_text_message(std::int64_t count) {
  if (count <= max_shown_text) return "";
  return "This text has " + std::to_string(count) + " bytes. Only the first " +
         std::to_string(max_shown_text) + " of them are shown.";
}

}  // namespace

void show_text_entry() {
  const entry_range entry = range_of(index_records(), tool_state.selected_index);
  tool_state.stream.entry_bytes_left = size_of(entry);
  Form1.Text6.Text = "";
  show_working_message();
  std::int64_t count = 0;
  const std::string failure = read_open_archive([&] {
    count = available_bytes(entry);
    Form1.Text6.Text = read_text(entry.start, std::min(count, max_shown_text));
  });
  forms_layer::report(failure.empty() ? cut_text_message(count) : failure);
}

}  // namespace ostrane
