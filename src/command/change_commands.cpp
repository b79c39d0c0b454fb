#include <algorithm>
#include <unordered_set>

#include "command/archive_change.h"
#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "files/code_page.h"
#include "files/system_name.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

// Throws data_error if the name has characters that the code page lacks, or cannot become a file.
entry_source source_named(const std::optional<std::string>& name, const files::file_path& file) {
  if (!name) throw data_error(file.shown, "has characters in its name that the code page lacks.");
  entry_source source = source_of_file(*name, file);
  const std::string unsafe = unsafe_name_reason(name_with_blanks(source.name));
  if (!unsafe.empty()) throw data_error(file.shown, "cannot become an entry: " + unsafe + ".");
  return source;
}

bool is_cut(const entry_source& source) {
  return name_with_blanks(source.name) != files::upper_case(files::trimmed(source.shown_name));
}

// The keys of the names of its entries.
std::unordered_set<std::string> names_in(const new_archive& archive) {
  std::unordered_set<std::string> names;
  for (const entry_source& entry : archive.entries) names.insert(name_key(entry.name));
  return names;
}

files::failure cut_name_of(const entry_source& file) {
  return {file.file.shown, "its name is too long; the entry is " + name_with_blanks(file.name)};
}

// Files that replace each other, and files whose cut name is that of an entry. An entry that has
// the whole name is meant to be replaced.
std::vector<files::failure> losses(const std::vector<entry_source>& files,
                                   const std::unordered_set<std::string>& old_names) {
  std::vector<files::failure> lost;
  for (const auto& [later, earlier] : equal_names(files)) {
    lost.push_back({files[earlier].file.shown,
                    "not added: " + files::from_utf8_lossy(files[later].file.shown) +
                        " becomes the same entry"});
  }
  for (const entry_source& file : files) {
    if (!is_cut(file) || !old_names.contains(name_key(file.name))) continue;
    lost.push_back(cut_name_of(file));
    lost.back().reason += ", which is replaced";
  }
  return lost;
}

void note_cut_names(const std::vector<entry_source>& files,
                    const std::unordered_set<std::string>& old_names) {
  for (const entry_source& file : files) {
    if (is_cut(file) && !old_names.contains(name_key(file.name))) print_note(cut_name_of(file));
  }
}

struct adding {
  std::vector<entry_source> files;
  std::optional<std::size_t> lost = {};  // files, as far as they are reported
};

std::vector<entry_source> sources_of(const add_options& options) {
  std::vector<entry_source> sources;
  for (const std::string& argument : options.files) {
    show_progress(sources.size(), options.files.size(), "");
    const files::file_path file = named_file(argument);
    require_other_file(options.archive, file.system);
    sources.push_back(source_named(files::name_as_text(file.system.filename().native()), file));
  }
  return sources;
}

void report_losses(adding& job, const std::vector<files::failure>& lost,
                   const std::unordered_set<std::string>& old_names) {
  for (const files::failure& one : lost) print_error(one);
  if (!job.lost) note_cut_names(job.files, old_names);
  job.lost = lost.size();
}

// Returns the entry of a name that only one has. Throws data_error.
std::vector<entry_source>::iterator only_entry(new_archive& archive, const std::string& name) {
  const std::vector<bool> chosen = chosen_entries(archive.old->index.records, {name});
  if (std::count(chosen.begin(), chosen.end(), true) > 1) {
    throw data_error(files::as_utf8(name), "is the name of several entries.");
  }
  return archive.entries.begin() + (std::find(chosen.begin(), chosen.end(), true) - chosen.begin());
}

// Throws data_error if another entry has the name.
void rename_entry(const new_archive& archive, entry_source& entry, const entry_source& renamed) {
  if (name_key(entry.name) != name_key(renamed.name) &&
      names_in(archive).contains(name_key(renamed.name))) {
    throw data_error(renamed.file.shown, "is the name of another entry.");
  }
  entry.name = renamed.name;
}

void move_into_order(new_archive& archive, std::vector<entry_source>::iterator entry) {
  const entry_source moved = *entry;
  archive.entries.erase(entry);
  insert_entries(archive, {{name_key(moved.name), moved}});
}

}  // namespace

int add(const add_options& options) {
  adding job = {.files = sources_of(options)};
  change_archive(options.archive, [&](new_archive& archive) {
    const bool needs_names = std::any_of(job.files.begin(), job.files.end(), is_cut);
    const auto old_names = needs_names ? names_in(archive) : std::unordered_set<std::string>();
    const std::vector<files::failure> lost = losses(job.files, old_names);
    // Another program may have added an entry since the last attempt.
    if (job.lost != lost.size()) report_losses(job, lost, old_names);
    if (!lost.empty() && !options.is_forced) {
      throw data_error("Nothing was added; --force adds the last file of each name.");
    }
    put_files(archive, job.files);
    return true;
  });
  for (const entry_source& file : job.files) {
    print_step({file.file.shown, "becomes " + name_with_blanks(file.name)});
  }
  return *job.lost == 0 ? status_done : status_differs;
}

int remove(const remove_options& options) {
  std::vector<std::u8string> removed;
  change_archive(options.archive, [&](new_archive& archive) {
    const std::vector<bool> chosen = chosen_entries(archive.old->index.records, options.names);
    removed.clear();
    for (const entry_source& entry : archive.entries) {
      if (chosen[*entry.old_index]) removed.push_back(files::to_utf8(entry.shown_name));
    }
    std::erase_if(archive.entries, [&](const auto& entry) { return chosen[*entry.old_index]; });
    return true;
  });
  for (const std::u8string& name : removed) print_step({name, "is removed"});
  return status_done;
}

int rename(const rename_options& options) {
  const std::u8string shown = files::as_utf8(options.new_name);
  const entry_source renamed = source_named(files::from_utf8(shown), {{}, shown});
  if (is_cut(renamed)) throw data_error(shown, "is longer than 13 characters.");
  std::u8string old_name;
  change_archive(options.archive, [&](new_archive& archive) {
    const auto old = only_entry(archive, options.old_name);
    old_name = files::to_utf8(old->shown_name);
    rename_entry(archive, *old, renamed);
    if (!options.keeps_order) move_into_order(archive, old);
    return true;
  });
  print_step({old_name, "becomes " + name_with_blanks(renamed.name)});
  return status_done;
}

}  // namespace ostrane::command
