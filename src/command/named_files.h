#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/archive_index.h"
#include "files/binary_file.h"
#include "files/case_insensitive_lookup.h"

namespace ostrane::command {

// The file of an argument. Messages name it as it was given, with a colon.
files::file_path named_file(const std::string& argument);

// The same, but where a link leads if it leads to a file, so that the link stays when the file is
// replaced.
files::file_path named_file_behind_links(const std::string& argument);

// A file in a folder; the name is in the code page. One that differs in case only is it too.
files::file_path file_in(const std::string& folder, const std::string& name,
                         files::case_insensitive_lookup& names);

// Throws file_error or data_error if it is not there or no folder.
void require_folder(const std::string& argument);

// The same, but a missing folder is made, though not the one that it lies in.
void make_folder(const std::string& argument);

// True for each entry whose name one of the arguments is or matches ("*", "?", case ignored), and
// for all if there are none. Throws data_error if an argument matches nothing.
std::vector<bool> chosen_entries(std::span<const dat_record> records,
                                 const std::vector<std::string>& arguments);

// Opens a binary file that writes to the standard output.
void open_output(files::binary_file& file);

// Writes a file that replaces an old one whole, or to the standard output for "-".
void write_result(const std::string& argument, std::string_view bytes);

}  // namespace ostrane::command
