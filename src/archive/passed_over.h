#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// What an extraction could not write: the first ones by name and reason, the others by number.
struct passed_over_entries {
  std::string named;
  std::int32_t count = 0;
};

// Adds an entry, by its name and why it was not written. From the 21st on it only counts.
void pass_over(passed_over_entries& entries, const std::string& name, const std::string& reason);

// One message about all of them, if there are any.
void tell_what_was_passed_over(const passed_over_entries& entries);

}  // namespace ostrane
