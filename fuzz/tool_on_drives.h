#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// What all targets stand on: the tool begun afresh for each input, on two drives of its own, and
// the checks that end the run with a finding.
namespace ostrane::fuzz {

void check(bool holds, const char* what);

// Empties the drives, writes iconlist.csv if it is to have text, and begins the tool in C:\ .
void begin(std::string_view iconlist = {});

// The folder that holds the drives, some way down, and nothing else.
const std::filesystem::path& everything();
std::filesystem::path drive_c();

void write(const std::filesystem::path& place, std::string_view bytes);
std::string read(const std::filesystem::path& place);

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}
// The parts of a text that byte 1E separates.
std::vector<std::string> parts_of(std::string_view text);

// Through Form2, as a user does it.
void open_archive(const std::string& folder = "C:\\");
void open_archive_of(std::string_view bytes);

// Message boxes since the tool began.
std::size_t messages();

// Pictures have up to 2182 pixels each way, and two of that size are there while one is resized.
constexpr std::size_t memory_for_pictures = std::size_t{40} << 20U;
// The buffers of files, and what a start of the tool leaves to be made.
constexpr std::size_t memory_without_pictures = std::size_t{4} << 20U;

// Checks that no more was in use at once, beyond what was in use when the tool began, than `fixed`
// bytes and what an input of `size` bytes may cost.
void check_memory(std::size_t fixed, std::size_t size);

}  // namespace ostrane::fuzz
