#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/archive_index.h"
#include "files/binary_file.h"
#include "files/case_insensitive_lookup.h"

namespace ostrane::command {

// Returns the file that an argument names. Messages show the argument.
files::file_path named_file(const std::string& argument);

// The same for a file that is only read; "-" is standard input, which is copied to a temporary
// file. Throws file_error, data_error and interruption.
files::file_path named_input(const std::string& argument);

// Returns a file that messages show by its path.
files::file_path shown_as_named(const std::filesystem::path& path);

// The same as named_file with symbolic links resolved, so that the link survives when the file is
// replaced.
files::file_path named_link_target(const std::string& argument);

// True if a file that is about to be replaced has other names (hard links), which keep its content.
bool has_other_names(const std::filesystem::path& file);
void note_other_names(const files::file_path& archive);

// Returns the path of a file in a folder; the name is in the code page. Prefers an existing file
// whose name differs in case only.
files::file_path file_in(const std::string& folder, const std::string& name,
                         files::case_insensitive_lookup& names);

// Throws file_error or data_error if the folder does not exist or is not a folder.
void require_folder(const std::string& argument);

// Prepares a folder for the files of a command: creates it and its parents if they do not exist,
// and removes leftovers in it. Changes nothing in a dry run. Throws like require_folder.
void prepare_folder(const std::string& argument);

// Returns true for each entry whose name matches one of the arguments (patterns with "*" and "?",
// case-insensitive), or for all entries if there are no arguments. Throws data_error if an argument
// matches no entry.
std::vector<bool> chosen_entries(std::span<const dat_record> records,
                                 const std::vector<std::string>& arguments);

}  // namespace ostrane::command
