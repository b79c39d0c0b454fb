#include "files/system_name.h"

#include "files/code_page.h"

namespace files {

namespace fs = std::filesystem;

namespace {

// On POSIX names are bytes, interpreted as UTF-8.
[[maybe_unused]] std::string utf8_of_name(const std::string& name) { return name; }

// A Windows name can hold half a surrogate pair, which has no UTF-8; "\xFF" is not UTF-8 either.
[[maybe_unused]] std::string utf8_of_name(const std::wstring& name) {
  try {
    return utf8_of(name);
  } catch (const fs::filesystem_error&) {
    return "\xFF";
  }
}

}  // namespace

fs::path system_name(std::string_view text) { return path_of_utf8(to_utf8(text)); }

fs::path path_of_utf8(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string utf8_of(const fs::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

std::optional<std::string> name_as_text(const fs::path::string_type& name) {
  return from_utf8(utf8_of_name(name));
}

std::string name_as_text_lossy(const fs::path::string_type& name) {
  return from_utf8_lossy(utf8_of_name(name));
}

}  // namespace files
