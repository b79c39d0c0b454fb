#include <algorithm>
#include <chrono>
#include <thread>

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

std::string key_of(const entry_source& entry) {
  return files::compare_key(name_with_blanks(entry.name));
}

std::u8string shown_entry(const entry_source& entry) {
  return files::to_utf8(name_with_blanks(entry.name));
}

// The source for a name in the code page or, if it has another character, data_error.
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

// Files that replace each other, and a file whose cut name is that of an entry. An entry that has
// the whole name is meant to be replaced.
int report_equal_files(const std::vector<entry_source>& files, const new_archive& old,
                       bool is_forced) {
  std::vector<files::failure> lost;
  for (const auto& [later, earlier] : equal_names(files)) {
    lost.push_back({files[earlier].file.shown,
                    "not added: " + files::from_utf8_lossy(files[later].file.shown) +
                        " becomes the same entry"});
  }
  for (const entry_source& file : files) {
    if (!is_cut(file)) continue;
    const bool replaces =
        std::any_of(old.entries.begin(), old.entries.end(),
                    [&](const auto& entry) { return key_of(entry) == key_of(file); });
    const std::string entry = name_with_blanks(file.name);
    const files::failure note = {file.file.shown, "its name is too long; the entry is " + entry};
    if (replaces) {
      lost.push_back({note.subject, note.reason + ", which is replaced"});
    } else {
      print_note(note);
    }
  }
  for (const files::failure& one : lost) print_error(one);
  if (!lost.empty() && !is_forced) {
    throw data_error("Nothing was added; --force adds the last file of each name.");
  }
  return lost.empty() ? status_done : status_differs;
}

}  // namespace

void change_archive(const std::string& argument,
                    const std::function<bool(new_archive& archive)>& edit) {
  constexpr auto max_wait = std::chrono::milliseconds(500);
  constexpr auto pause = std::chrono::milliseconds(20);
  const auto deadline = std::chrono::steady_clock::now() + max_wait;
  for (;; std::this_thread::sleep_for(pause)) {
    try {
      new_archive archive = copy_of_archive(named_link_target(argument));
      if (edit(archive)) write_changed(archive, archive.old->path);
      return;
    } catch (const archive_changed&) {
      if (std::chrono::steady_clock::now() > deadline) throw;
    }
  }
}

void write_changed(new_archive& archive, const files::file_path& target, files::write_rules rules) {
  const std::size_t count = archive.entries.size();
  show_progress(0, count, "");  // ends an interrupted job before it writes
  if (!begin_write(target.shown)) {
    require_writable(target, rules);
    make_index(archive);
    return;
  }
  const bool is_linked = has_other_names(
      rules.is_only_spelling ? files::existing_spelling(target.system) : target.system);
  replace_archive(target, archive, shown_progress(count), rules);
  if (is_linked) note_other_names(target);
}

int add(const add_options& options) {
  std::vector<entry_source> files;
  for (const std::string& argument : options.files) {
    show_progress(files.size(), options.files.size(), "");
    const files::file_path file = named_file(argument);
    require_other_file(options.archive, file.system);
    files.push_back(source_named(files::name_as_text(file.system.filename().native()), file));
  }
  int status = status_done;
  bool is_first = true;
  change_archive(options.archive, [&](new_archive& archive) {
    if (std::exchange(is_first, false)) {
      status = report_equal_files(files, archive, options.is_forced);
    }
    add_files(archive, files);
    return true;
  });
  for (const entry_source& file : files) {
    print_step({file.file.shown, "becomes " + name_with_blanks(file.name)});
  }
  return status;
}

int remove(const remove_options& options) {
  change_archive(options.archive, [&](new_archive& archive) {
    const std::vector<bool> chosen = chosen_entries(archive.old->index.records, options.names);
    std::erase_if(archive.entries, [&](const auto& entry) {
      if (chosen[*entry.old_index]) print_step({shown_entry(entry), "is removed"});
      return chosen[*entry.old_index];
    });
    return true;
  });
  return status_done;
}

int rename(const rename_options& options) {
  const std::u8string shown = files::as_utf8(options.new_name);
  const entry_source renamed = source_named(files::from_utf8(shown), {{}, shown});
  if (is_cut(renamed)) throw data_error(shown, "is longer than 13 characters.");
  change_archive(options.archive, [&](new_archive& archive) {
    auto& entries = archive.entries;
    const std::vector<bool> chosen = chosen_entries(archive.old->index.records, {options.old_name});
    if (std::count(chosen.begin(), chosen.end(), true) > 1) {
      throw data_error(files::as_utf8(options.old_name), "is the name of several entries.");
    }
    const auto old =
        entries.begin() + (std::find(chosen.begin(), chosen.end(), true) - chosen.begin());
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
      if (entry == old || key_of(*entry) != key_of(renamed)) continue;
      throw data_error(shown, "is the name of another entry.");
    }
    print_step({shown_entry(*old), "becomes " + name_with_blanks(renamed.name)});
    old->name = renamed.name;
    if (options.keeps_order) return true;
    const entry_source moved = *old;
    entries.erase(old);
    add_files(archive, {moved});
    return true;
  });
  return status_done;
}

}  // namespace ostrane::command
