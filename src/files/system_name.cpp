#include "files/system_name.h"

#include "files/code_page.h"

namespace files {

namespace fs = std::filesystem;

namespace {

// Where names are bytes they are UTF-8.
[[maybe_unused]] std::string utf8_of(const std::string& name) { return name; }

// Windows lets half a surrogate pair stand in a name, which is then no UTF-8.
[[maybe_unused]] std::string utf8_of(const std::wstring& name) {
  try {
    const std::u8string utf8 = fs::path(name).u8string();
    return {utf8.begin(), utf8.end()};
  } catch (const fs::filesystem_error&) {
    return "\xFF";
  }
}

}  // namespace

fs::path system_name(std::string_view text) {
  const std::string utf8 = to_utf8(text);
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::optional<std::string> name_as_text(const fs::path::string_type& name) {
  return from_utf8(utf8_of(name));
}

std::string name_as_text_lossy(const fs::path::string_type& name) {
  return from_utf8_lossy(utf8_of(name));
}

}  // namespace files
