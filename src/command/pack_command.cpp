#include <memory>
#include <optional>

#include "command/archive_change.h"
#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/scratch_file.h"
#include "data/data_error.h"
#include "data/entry_kind.h"
#include "data/icon_file.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/text.h"
#include "pictures/new_icon.h"

namespace ostrane::command {

namespace {

struct packing {
  files::binary_file archive = {};
  scratch_file packed{u8"the packed icon file"};
  std::unique_ptr<icon_stream> stream = std::make_unique<icon_stream>();
  std::vector<std::u8string> lines = {};  // the report
  std::int64_t saved = 0;
  int status = status_done;
};

shp_icon packed_icon(const stored_icon& icon, std::size_t number) {
  const std::string which = "its icon " + std::to_string(number);
  if (!icon.is_there) throw data_error(which + " is outside the entry");
  if (icon.is_cut) throw data_error(which + " is longer than what is read of it");
  if (!icon.drawn) return {icon.head, ""};
  return new_icon(*icon.drawn, known_icon{icon.head, last_set_column(*icon.drawn)});
}

// Decodes the packed icon file and the old one again.
void require_same_icons(packing& job, const icon_file& old, const std::string& bytes) {
  job.packed.clear();
  job.packed.write(std::as_bytes(std::span(bytes)));
  files::binary_file file;
  file.open_to_read(job.packed.path());
  const icon_file packed = read_icon_file(file, 0, static_cast<std::int32_t>(bytes.size()));
  bool is_same = packed.positions.size() == old.positions.size();
  for (std::size_t i = 0; is_same && i < old.positions.size(); ++i) {
    is_same = read_stored_icon(*job.stream, file, packed, i) ==
              read_stored_icon(*job.stream, job.archive, old, i);
  }
  if (!is_same) throw data_error("its packed icons would differ");
}

std::string packed_file(packing& job, const icon_file& old) {
  if (static_cast<std::size_t>(old.head.icon_count) != old.positions.size()) {
    throw data_error("it does not have the number of icons that its head gives");
  }
  std::vector<shp_icon> icons;
  for (std::size_t i = 0; i < old.positions.size(); ++i) {
    icons.push_back(packed_icon(read_stored_icon(*job.stream, job.archive, old, i), i + 1));
  }
  std::string bytes = shp_file(icons, old.head.identifier, true);
  require_same_icons(job, old, bytes);
  return bytes;
}

void pack_entry(packing& job, const new_archive& archive, entry_source& entry) {
  const auto& records = archive.old->index.records;
  const std::int32_t start = records[*entry.old_index].offset;
  const std::int32_t end = records[*entry.old_index + 1].offset;
  const std::u8string name = files::to_utf8(entry.shown_name);
  try {
    if (kind_of_entry(name_without_nuls(entry.name)) != entry_kind::icons) {
      throw data_error("it is not an icon file");
    }
    std::string bytes = packed_file(job, read_icon_file(job.archive, start, end));
    const std::int64_t saved = std::int64_t{end} - start - static_cast<std::int64_t>(bytes.size());
    if (saved <= 0) return;
    job.saved += saved;
    job.lines.push_back(name + files::as_utf8(": " + counted(saved, "byte") + " saved"));
    entry.content = std::make_shared<const std::string>(std::move(bytes));
  } catch (const data_error& error) {
    print_error({name, "not packed: " + error.told.reason + "."});
    job.status = status_differs;
  }
}

}  // namespace

int pack(const pack_options& options) {
  std::optional<packing> job;
  change_archive(options.archive, [&](new_archive& archive) {
    job.emplace();
    open_unchanged(job->archive, archive.old->path, archive.old->index.stamp);
    const std::vector<bool> chosen = chosen_entries(archive.old->index.records, options.names);
    for (entry_source& entry : archive.entries) {
      show_progress(*entry.old_index, archive.entries.size(), entry.shown_name);
      const bool is_icons = kind_of_entry(name_without_nuls(entry.name)) == entry_kind::icons;
      if (!chosen[*entry.old_index] || (options.names.empty() && !is_icons)) continue;
      pack_entry(*job, archive, entry);
    }
    return job->saved > 0;
  });
  for (const std::u8string& line : job->lines) print_line(files::printable(line));
  print_line(files::as_utf8(counted(job->saved, "byte") + " saved"));
  return job->status;
}

}  // namespace ostrane::command
