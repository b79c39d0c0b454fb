#include <memory>
#include <optional>

#include "command/archive_change.h"
#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/data_error.h"
#include "data/entry_kind.h"
#include "data/icon_repacker.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

struct packing {
  files::binary_file archive = {};
  icon_repacker repacker{archive};
  std::vector<std::u8string> lines = {};     // the report
  std::vector<files::failure> refused = {};  // entries
  std::int64_t saved = 0;
};

bool is_icon_file(const entry_source& entry) {
  return kind_of_entry(name_without_nuls(entry.name)) == entry_kind::icons;
}

void pack_entry(packing& job, const archive_index& index, entry_source& entry) {
  const std::u8string name = files::to_utf8(entry.shown_name);
  try {
    if (!is_icon_file(entry)) throw data_error("it is not an icon file");
    if (!is_whole(index, *entry.old_index)) {
      throw data_error("the archive does not contain all of it");
    }
    const entry_range old = whole_entry(index, *entry.old_index);
    std::string bytes = repacked(job.repacker, read_icon_file(job.archive, old.start, old.end));
    if (bytes.empty()) return;
    const std::int64_t saved = old.size() - static_cast<std::int64_t>(bytes.size());
    job.saved += saved;
    job.lines.push_back(name + files::as_utf8(": " + counted(saved, "byte") + " saved"));
    entry.content = std::make_shared<const std::string>(std::move(bytes));
  } catch (const data_error& error) {
    job.refused.push_back({name, "not packed: " + error.told.reason + "."});
  }
}

void pack_entries(packing& job, const pack_options& options, new_archive& archive) {
  const archive_index& index = archive.old->index;
  open_unchanged(job.archive, archive.old->path, index.stamp);
  const std::vector<bool> chosen = chosen_entries(index.records, options.names);
  for (entry_source& entry : archive.entries) {
    show_progress(*entry.old_index, archive.entries.size(), entry.shown_name);
    const bool is_wanted = !options.names.empty() || is_icon_file(entry);
    if (chosen[*entry.old_index] && is_wanted) pack_entry(job, index, entry);
  }
  open_unchanged(job.archive, archive.old->path, index.stamp);
  job.archive.close();  // Windows does not replace an open file
}

}  // namespace

int pack(const pack_options& options) {
  std::optional<packing> job;
  change_archive(options.archive, [&](new_archive& archive) {
    pack_entries(job.emplace(), options, archive);
    return job->saved > 0;
  });
  for (const files::failure& one : job->refused) print_error(one);
  for (const std::u8string& line : job->lines) print_line(files::printable(line));
  print_line(files::as_utf8(counted(job->saved, "byte") + " saved"));
  return job->refused.empty() ? status_done : status_differs;
}

}  // namespace ostrane::command
