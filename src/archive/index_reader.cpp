#include "archive/index_reader.h"

#include <algorithm>

#include "data/archive_index.h"
#include "data/game_palette.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "palette/palette_store.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

void fill_list(const std::vector<dat_record>& records) {
  for (const dat_record& record : records) Form1.List1.AddItem(name_without_nuls(record.name));
}

// If the archive has no palette, the offset stays that of the previous archive. The colours are
// then read at that offset.
void store_palette_offset(const std::vector<dat_record>& records) {
  if (const dat_record* found = find_game_palette(records)) {
    tool_state.game_pal_offset = found->offset;
  }
}

// Makes this archive the open one. If it differs from the previous one, the shown icons have no
// next series.
void mark_open(const files::file_stamp& stamp) {
  if (stamp != tool_state.archive_stamp) tool_state.directory_index = -1;
  tool_state.archive_stamp = stamp;
  tool_state.archive_is_open = flag_true;
}

void read_index() {
  const archive_index index = read_archive_index(files::to_file_path(tool_state.archive_path));
  store_records(index.records);
  fill_list(index.records);
  store_palette_offset(index.records);
  mark_open(index.stamp);
}

// Returns why it failed, or "". After a failure `List1` is empty.
std::string try_to_read_index() {
  if (!files::file_exists(tool_state.archive_path)) {
    return tool_state.archive_path + " is not found";
  }
  std::string failure = files::failure_of(read_index);
  if (!failure.empty()) Form1.List1.Clear();
  return failure;
}

}  // namespace

void store_records(const std::vector<dat_record>& records) {
  tool_state.record_count = static_cast<std::int32_t>(records.size());
  std::copy(records.begin(), records.end(), tool_state.dat_index.begin());
}

void read_archive(const std::string& folder) {
  tool_state.archive_is_open = flag_false;
  if (Form1.List1.ListCount() > 0) Form1.List1.Clear();
  tool_state.archive_path = files::with_separator(folder) + "ostrane.dat";
  tool_state.archive_path_copy = tool_state.archive_path;
  const std::string failure = try_to_read_index();
  forms_layer::report(failure);
  if (failure.empty()) {
    Form1.mnu_ext.Enabled = true;
    Form1.mnu_save.Enabled = true;
    Form1.mnu_read_filelist.Enabled = true;
    read_game_palette();
  }
  Form1.Text1.Text = std::to_string(tool_state.record_count - 1);
}

}  // namespace ostrane
