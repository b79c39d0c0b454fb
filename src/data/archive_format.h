#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

#include "files/little_endian.h"

// The archive `ostrane.dat`. All numbers are little-endian, all offsets count from the start of
// the file.
//
//   offset          size  content
//   0               4     N, the number of records, the end record included
//   4 + 17 * i      4     record i: offset of entry i
//   8 + 17 * i      13    record i: name of entry i, padded with NUL bytes, without a terminator
//   4 + 17 * N            the entries, in the order of their records, nothing between them
//
// Record N - 1 is the end record: the offset after the last entry, and normally no name. So the
// size of every entry is the offset of the next record minus its own.
namespace ostrane {

constexpr std::size_t name_size = 13;
constexpr std::int32_t count_size = 4;
constexpr std::int32_t record_size = 17;
// A list of records holds this many. A new archive has one less: its number of records is counted
// in 16 bits, signed.
constexpr std::int32_t max_records = 32768;
constexpr std::size_t max_files = 32766;  // and the end record
static_assert(record_size == 4 + name_size);

// Bytes before the first entry of an archive with `records` records.
constexpr std::int64_t index_size(std::int64_t records) {
  return count_size + record_size * records;
}

using record_name = std::array<char, name_size>;

struct dat_record {
  std::int32_t offset;
  record_name name;  // as in the file, with NUL characters
};

using record_bytes = std::span<std::byte, record_size>;

// Converts a record from and to its bytes in the file. Offsets are not checked. Decodes in place: a
// copy of a record that was just written waits for the processor's store buffer.
inline void decode_record(std::span<const std::byte, record_size> bytes, dat_record& record) {
  record.offset = files::int32_at(bytes, 0);
  std::memcpy(record.name.data(), bytes.data() + 4, name_size);
}
void encode_record(const dat_record& record, record_bytes bytes);

// Returns the name without NUL characters, as `List1` shows it.
std::string name_without_nuls(const record_name& name);

// Replaces every NUL character by a blank and trims the name. Extracted files get this name.
std::string name_with_blanks(const record_name& name);

// Entries have the same name if these keys are equal. New entries of an archive are put in their
// order. A build takes the order of the folder.
std::string name_key(const record_name& name);

constexpr const char* archive_name = "OSTRANE.DAT";
// Ignores case.
bool is_archive_name(std::string_view name);

}  // namespace ostrane
