#include "tool_on_drives.h"

#include <sanitizer/allocator_interface.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "forms/forms.h"
#include "handlers/start_up.h"
#include "platform/drives.h"
#include "platform/message_box.h"
#include "platform/user.h"

namespace ostrane::fuzz {

namespace fs = std::filesystem;

namespace {

std::int64_t memory_now = 0;
std::int64_t memory_most = 0;

void count_taken(const volatile void*, std::size_t size) {
  memory_now += static_cast<std::int64_t>(size);
  if (memory_now > memory_most) memory_most = memory_now;
}

void count_given_back(const volatile void* at) {
  if (at == nullptr) return;
  memory_now -=
      static_cast<std::int64_t>(__sanitizer_get_allocated_size(const_cast<const void*>(at)));
}

fs::path make_root() {
  std::string name = (fs::temp_directory_path() / "fuzz-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) std::abort();
  __sanitizer_install_malloc_and_free_hooks(count_taken, count_given_back);
  return name;
}

}  // namespace

void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "CHECK FAILED: %s\n", what);
  std::abort();
}

const fs::path& everything() {
  static const fs::path root = make_root();
  return root;
}

// Names of 13 characters cannot lead further up than to `everything`.
fs::path drive_c() { return everything() / "1" / "2" / "3" / "c"; }

void begin(std::string_view iconlist) {
  const fs::path drive_d = drive_c().parent_path() / "d";
  for (const fs::path& drive : {drive_c(), drive_d}) {
    fs::remove_all(drive);
    fs::create_directories(drive);
  }
  if (!iconlist.empty()) write(drive_d / "iconlist.csv", iconlist);
  platform::set_drives({{'C', "", drive_c()}, {'D', "", drive_d}}, "C:\\");
  begin_tool("D:\\");
  memory_now = memory_most = 0;
}

void write(const fs::path& place, std::string_view bytes) {
  std::ofstream(place, std::ios::binary) << bytes;
}

std::string read(const fs::path& place) {
  std::ostringstream bytes;
  bytes << std::ifstream(place, std::ios::binary).rdbuf();
  return bytes.str();
}

std::vector<std::string> parts_of(std::string_view text) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find('\x1E');
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

void open_archive(const std::string& folder) {
  platform::user::click(Form1.mnu_open);
  Form2.Dir1.Path = folder;
  platform::user::click(Form2.Command1);
}

void open_archive_of(std::string_view bytes) {
  write(drive_c() / "ostrane.dat", bytes);
  open_archive();
}

std::size_t messages() { return platform::messages_shown().size(); }

void check_memory(std::size_t fixed, std::size_t size) {
  check(memory_most <= static_cast<std::int64_t>(fixed + 256 * size),
        "memory follows from the bytes at hand");
}

}  // namespace ostrane::fuzz
