#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "data/archive_bytes.h"
#include "data/picture.h"
#include "write_file.h"

// What the benchmarks work on. All of it is the same in every run.
namespace ostrane::bench {

using entry = archive_entry;

constexpr int max_names = 32767;

// Different names of files in an order that is not sorted.
std::vector<std::string> shuffled_names(int count);

// Square pictures of `side` pixels that mix runs, single pixels and gaps.
std::vector<picture> mixed_pictures(int count, int side);

// Files of 8 to 24 KB, 16 KB on the average.
std::vector<entry> files_of_64_mb();

using ostrane::write_file;
void write_archive(const std::filesystem::path& folder, const std::vector<entry>& entries);

// A new folder for a benchmark in the process, the same one at each call with the same name; all
// of them are taken away at the end.
std::filesystem::path scratch(const std::string& name);

}  // namespace ostrane::bench
