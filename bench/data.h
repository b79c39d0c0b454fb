#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "archive_bytes.h"
#include "data/picture.h"
#include "write_file.h"

// Data for the benchmarks, the same in every run.
namespace ostrane::bench {

using entry = archive_entry;

constexpr int max_names = 32767;

// Unique file names in random order.
std::vector<std::string> shuffled_names(int count);

// Square pictures of `side` pixels that mix runs, single pixels and gaps.
std::vector<picture> mixed_pictures(int count, int side);

// Files of 8 to 24 KB, 16 KB on average.
std::vector<entry> files_of_64_mb();

using ostrane::write_file;
void write_archive(const std::filesystem::path& folder, const std::vector<entry>& entries);

// A temporary folder, the same one for each call with the same name. All are deleted at exit.
std::filesystem::path scratch(const std::string& name);

}  // namespace ostrane::bench
