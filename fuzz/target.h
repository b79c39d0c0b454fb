#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tool_on_drives.h"

// What all targets stand on: the tool begun afresh for each input, and the checks that end the run
// with a finding.
namespace ostrane::fuzz {

inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "CHECK FAILED: %s\n", what);
  std::abort();
}

// The folder that holds the drives, some way down, and nothing else. Names of 13 characters cannot
// lead further up.
inline const fs::path& everything() {
  static const fs::path top = new_folder();
  return top;
}

inline void begin_on_empty_drives() {
  root = everything() / "1" / "2" / "3";
  empty_drives();
  begin();
}

inline std::string text_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The parts of a text that byte 1E separates.
inline texts parts_of(std::string_view text) {
  texts parts;
  for (;;) {
    const std::size_t end = text.find('\x1E');
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

}  // namespace ostrane::fuzz
