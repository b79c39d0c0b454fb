#pragma once

#include <functional>
#include <string_view>

#include "data/name_list.h"
#include "data/shiplist.h"

namespace ostrane {

// Receives the lines of a report, without line ends.
using line_writer = std::function<void(std::string_view line)>;

// Steps through the names of an archive and a sorted shiplist and writes names that only one side
// has. After each line both sides advance, even if their names differ, so some of these names are
// left out. Returns true if it wrote a name, or if the sides have
// different numbers of lines.
bool write_compare_report(const line_writer& write_line, const name_list& archive,
                          shiplist_comparison& comparison);

// Writes the same to a file. Throws file_error.
bool write_compare_report(const files::file_path& path, const name_list& archive,
                          shiplist_comparison& comparison);

}  // namespace ostrane
