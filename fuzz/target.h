#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tool_on_drives.h"

// Shared by all targets: restarts the tool for each input and checks its results.
namespace ostrane::fuzz {

inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "CHECK FAILED: %s\n", what);
  std::abort();
}

// Contains only the drives. They are nested so deep that a name of 13 characters with ".." stays
// inside.
inline const fs::path& top_folder() {
  static const fs::path top = make_temporary_folder();
  return top;
}

inline void restart_on_empty_drives() {
  root = top_folder() / "1" / "2" / "3";
  reset_drives();
  restart();
}

// Splits a text at byte 1E.
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
