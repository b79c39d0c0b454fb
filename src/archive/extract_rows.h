#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace ostrane {

// Extracts the entries of these rows of `List1`, ascending, to files of their names in `folder`, a
// path of the system. Never replaces a file; removes leftovers of killed copies. Returns a message
// about what was not extracted, or "".
std::string extract_rows(const std::vector<std::int32_t>& rows,
                         const std::filesystem::path& folder);

}  // namespace ostrane
