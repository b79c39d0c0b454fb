#include "command/archive_change.h"

#include <chrono>
#include <thread>

#include "command/console.h"
#include "command/interruption.h"
#include "command/named_files.h"

namespace ostrane::command {

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
  check_interruption();
  if (is_dry_run()) {
    require_writable(target, rules);
    make_index(archive);
  }
  report_write(target.shown);
  if (is_dry_run()) return;
  const bool is_linked = has_other_names(
      rules.is_only_spelling ? files::existing_spelling(target.system) : target.system);
  replace_archive(target, archive, shown_progress(archive.entries.size()), rules);
  if (is_linked) note_other_names(target);
}

}  // namespace ostrane::command
