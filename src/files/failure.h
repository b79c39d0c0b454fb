#pragma once

#include <exception>
#include <new>
#include <string>

namespace files {

// Runs `part` and catches its exceptions. Returns why it failed, as a sentence for the user, or "".
template <typename Part>
[[nodiscard]] std::string failure_of(const Part& part) {
  try {
    part();
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this.";
  } catch (const std::exception& error) {
    return error.what();
  }
  return "";
}

template <typename Part>
void ignore_failure(const Part& part) {
  try {
    part();
  } catch (const std::exception&) {
    // ignored
  }
}

}  // namespace files
