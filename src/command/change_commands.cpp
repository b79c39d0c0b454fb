#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_writer.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "files/code_page.h"
#include "files/system_name.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

void write(new_archive& archive) {
  make_index(archive, [&](std::size_t index) { show_progress(index, archive.entries.size(), ""); });
  const bool is_linked = has_other_names(archive.old->path.system);
  replace_archive(archive.old->path, archive, shown_progress(archive.entries.size()));
  if (is_linked) note_other_names(archive.old->path);
}

entry_source source_of(const std::string& argument, const files::file_path& archive) {
  const files::file_path file = named_file(argument);
  const std::filesystem::path base = file.system.filename();
  const std::optional<std::string> name = files::name_as_text(base.native());
  if (!name) throw data_error(file.shown, "has characters in its name that the code page lacks.");
  entry_source source = source_of_file(*name, file);
  const std::string entry = name_with_blanks(source.name);
  const std::string unsafe = unsafe_name_reason(entry);
  if (!unsafe.empty()) throw data_error(file.shown, "cannot become an entry: " + unsafe + ".");
  std::error_code failed;
  if (std::filesystem::equivalent(file.system, archive.system, failed)) {
    throw data_error(file.shown, "is the archive itself.");
  }
  if (entry != files::upper_case(files::trimmed(*name))) {
    print_note({source.file.shown, "its name is too long; the entry is " + entry});
  }
  return source;
}

}  // namespace

int add(const add_options& options) {
  new_archive archive = copy_of_archive(named_link_target(options.archive));
  std::vector<entry_source> files;
  for (const std::string& file : options.files) {
    show_progress(files.size(), options.files.size(), "");
    files.push_back(source_of(file, archive.old->path));
  }
  add_files(archive, files);
  write(archive);
  const auto equal = equal_names(files);
  for (const auto& [later, earlier] : equal) {
    print_error({files[earlier].file.shown,
                 "not added: " + files::from_utf8_lossy(files[later].file.shown) +
                     " becomes the same entry"});
  }
  return equal.empty() ? status_done : status_differs;
}

int remove(const remove_options& options) {
  new_archive archive = copy_of_archive(named_link_target(options.archive));
  const std::vector<bool> chosen = chosen_entries(archive.old->index.records, options.names);
  std::erase_if(archive.entries, [&](const auto& entry) { return chosen[*entry.old_index]; });
  write(archive);
  return status_done;
}

}  // namespace ostrane::command
