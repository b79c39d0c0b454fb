#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/archive_index.h"
#include "files/binary_file.h"
#include "files/case_insensitive_lookup.h"

namespace ostrane::command {

// The file of an argument. In messages it has the argument's text and a colon.
files::file_path named_file(const std::string& argument);

// The same, but for a link to a file the target, so that the link stays when the file is replaced.
files::file_path named_link_target(const std::string& argument);

// A file in a folder; the name is in the code page. Finds an existing name in another case.
files::file_path file_in(const std::string& folder, const std::string& name,
                         files::case_insensitive_lookup& names);

// Throws file_error or data_error if the folder does not exist or is a file.
void require_folder(const std::string& argument);

// The same, but creates a missing folder. Its parent must exist.
void make_folder(const std::string& argument);

// True for each entry whose name matches an argument ("*", "?", case ignored), and for all entries
// if there are no arguments. Throws data_error if an argument matches nothing.
std::vector<bool> chosen_entries(std::span<const dat_record> records,
                                 const std::vector<std::string>& arguments);

// Opens a binary file that writes to the standard output.
void open_output(files::binary_file& file);

// Replaces or creates a file atomically, or writes to the standard output for "-".
void write_result(const std::string& argument, std::string_view bytes);

}  // namespace ostrane::command
