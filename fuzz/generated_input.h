#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include "data/archive_format.h"
#include "data/icon_packer.h"
#include "files/little_endian.h"
#include "target.h"

// Makes well-formed inputs. The bytes of the fuzzer choose their field values.
namespace ostrane::fuzz {

using fields = FuzzedDataProvider;

const texts names = {"A.SHP",         "b.shp",      "N.TXT",       "GAME.PAL",
                     "000DATUP.000",  "SELF.DAT",   "..\\O.TXT",   "../O.TXT",
                     "C:O.TXT",       "..",         ".",           "NUL",
                     "con .txt",      "LPT1.SHP",   "n.txt",       ".OSTRANE.DAT",
                     "13CHARACT.TXT", "\x80\xE4.T", "OSTRANE.DAT", " G.TXT ",
                     "ABCDEFGHI.SHP", "\x81.TXT",   ".HIDDEN"};

// A `likely` number or a 16- or 32-bit limit, each also plus or minus 1, or a random number.
inline std::int32_t number(fields& from, std::initializer_list<std::int64_t> likely) {
  std::vector<std::int64_t> edges = {0, INT16_MIN, INT16_MAX, UINT16_MAX, INT32_MIN, INT32_MAX};
  edges.insert(edges.end(), likely);
  const auto choice = from.ConsumeIntegralInRange<std::size_t>(0, 3 * edges.size());
  if (choice == 3 * edges.size()) return from.ConsumeIntegral<std::int32_t>();
  return static_cast<std::int32_t>(edges[choice / 3] + static_cast<std::int64_t>(choice % 3) - 1);
}

// The same, clamped to 0..65536.
inline std::size_t size(fields& from, std::initializer_list<std::int64_t> likely) {
  return static_cast<std::size_t>(std::clamp(number(from, likely), 0, UINT16_MAX + 1));
}

// A `likely` text or a random one.
inline std::string text(fields& from, const texts& likely) {
  const auto choice = from.ConsumeIntegralInRange<std::size_t>(0, likely.size());
  return choice < likely.size() ? likely[choice] : from.ConsumeRandomLengthString(16);
}

// True for one in `cases` values of a byte.
inline bool one_in(fields& from, std::uint8_t cases) {
  return from.ConsumeIntegral<std::uint8_t>() % cases == 1;
}

// Overwrites 4 bytes, unless they are past the end.
inline void put(std::string& bytes, std::size_t at, std::int32_t value) {
  if (at + 4 <= bytes.size()) files::put_int32(std::as_writable_bytes(std::span(bytes)), at, value);
}

inline std::string stream(fields& from) {
  std::string bytes;
  for (int left = from.ConsumeIntegralInRange(0, 40); left > 0; --left) {
    const auto op = from.ConsumeIntegral<std::uint8_t>();
    bytes += static_cast<char>(op);
    const int operands = op == 0 ? 0 : op > 1 && op % 2 == 1 ? op / 2 : 1;
    bytes.append(static_cast<std::size_t>(operands), from.ConsumeIntegral<char>());
  }
  return bytes;
}

// The last row and column of a slot are at most 2181.
inline shp_icon icon(fields& from) {
  icon_head head;
  head.no_of_rows = static_cast<std::int16_t>(number(from, {2, 30, 2181}));
  head.no_of_cols = static_cast<std::int16_t>(number(from, {4, 30, 2181}));
  head.col_start = number(from, {0, 0, head.no_of_cols});
  head.row_start = number(from, {0, 0, head.no_of_rows});
  head.col_end = number(from, {0, head.no_of_cols, head.no_of_cols});
  head.row_end = number(from, {0, head.no_of_rows, head.no_of_rows});
  return {head, stream(from)};
}

// Some numbers of an icon file or an archive are inconsistent.
inline std::string icon_file(fields& from) {
  std::vector<shp_icon> icons;
  for (int left = from.ConsumeIntegralInRange(0, 8); left > 0; --left) icons.push_back(icon(from));
  if (one_in(from, 16))
    icons.resize(size(from, {300, max_icons_per_file}) % 6000, {icon(from).head, ""});
  std::string file = shp_file(icons);
  const auto count = static_cast<std::int32_t>(icons.size());
  if (one_in(from, 4)) put(file, 4, number(from, {count, max_icons_per_file}));
  const std::size_t n = from.ConsumeIntegralInRange<std::size_t>(0, 8);
  const auto end = static_cast<std::int64_t>(file.size());
  if (one_in(from, 4)) put(file, shp_head_size + shp_dir_entry_size * n, number(from, {8, end}));
  return file;
}

inline std::string contents(fields& from) {
  if (from.ConsumeBool()) return icon_file(from);
  if (from.ConsumeBool()) return from.ConsumeRandomLengthString(64);
  return std::string(size(from, {4, 8, 128, 1024, 8192, 16384}), from.ConsumeIntegral<char>());
}

inline std::string archive(fields& from) {
  std::vector<archive_entry> files;
  for (int left = from.ConsumeIntegralInRange(0, 8); left > 0; --left) {
    files.push_back({text(from, names), contents(from)});
  }
  if (one_in(from, 64)) files.resize(size(from, {300}) % 600, {text(from, names), ""});
  std::string bytes = archive_bytes(files);
  const auto end = static_cast<std::int64_t>(bytes.size());
  const auto any = from.ConsumeIntegral<std::uint8_t>();
  if (one_in(from, 8)) put(bytes, 0, number(from, {max_records, any}));
  while (one_in(from, 4)) {
    const auto record = from.ConsumeIntegralInRange<std::size_t>(0, 13);
    put(bytes, count_size + record_size * record, number(from, {end, any}));
  }
  if (one_in(from, 8)) bytes.resize(std::min(bytes.size(), size(from, {end})));
  return bytes;
}

// Calls `maker` if the first byte is odd. Otherwise the rest is the input.
std::string raw_or_generated(const std::uint8_t* data, std::size_t size, const auto& maker) {
  if (size == 0) return "";
  if (data[0] % 2 == 0) return {reinterpret_cast<const char*>(data) + 1, size - 1};
  FuzzedDataProvider from(data + 1, size - 1);
  return maker(from);
}

}  // namespace ostrane::fuzz
