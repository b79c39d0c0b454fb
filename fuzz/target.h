#pragma once

#include <fuzzer/FuzzedDataProvider.h>

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

// Well-formed inputs are made from fields, whose values the bytes of the fuzzer choose.
using fields = FuzzedDataProvider;

// One of the `likely` numbers, an edge of 16 or 32 bits, a neighbour of these, or any number.
std::int32_t number(fields& from, std::initializer_list<std::int64_t> likely);

// The same, but for the size of something in memory: from 0 to 65536.
std::size_t size(fields& from, std::initializer_list<std::int64_t> likely);

// One of the texts, or any.
std::string text(fields& from, const texts& likely);

// True for one in so many values of a byte.
bool one_in(fields& from, std::uint8_t cases);

// The bytes of an icon file or of an archive. Some of their numbers contradict the rest.
std::string icon_file(fields& from);
std::string archive(fields& from);

// The first byte tells whether those behind it are the input or choose its fields.
template <typename Maker>
std::string raw_or_made(const std::uint8_t* data, std::size_t size, Maker maker) {
  if (size == 0) return "";
  if (data[0] % 2 == 0) return {reinterpret_cast<const char*>(data) + 1, size - 1};
  fields from(data + 1, size - 1);
  return maker(from);
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
