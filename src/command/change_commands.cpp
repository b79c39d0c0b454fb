#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_rewrite.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "files/code_page.h"
#include "files/system_name.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

void rewrite(const files::file_path& archive, const archive_index& index,
             const std::vector<rewritten_entry>& entries) {
  std::size_t current = 0;
  rewrite_archive(archive, index, entries,
                  {.on_file =
                       [&](std::size_t number, const std::string& name, std::int32_t) {
                         current = number;
                         show_progress(number, entries.size(), name);
                       },
                   .on_bytes = [&](std::int32_t) { show_progress(current, entries.size(), ""); }});
}

void add_file(std::vector<rewritten_entry>& entries, const files::file_path& archive,
              const std::string& argument) {
  const files::file_path file = named_file(argument);
  const std::filesystem::path base = file.system.filename();
  const std::optional<std::string> name = files::name_as_text(base.native());
  if (!name) throw data_error(file.shown, "has characters in its name that the code page lacks.");
  const std::string unsafe = unsafe_name_reason(std::string(files::trimmed(*name)));
  if (!unsafe.empty()) throw data_error(file.shown, "cannot become an entry: " + unsafe + ".");
  std::error_code failed;
  if (std::filesystem::equivalent(file.system, archive.system, failed)) {
    throw data_error(file.shown, "is the archive itself.");
  }
  const std::string entry = add_entry(entries, *name, file);
  if (entry != files::upper_case(files::trimmed(*name))) {
    print_note({file.shown, "its name is too long; the entry is " + entry});
  }
}

}  // namespace

int add(const add_options& options) {
  const files::file_path archive = named_link_target(options.archive);
  const archive_index index = read_archive_index(archive);
  std::vector<rewritten_entry> entries = entries_of(index);
  for (const std::string& file : options.files) add_file(entries, archive, file);
  rewrite(archive, index, entries);
  return status_done;
}

int remove(const remove_options& options) {
  const files::file_path archive = named_link_target(options.archive);
  const archive_index index = read_archive_index(archive);
  const std::vector<bool> chosen = chosen_entries(index.records, options.names);
  std::vector<rewritten_entry> entries = entries_of(index);
  std::erase_if(entries, [&chosen](const auto& entry) { return chosen[*entry.old_index]; });
  rewrite(archive, index, entries);
  return status_done;
}

}  // namespace ostrane::command
