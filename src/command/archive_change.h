#pragma once

#include <functional>
#include <string>

#include "data/archive_writer.h"

namespace ostrane::command {

// Replaces an archive by one with other entries, which `edit` sets, unless that returns false. If
// another program writes to it meanwhile, both are repeated for half a second. Throws file_error,
// data_error and interruption.
void change_archive(const std::string& argument,
                    const std::function<bool(new_archive& archive)>& edit);

// Replaces `target`; in a dry run only checks it and the new index. Notes other names of the old
// file. Throws the same.
void write_changed(new_archive& archive, const files::file_path& target,
                   files::write_rules rules = {});

}  // namespace ostrane::command
